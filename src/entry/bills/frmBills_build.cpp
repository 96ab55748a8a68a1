// How a bill looks: the sheet with vendor, dates and amount, the lines below it, the buttons.
#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "entry/bills/frmBills.h"
#include "entry/document/TabbedGrid.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/ScrollRoom.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/paper.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmBills::frmBills(Shell& shell_of_frame)
    : DocumentForm(shell_of_frame, "frmBills", Bill_Kind),
      dated_(session.today()),
      lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Bills"));
  build_fields();
  build();
  connect_controls();
  order_tabs();
}

void frmBills::build_fields() {
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  cmbVendor = named("cmbVendor", new SSDBCombo);
  cmbVendor->set_list(lists_->Vendors());
  dteDate = named("dteDate", new QuillbrookDatePick);
  dteDue = named("dteDue", new QuillbrookDatePick);
  txtTerms = named("txtTerms", new ListCombo(shell, *lists_, Terms_List,
                                             Grow_Terms("Please Enter the Day Amount for this new Term.")));
  txtNum = named("txtNum", new QLineEdit);
  txtAmount = named("txtAmount", new MoneyEdit);
  txtAmount->set_tidy(false);
  txtMemo = named("txtMemo", new QLineEdit);
  lblBill = named("lblBill", new QLabel);
  lblReceipt = named("lblReceipt", new QLabel(QStringLiteral("Item Receipt Only")));
  lblNotice = named("lblNotice", new QLabel);
  lblNotice->setTextFormat(Qt::PlainText);
  lblNotice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  chkRecipt = named("chkRecipt", new QCheckBox(QStringLiteral("Item Receipt")));
  chkPaid = named("chkPaid", new QCheckBox(QStringLiteral("Bill &Paid")));
  chkPaid->setEnabled(false);
  optBill = new QButtonGroup(this);
  optBill->setObjectName(QStringLiteral("optBill"));
  optBill->addButton(named("optBill_0", new QRadioButton(QStringLiteral("Credit"))), 0);
  optBill->addButton(named("optBill_1", new QRadioButton(QStringLiteral("Bill"))), 1);
  optBill->button(1)->setChecked(true);
  SSTab1 = new TabbedGrid(*this, shell, *lists_,
                          {.expenses = QStringLiteral("Choose a category for what this bill is for."),
                           .items = QStringLiteral("Choose an item that this bill brings.")},
                          [this] { return shown_amount(); });
  SSTab1->expenses->add_new_classes(ExpenseGrid::Class);
  SSTab1->items->add_new_classes(SSTab1->items->column(ItemGrid::Field::Class));
}

/// What it is at the top; vendor, number and memo at the left, when and how much at the right.
QFrame* frmBills::build_sheet() {
  fraBill = named("fraBill", new Paper);
  auto* grid = new QGridLayout(fraBill);
  grid->setContentsMargins(3 * theme::unit, 2 * theme::unit, 3 * theme::unit, 2 * theme::unit);
  grid->setSpacing(theme::gap);
  for (QLabel* title : {lblBill, lblReceipt}) {
    QFont heading = title->font();
    heading.setBold(true);
    if (title == lblBill) heading.setPointSizeF(heading.pointSizeF() * 1.2);
    title->setFont(heading);
  }
  auto* kind = row_layout();
  kind->addWidget(lblBill);
  kind->addWidget(lblReceipt);
  kind->addStretch(1);
  kind->addWidget(optBill->button(0));
  kind->addWidget(optBill->button(1));
  kind->addSpacing(2 * theme::gap);
  kind->addWidget(chkRecipt);
  kind->addWidget(chkPaid);
  grid->addLayout(kind, 0, 0, 1, 4);
  const auto place = [&](int row, int column, const char* caption, QWidget* field) {
    grid->addWidget(label_for(field, QString::fromLatin1(caption)), row, column);
    grid->addWidget(field, row, column + 1);
  };
  place(1, 0, "&Vendor", cmbVendor);
  place(1, 2, "D&ate", dteDate);
  place(2, 0, "N&umber", txtNum);
  place(2, 2, "Term&s", txtTerms);
  place(3, 0, "&Memo", txtMemo);
  place(3, 2, "Due Date", dteDue);
  place(4, 2, "Amount Due $", txtAmount);
  grid->addWidget(lblNotice, 4, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(3, 18 * theme::unit);
  return fraBill;
}

void frmBills::build() {
  cmdCan = cancel_button("cmdCan");
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete")));
  cmdRepeat = leads_to(named("cmdRepeat", new QPushButton(QStringLiteral("&Repeat Bill"))), "frmModRepeat");
  auto* sheet = column_layout();
  sheet->addWidget(build_sheet());
  sheet->addWidget(SSTab1, 1);
  auto* column = column_layout(this);
  column->addWidget(new ScrollRoom(sheet), 1);
  column->addLayout(button_row({cmdDelete, cmdRepeat}, {cmdPrev, cmdNext, cmdCan, cmdSaveNew, cmdOk}));
  setMinimumWidth(80 * theme::unit);
}

/// As a bill is written: who, when and which, until when, how much, then the lines.
void frmBills::order_tabs() {
  QWidget* const order[] = {optBill->button(0),
                            optBill->button(1),
                            chkRecipt,
                            chkPaid,
                            cmbVendor,
                            dteDate,
                            txtNum,
                            txtTerms,
                            dteDue,
                            txtAmount,
                            txtMemo,
                            SSTab1->expenses->grid,
                            SSTab1->items->grid,
                            cmdSaveNew,
                            cmdOk,
                            cmdCan,
                            cmdPrev,
                            cmdNext,
                            cmdDelete,
                            cmdRepeat};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmBills::connect_controls() {
  // What opens a box or moves the lines waits until the focus has arrived where it is going.
  const auto later_on = [this](auto* field, auto signal, const char* procedure, auto handler) {
    connect(
        field, signal, this, [this, procedure, handler] { guard(procedure, [&] { (this->*handler)(); }); },
        Qt::QueuedConnection);
  };
  later_on(cmbVendor, &SSDBCombo::LostFocus, "cmbVendor_LostFocus", &frmBills::cmbVendor_LostFocus);
  later_on(txtAmount, &MoneyEdit::LostFocus, "txtAmount_LostFocus", &frmBills::txtAmount_LostFocus);
  on(cmbVendor, &SSDBCombo::Changed, "cmbVendor_Change", [this] { show_notice(); });
  on(txtNum, &QLineEdit::textEdited, "txtNum_Change", [this] { show_notice(); });
  on(txtTerms, &ListCombo::Settled, "txtTerms_LostFocus", [this] { txtTerms_LostFocus(); });
  on(txtTerms, &SSDBCombo::LostFocus, "txtTerms_LostFocus", [this] {
    if (dteDate->value() != dated_) txtTerms_LostFocus();
  });
  on(txtAmount, &QLineEdit::textChanged, "txtAmount_Change", [this] { SSTab1->show_assigned(); });
  on(optBill, &QButtonGroup::idClicked, "optBill_Click", [this] { show_kind(); });
  on(chkRecipt, &QCheckBox::clicked, "chkRecipt_Click", [this] { show_kind(); });
  on(cmdDelete, "cmdDelete_Click", [this] { cmdDelete_Click(); });
  on(cmdRepeat, "cmdRepeat_Click", [this] { cmdRepeat_Click(); });
}

}  // namespace tallymere
