#include "printing/frmStatement.h"

#include <QLabel>
#include <QPushButton>

#include "core/ledger/ledger.h"
#include "core/values/format.h"
#include "printing/PrintedForm.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmStatement::frmStatement(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmStatement"), charge_{.Date = session.today()} {
  setWindowTitle(QStringLiteral("Create Statement"));
  build();
  on(DTPicker1, &QuillbrookDatePick::Change, "DTPicker1_Change", [this] { Reckon(); });
  on(cmdFinance, "cmdFinance_AfterClick",
     [this] { shell.Show_Window({.window = "frmPrefrences", .key = "Finance Charges"}); });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmStatement::build() {
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  DTPicker1->set_value(session.today());
  lblCatID = named("lblCatID", new QLabel(this));
  lblCatID->hide();
  grdReckoning = named("grdReckoning", new SSDBGrid);
  grdReckoning->setAccessibleName(QStringLiteral("How the finance charge comes about"));
  grdReckoning->set_columns(
      {{.name = QStringLiteral("Invoice")},
       {.name = QStringLiteral("Date"), .kind = Kind::date, .width = 12},
       {.name = QStringLiteral("Days"), .kind = Kind::number, .width = 8},
       {.name = QStringLiteral("Received"), .kind = Kind::money, .width = 14, .mask = "#,##0.00"},
       {.name = QStringLiteral("Charge"), .kind = Kind::money, .width = 14, .mask = "#,##0.0000"}});
  grdReckoning->set_empty_hint(QStringLiteral("No open invoices."));
  cmdFinance = named("cmdFinance", new QPushButton(QStringLiteral("&Finance Setup")));
  cmdPrint = named("cmdPrint", new QPushButton(QStringLiteral("&Print Preview")));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  auto* fields = form_layout();
  const auto label = [&](const char* name, const char* caption) {
    auto* made = named(name, new QLabel);
    fields->addRow(QLatin1String(caption), made);
    return made;
  };
  lblCustomer = label("lblCustomer", "Customer:");
  lblBalance = label("lblBalance", "Balance:");
  add_field(fields, QStringLiteral("&Statement Date:"), DTPicker1);
  lblFAPR = label("lblFAPR", "Finance Charge (APR%):");
  lblFCat = label("lblFCat", "Finance Category:");
  lblFAmount = label("lblFAmount", "Finance Amount:");
  QFont bold = lblFAmount->font();
  bold.setBold(true);
  lblFAmount->setFont(bold);
  auto* column = column_layout(this);
  column->addLayout(fields);
  column->addWidget(grdReckoning, 1);
  column->addLayout(button_row({cmdFinance, cmdPrint}, {cmdCancel, cmdOk}));
  setMinimumSize(72 * theme::unit, 52 * theme::unit);
}

void frmStatement::take(const Request& request) {
  if (!request.key.empty()) charge_ = FinanceCharge{.customer = request.key, .Date = session.today()};
  shown_ = false;
  Reckon();
}

void frmStatement::on_changed(const std::string& table) {
  if (table == "Transactions" || table == "GeneralPrefs" || table == "Accounts" || table == "Customers") Reckon();
}

/// A paper that says something else than what is reckoned now was not shown.
void frmStatement::Reckon() {
  FinanceCharge now = Reckon_Finance_Charge(session, charge_.customer, DTPicker1->value());
  if (now != charge_) shown_ = false;
  charge_ = std::move(now);
  show_charge();
}

void frmStatement::show_charge() {
  lblCustomer->setText(qt(charge_.customer));
  lblBalance->setText(qt(Dollar_Text(charge_.balance)));
  lblFAPR->setText(qt(charge_.APR));
  lblFCat->setText(qt(Category_Name(session, charge_.FinanceCat)));
  lblCatID->setText(qt(charge_.FinanceCat));
  lblFAmount->setText(qt(Format(charge_.amount, "$0.00")));
  const SSDBGrid::Fill fill(*grdReckoning);
  grdReckoning->RemoveAll();
  for (const ChargeLine& line : charge_.lines)
    grdReckoning->AddValues({line.Number, line.Date, int64_t{line.days}, line.AmountReceived, line.charge});
}

/// What is below zero is not charged.
void frmStatement::cmdPrint_AfterClick() {
  PrintedForm viewer(shell, "frmPrintStatement");
  viewer.show_document(Print_Statement(session, {charge_.customer, std::max(charge_.amount, Money())}, charge_.Date));
  shell.Run_Modal(viewer);
  shown_ = true;
}

void frmStatement::cmdOk_AfterClick() {
  if (const auto fault = Statement_Fault(charge_, shown_)) return show_fault(*fault);
  if (!Post_Statements(session, {charge_})) return Reckon();
  shell.changed("Transactions");
  finish(true);
}

}  // namespace tallymere
