#include "printing/frmStatements.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "printing/PrintedForm.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Select, Customer, Balance, Charge };
}
}  // namespace

frmStatements::frmStatements(Shell& shell_of_frame) : Form(shell_of_frame, "frmStatements") {
  setWindowTitle(QStringLiteral("Create Statements"));
  build();
  on(DTPicker1, &QuillbrookDatePick::Change, "DTPicker1_Change", [this] { Load_List(); });
  on(cmdFinance, "cmdFinance_AfterClick",
     [this] { shell.Show_Window({.window = "frmPrefrences", .key = "Finance Charges"}); });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmStatements::build() {
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  DTPicker1->set_value(session.today());
  grdCustomers = named("grdCustomers", new SSDBGrid);
  grdCustomers->setAccessibleName(QStringLiteral("Customers who owe"));
  grdCustomers->set_columns(
      {{.name = QStringLiteral("Select"), .kind = Kind::check, .width = 8},
       {.name = QStringLiteral("Customer"), .locked = true},
       {.name = QStringLiteral("Balance"), .kind = Kind::money, .width = 16, .locked = true, .mask = "#,##0.00"},
       {.name = QStringLiteral("Finance Charge"),
        .kind = Kind::money,
        .width = 16,
        .locked = true,
        .mask = "#,##0.00"}});
  grdCustomers->set_read_only(false);
  grdCustomers->set_empty_hint(QStringLiteral("No customer owes anything."));
  cmdFinance = named("cmdFinance", new QPushButton(QStringLiteral("&Finance Setup")));
  cmdPrint = named("cmdPrint", new QPushButton(QStringLiteral("&Print Preview")));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Enter Charges")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&Statement Date:"), DTPicker1);
  auto* column = column_layout(this);
  column->addLayout(fields);
  column->addWidget(grdCustomers, 1);
  column->addLayout(button_row({cmdFinance, cmdPrint}, {cmdCancel, cmdOk}));
  setMinimumSize(72 * theme::unit, 48 * theme::unit);
}

void frmStatements::load() { Load_List(); }

void frmStatements::on_changed(const std::string& table) {
  if (table == "Transactions" || table == "GeneralPrefs" || table == "Accounts" || table == "Customers") Load_List();
}

/// All are selected at first; whom the user took out stays out.
void frmStatements::Load_List() {
  const Hourglass hourglass(session.prompts);
  std::vector<std::string> out;
  for (int row = 0; row < grdCustomers->rows(); ++row)
    if (!grdCustomers->checked(row, column::Select)) out.push_back(grdCustomers->text(row, column::Customer));
  charges_ = Reckon_Finance_Charges(session, DTPicker1->value());
  const SSDBGrid::Fill fill(*grdCustomers);
  grdCustomers->RemoveAll();
  for (const FinanceCharge& charge : charges_)
    grdCustomers->AddValues({std::ranges::find(out, charge.customer) == out.end(), charge.customer, charge.balance,
                             std::max(charge.amount, Money())});
}

std::vector<FinanceCharge> frmStatements::selected() const {
  std::vector<FinanceCharge> some;
  for (int row = 0; row < grdCustomers->rows(); ++row)
    if (grdCustomers->checked(row, column::Select)) some.push_back(charges_[static_cast<size_t>(row)]);
  return some;
}

bool frmStatements::any_selected() {
  if (!selected().empty()) return true;
  session.prompts.box({"Please select at least one customer.", "No Selection", Icon::Information});
  return false;
}

void frmStatements::cmdPrint_AfterClick() {
  if (!any_selected()) return;
  std::vector<StatementOf> customers;
  for (const FinanceCharge& charge : selected())
    customers.push_back({charge.customer, std::max(charge.amount, Money())});
  PrintedForm viewer(shell, "frmPrintStatement");
  viewer.show_document(Print_Statements(session, customers, DTPicker1->value()));
  shell.Run_Modal(viewer);
  shown_ = selected();
}

void frmStatements::cmdOk_AfterClick() {
  if (!any_selected()) return;
  const std::vector<FinanceCharge> charges = selected();
  if (const auto fault = Statement_Fault(charges.front(), charges == shown_)) return show_fault(*fault);
  if (!Post_Statements(session, charges)) return Load_List();
  shell.changed("Transactions");
  finish(true);
}

}  // namespace tallymere
