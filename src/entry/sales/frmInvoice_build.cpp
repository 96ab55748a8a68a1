// How an invoice looks: the sheet with customer, dates and terms, the lines below it, message and total.
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "entry/document/ItemGrid.h"
#include "entry/sales/frmInvoice.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/ScrollRoom.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/paper.h"
#include "shell/widgets/theme.h"

namespace tallymere {

using Field = ItemGrid::Field;

namespace {

constexpr const char* day_question = "Please Enter the Day Amout for this new Term.";

}  // namespace

frmInvoice::frmInvoice(Shell& shell_of_frame)
    : DocumentForm(shell_of_frame, "frmInvoice", Invoice_Kind),
      lists_(new DropDowns(session, this)),
      sale_items_(session) {
  setWindowTitle(QStringLiteral("Invoices"));
  build_fields();
  build_lines();
  build();
  connect_controls();
  order_tabs();
}

void frmInvoice::build_fields() {
  cmbType = named("cmbType", new QComboBox);
  cmbType->addItems({QStringLiteral("Professional"), QStringLiteral("Product"), QStringLiteral("Service")});
  cmbCustomer = named("cmbCustomer", new SSDBCombo);
  cmbCustomer->set_list(lists_->Customers());
  txtBillto = named("txtBillto", new AddressEdit);
  txtShipTo = named("txtShipTo", new AddressEdit);
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  txtNumber = named("txtNumber", new QLineEdit);
  txtPOnum = named("txtPOnum", new QLineEdit);
  txtFOB = named("txtFOB", new QLineEdit);
  dteInvDate = named("dteInvDate", new QuillbrookDatePick);
  dteShip = named("dteShip", new QuillbrookDatePick);
  dteShip->allow_blank(true);
  const auto combo = [this](const char* name, const SmallList& list, ListCombo::Grow grow) {
    return named(name, new ListCombo(shell, *lists_, list, std::move(grow)));
  };
  txtTerms = combo("txtTerms", Terms_List, Grow_Terms(day_question));
  txtRep = combo("txtRep", RepNames_List, Grow_Unasked(RepNames_List));
  txtShipVia = combo("txtShipVia", VIA_List, Grow_Unasked(VIA_List));
  txtClass = combo("txtClass", Class_List, Grow_Unasked(Class_List));
  cmbMessage = combo("cmbMessage", CustomerMessages_List, Grow_Messages());
  lblTotal = named("lblTotal", new QLabel);
  QFont total = theme::tabular(lblTotal->font());
  total.setBold(true);
  total.setPointSizeF(total.pointSizeF() * 1.2);
  lblTotal->setFont(total);
}

void frmInvoice::build_lines() {
  lines_ = new ItemGrid(*this, shell, *lists_,
                        {.name = "SSDBGrid1",
                         .more = {Field::Tax, Field::CatID},
                         .Cost = "Price/Rate",
                         .hint = QStringLiteral("Choose an item that the customer is billed for.")});
}

/// A field below its caption; both are hidden where the style does without.
QWidget* frmInvoice::captioned(const char* caption, QWidget* field) {
  auto* box = new QWidget;
  auto* column = column_layout();
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  QLabel* label = label_for(field, QString::fromLatin1(caption));
  label->setAlignment(Qt::AlignLeft);
  column->addWidget(label);
  column->addWidget(field);
  if (!(field->sizePolicy().expandingDirections() & Qt::Vertical)) column->addStretch(1);
  box->setLayout(column);
  return box;
}

/// The customer with both addresses at the left, number and dates at the right.
QWidget* frmInvoice::build_sheet() {
  auto* sheet = new Paper;
  auto* grid = new QGridLayout(sheet);
  grid->setContentsMargins(2 * theme::unit, theme::unit, 2 * theme::unit, theme::unit);
  grid->setHorizontalSpacing(2 * theme::gap);
  grid->setVerticalSpacing(theme::gap / 2);
  grid->addWidget(captioned("Bill &To", cmbCustomer), 0, 0);
  grid->addWidget(captioned("Addr&ess", txtBillto), 1, 0, 2, 1);
  grid->addWidget(captioned("S&hip Address", txtShipTo), 1, 1, 2, 1);
  auto* style = row_layout();
  style->addWidget(captioned("In&voice Style:", cmbType));
  style->addWidget(captioned("C&lass", txtClass), 1);
  grid->addLayout(style, 0, 1);
  grid->addWidget(captioned("Invoice N&umber", txtNumber), 0, 2);
  grid->addWidget(captioned("D&ate", dteInvDate), 1, 2);
  grid->addWidget(captioned("Sh&ip Date", dteShip), 2, 2);
  for (int column : {0, 1}) grid->setColumnStretch(column, 3);
  grid->setColumnStretch(2, 2);
  grid->addWidget(build_strip(), 3, 0, 1, 3);
  return sheet;
}

QWidget* frmInvoice::build_strip() {
  auto* strip = new QWidget;
  auto* row = row_layout();
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* field : {captioned("Ter&ms", txtTerms), captioned("P.O. Num&ber", txtPOnum),
                         captioned("Rep Name", txtRep), captioned("Ship VIA", txtShipVia), captioned("&FOB", txtFOB)})
    row->addWidget(field, 1);
  strip->setLayout(row);
  return strip;
}

