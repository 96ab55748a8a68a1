// How the check book looks: the paper check, the lines below it, the buttons.
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include "entry/checks/frmCheck.h"
#include "entry/document/TabbedGrid.h"
#include "shell/drop_downs.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/ScrollRoom.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/paper.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

QLabel* label(const char* text, QWidget* control) { return label_for(control, QString::fromLatin1(text)); }

}  // namespace

frmCheck::frmCheck(Shell& shell_of_frame)
    : DocumentForm(shell_of_frame, "frmCheck", Check_Kind), lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Checks"));
  build_fields();
  build();
  connect_controls();
  order_tabs();
}

void frmCheck::build_fields() {
  cmbAccount = named("cmbAccount", new SSDBCombo);
  cmbPayee = named("cmbPayee", new SSDBCombo);
  cmbPayee->set_list(lists_->drpCustomers);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  lblBalance = named("lblBalance", new QLabel);
  lblBalance->setFont(theme::tabular(lblBalance->font()));
  txtNumber = named("txtNumber", new QLineEdit);
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  txtAmount = named("txtAmount", new MoneyEdit);
  txtAmount->set_tidy(false);
  txtAmount->setAccessibleName(QStringLiteral("Amount"));
  lblAmount = named("lblAmount", new WordsLine);
  lblAmount->setAccessibleName(QStringLiteral("Amount in words"));
  txtAddress = named("txtAddress", new AddressEdit);
  txtMemo = named("txtMemo", new QLineEdit);
  lblLocked = named("lblLocked", new QLabel);
  SSTab1 = new TabbedGrid(*this, shell, *lists_,
                          {.expenses = QStringLiteral("Choose a category for what this check pays."),
                           .items = QStringLiteral("Choose an item that this check buys.")},
                          [this] { return amount_of_lines(); });
}