void frmInvoice::build() {
  cmdPrint = leads_to(named("cmdPrint", new QPushButton(QStringLiteral("&Print Invoice"))), "frmPrintInvoice");
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete Invoice")));
  cmdRepeat = leads_to(named("cmdRepeat", new QPushButton(QStringLiteral("&Repeat Invoice"))), "frmModRepeat");
  cmdSpell = named("cmdSpell", new QPushButton(QStringLiteral("&Spell Check")));
  auto* foot = row_layout();
  foot->addWidget(label_for(cmbMessage, QStringLiteral("Customer Messa&ge")));
  foot->addWidget(cmbMessage, 1);
  foot->addSpacing(4 * theme::unit);
  foot->addWidget(new QLabel(QStringLiteral("Total")));
  foot->addWidget(lblTotal);
  auto* all = column_layout();
  all->addWidget(build_sheet());
  all->addWidget(lines_->grid, 1);
  all->addLayout(foot);
  auto* column = column_layout(this);
  column->addWidget(new ScrollRoom(all), 1);
  column->addLayout(button_row({cmdPrint, cmdDelete, cmdRepeat, cmdSpell}, {cmdPrev, cmdNext, cmdSaveNew, cmdOk}));
  lines_->grid->setMinimumHeight(16 * theme::unit);
  setMinimumWidth(90 * theme::unit);
}

/// The customer, then the lines: what is filled in for nearly all. The rest follows.
void frmInvoice::order_tabs() {
  QWidget* const order[] = {cmbCustomer, txtBillto,  txtShipTo, txtNumber,  dteInvDate, dteShip,
                            txtTerms,    txtPOnum,   txtRep,    txtShipVia, txtFOB,     lines_->grid,
                            cmbMessage,  cmdSaveNew, cmdOk,     cmdPrev,    cmdNext,    cmdPrint,
                            cmdDelete,   cmdRepeat,  cmbType,   txtClass,   cmdSpell};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmInvoice::connect_controls() {
  on(cmbType, &QComboBox::currentIndexChanged, "cmbType_Click", [this] { cmbType_Click(); });
  on(cmbCustomer, &SSDBCombo::CloseUp, "cmbCustomer_CloseUp", [this] { cmbCustomer_CloseUp(); });
  // A box that opens while the focus is on its way would catch it: this waits until it has arrived.
  connect(
      cmbCustomer, &SSDBCombo::LostFocus, this,
      [this] { guard("cmbCustomer_LostFocus", [this] { cmbCustomer_CloseUp(); }); }, Qt::QueuedConnection);
  lines_->when_chosen([this](int row, const ItemFacts& item) { chosen(row, item); });
  on(lines_->grid, &SSDBGrid::AfterColUpdate, "SSDBGrid1_AfterColUpdate",
     [this](int row, int column) { SSDBGrid1_AfterColUpdate(row, column); });
  on(lines_->grid, &SSDBGrid::AfterDelete, "SSDBGrid1_AfterDelete", [this] { reckon(); });
  on(lines_->grid, &SSDBGrid::MenuRequested, "SSDBGrid1_MouseUp", [this] { SSDBGrid1_MouseUp(); });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdDelete, "cmdDelete_Click", [this] { cmdDelete_Click(); });
  on(cmdRepeat, "cmdRepeat_Click", [this] { cmdRepeat_Click(); });
  on(cmdSpell, "cmdSpell_Click", [this] { cmdSpell_Click(); });
}

}  // namespace tallymere