/// Number and date at the right, the payee's line with the amount in its box, the words, address and memo.
QFrame* frmCheck::build_check() {
  fraCheck = named("fraCheck", new Paper);
  auto* grid = new QGridLayout(fraCheck);
  grid->setContentsMargins(3 * theme::unit, 2 * theme::unit, 3 * theme::unit, 2 * theme::unit);
  grid->setSpacing(theme::gap);
  lblCompany = named("lblCompany", new QLabel);
  QFont heading = lblCompany->font();
  heading.setBold(true);
  heading.setPointSizeF(heading.pointSizeF() * 1.2);
  lblCompany->setFont(heading);
  grid->addWidget(lblCompany, 0, 0, 1, 3);
  grid->addWidget(label("N&umber", txtNumber), 0, 3);
  grid->addWidget(txtNumber, 0, 4);
  grid->addWidget(label("D&ate", DTPicker1), 1, 3);
  grid->addWidget(DTPicker1, 1, 4);
  grid->setRowMinimumHeight(2, theme::gap);
  grid->addWidget(label("Pa&y to the Order of", cmbPayee), 3, 0);
  grid->addWidget(cmbPayee, 3, 1, 1, 2);
  grid->addWidget(new QLabel(QStringLiteral("$")), 3, 3, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(txtAmount, 3, 4);
  auto* words = row_layout();
  words->addWidget(lblAmount, 1);
  words->addWidget(new QLabel(QStringLiteral("Dollars")), 0, Qt::AlignBottom);
  grid->addLayout(words, 4, 0, 1, 5);
  QLabel* address = label("Addre&ss", txtAddress);
  address->setAlignment(Qt::AlignRight | Qt::AlignTop);
  address->setContentsMargins(0, theme::unit / 2, 0, 0);
  grid->addWidget(address, 5, 0);
  grid->addWidget(txtAddress, 5, 1, 1, 2);
  grid->addWidget(label("&Memo", txtMemo), 6, 0);
  grid->addWidget(txtMemo, 6, 1, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(4, 18 * theme::unit);
  return fraCheck;
}

QGroupBox* frmCheck::build_bill() {
  fraBill = named("fraBill", new QGroupBox(QStringLiteral("Bill Payment Info")));
  grdBills = named("grdBills", new SSDBGrid);
  grdBills->setAccessibleName(QStringLiteral("Bills paid"));
  grdBills->set_columns({{.name = QStringLiteral("Due Date"), .kind = Kind::date, .width = 12},
                         {.name = QStringLiteral("Number"), .width = 14},
                         {.name = QStringLiteral("Vendor")},
                         {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14},
                         {.name = QStringLiteral("Bill Date"), .kind = Kind::date, .width = 12}});
  grdBills->set_empty_hint(QStringLiteral("No bill names this check alone as its payment."));
  column_layout(fraBill)->addWidget(grdBills);
  return fraBill;
}

QGroupBox* frmCheck::build_paycheck() {
  fraPaycheck = named("fraPaycheck", new QGroupBox(QStringLiteral("Pay Check Summary")));
  lblPayPeriod = named("lblPayPeriod", new QLabel);
  lblHours = named("lblHours", new QLabel);
  cmdEditPayCheck = named("cmdEditPayCheck", new QPushButton(QStringLiteral("&Edit Paycheck")));
  auto* column = column_layout(fraPaycheck);
  column->addLayout(figure_row("Pay Period:", lblPayPeriod));
  column->addLayout(figure_row("Hours:", lblHours));
  column->addLayout(plain_button_row({cmdEditPayCheck}, {}));
  column->addStretch(1);
  return fraPaycheck;
}

QGroupBox* frmCheck::build_liability() {
  fraLiability = named("fraLiability", new QGroupBox(QStringLiteral("Liability Payment Summary")));
  lblPaidThrough = named("lblPaidThrough", new QLabel);
  grdLiabilities = named("grdLiabilities", new SSDBGrid);
  grdLiabilities->setAccessibleName(QStringLiteral("Liabilities paid"));
  grdLiabilities->set_columns(
      {{.name = QStringLiteral("Payroll Item")}, {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14}});
  cmdLiaEdit = named("cmdLiaEdit", new QPushButton(QStringLiteral("&Edit Liability Check")));
  auto* column = column_layout(fraLiability);
  column->addLayout(figure_row("Paid Through", lblPaidThrough));
  column->addWidget(grdLiabilities);
  column->addLayout(plain_button_row({cmdLiaEdit}, {}));
  return fraLiability;
}

void frmCheck::build() {
  auto* bank = row_layout();
  cmbAccount->setMinimumContentsLength(28);
  bank->addWidget(label("&Bank", cmbAccount));
  bank->addWidget(cmbAccount);
  bank->addStretch(1);
  bank->addWidget(new QLabel(QStringLiteral("Balance:")));
  bank->addWidget(lblBalance);

  pages_ = new QStackedWidget;
  for (QWidget* page : {static_cast<QWidget*>(SSTab1), static_cast<QWidget*>(build_bill()),
                        static_cast<QWidget*>(build_paycheck()), static_cast<QWidget*>(build_liability())})
    pages_->addWidget(page);

  cmdPrint = named("cmdPrint", new QPushButton(QStringLiteral("&Print Check")));
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete Check")));
  cmdRepeat = leads_to(named("cmdRepeat", new QPushButton(QStringLiteral("Repea&t Check"))), "frmModRepeat");
  auto* sheet = column_layout();
  sheet->addLayout(bank);
  sheet->addWidget(build_check());
  sheet->addWidget(lblLocked);
  sheet->addWidget(pages_, 1);
  auto* column = column_layout(this);
  column->addWidget(new ScrollRoom(sheet), 1);
  column->addLayout(button_row({cmdPrint, cmdDelete, cmdRepeat}, {cmdPrev, cmdNext, cmdSaveNew, cmdOk}));
  setMinimumWidth(80 * theme::unit);
}

/// As a check is written: payee and amount before address and memo, then the lines.
void frmCheck::order_tabs() {
  QWidget* const order[] = {cmbAccount,
                            txtNumber,
                            DTPicker1,
                            cmbPayee,
                            txtAmount,
                            txtAddress,
                            txtMemo,
                            SSTab1->expenses->grid,
                            SSTab1->items->grid,
                            grdBills,
                            cmdEditPayCheck,
                            grdLiabilities,
                            cmdLiaEdit,
                            cmdSaveNew,
                            cmdOk,
                            cmdPrev,
                            cmdNext,
                            cmdPrint,
                            cmdDelete,
                            cmdRepeat};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmCheck::connect_controls() {
  on(cmbAccount, &SSDBCombo::Click, "cmbAccount_Click", [this] { set_bank(cmbAccount->id()); });
  on(cmbAccount, &SSDBCombo::LostFocus, "cmbAccount_LostFocus", [this] { cmbAccount_LostFocus(); });
  on(cmbPayee, &SSDBCombo::Click, "cmbPayee_Click", [this] { Load_Address_Box(); });
  // A box that opens while the focus is on its way would catch it: these wait until it has arrived.
  const auto later_on = [this](auto* field, auto signal, const char* procedure, auto handler) {
    connect(
        field, signal, this, [this, procedure, handler] { guard(procedure, [&] { (this->*handler)(); }); },
        Qt::QueuedConnection);
  };
  later_on(cmbPayee, &SSDBCombo::LostFocus, "cmbPayee_LostFocus", &frmCheck::Load_Address_Box);
  later_on(txtAmount, &MoneyEdit::LostFocus, "txtAmount_LostFocus", &frmCheck::txtAmount_LostFocus);
  on(txtAmount, &QLineEdit::textChanged, "txtAmount_Change", [this] { show_assigned(); });
  on(cmdPrint, "cmdPrint_Click", [this] { cmdPrint_Click(); });
  on(cmdDelete, "cmdDelete_Click", [this] { cmdDelete_Click(); });
  on(cmdRepeat, "cmdRepeat_Click", [this] { cmdRepeat_Click(); });
  on(cmdEditPayCheck, "cmdEditPayCheck_Click", [this] { cmdEditPayCheck_Click(); });
  on(cmdLiaEdit, "cmdLiaEdit_Click", [this] { cmdLiaEdit_Click(); });
}

}  // namespace tallymere
