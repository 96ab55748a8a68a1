#include "printing/frmPrintChecks.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <numeric>

#include "core/company/preferences.h"
#include "entry/checks/check.h"
#include "printing/PrintedForm.h"
#include "printing/check_layout.h"
#include "printing/frmGoodPrint.h"
#include "shell/widgets/ask_printer.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Date, Payee, Amount, CheckIndex };
}
}  // namespace

frmPrintChecks::frmPrintChecks(Shell& shell_of_frame) : Form(shell_of_frame, "frmPrintChecks") {
  setWindowTitle(QStringLiteral("Print Checks"));
  build();
  on(cmbBank, &SSDBCombo::CloseUp, "cmbBank_CloseUp", [this] { cmbBank_CloseUp(); });
  on(cmbBank, &SSDBCombo::LostFocus, "cmbBank_CloseUp", [this] { cmbBank_CloseUp(); });
  on(grdChecks->selectionModel(), &QItemSelectionModel::selectionChanged, "grdChecks_SelChange",
     [this] { grdChecks_SelChange(); });
  on(cmdAll, "cmdAll_AfterClick", [this] { cmdAll_AfterClick(); });
  on(cmdPreview, "cmdPreview_AfterClick", [this] { cmdPreview_AfterClick(); });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmPrintChecks::build() {
  cmbBank = named("cmbBank", new SSDBCombo);
  cmbBank->set_list_only(true);
  cmbBank->setMinimumWidth(30 * theme::unit);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  txtFirstCheck = named("txtFirstCheck", new QLineEdit);
  txtFirstCheck->setFixedWidth(16 * theme::unit);
  grdChecks = named("grdChecks", new SSDBGrid);
  grdChecks->setAccessibleName(QStringLiteral("Checks to print"));
  grdChecks->set_columns({{.name = QStringLiteral("Date"), .kind = Kind::date, .width = 12},
                          {.name = QStringLiteral("Payee")},
                          {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 16, .mask = "$#,##0.00"},
                          {.name = QStringLiteral("CheckIndex"), .kind = Kind::hidden}});
  grdChecks->set_multi_select(true);
  grdChecks->set_empty_hint(QStringLiteral("No check of this bank waits to be printed."));
  cmdAll = named("cmdAll", new QPushButton(QStringLiteral("Select &All")));
  cmdPreview = named("cmdPreview", new QPushButton(QStringLiteral("Pre&view")));
  cmdPrint = named("cmdPrint", new QPushButton(QStringLiteral("&Print")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Select &Bank Category"), cmbBank);
  add_field(fields, QStringLiteral("&First Check Number"), txtFirstCheck);
  auto* column = column_layout(this);
  column->addLayout(fields);
  column->addWidget(new QLabel(QStringLiteral("Select Checks and then Click Print.")));
  column->addWidget(grdChecks, 1);
  column->addLayout(button_row({cmdAll, cmdPreview}, {cmdCancel, cmdPrint}));
  setMinimumSize(72 * theme::unit, 48 * theme::unit);
}

// --- the list ------------------------------------------------------------------------------------

void frmPrintChecks::load() {
  const std::string bank = Preference(*session.dbCompany, preference::DefaultBank);
  lblBankID->setText(qt(bank));
  on_changed("Accounts");
  Load_List();
  txtFirstCheck->setFocus();
}

void frmPrintChecks::on_changed(const std::string& table) {
  if (table == "Transactions") return Load_List();
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbBank->list().set_items(banks);
  cmbBank->set_id(utf8(lblBankID->text()));
}

void frmPrintChecks::cmbBank_CloseUp() {
  if (utf8(lblBankID->text()) == cmbBank->id()) return;
  lblBankID->setText(qt(cmbBank->id()));
  Load_List();
}

/// What was selected stays so.
void frmPrintChecks::Load_List() {
  const std::vector<int64_t> before = selected();
  const SSDBGrid::Fill fill(*grdChecks);
  grdChecks->RemoveAll();
  order_.clear();
  for (const WaitingCheck& check : Waiting_Checks(session, utf8(lblBankID->text())))
    grdChecks->AddValues({check.Date, check.Name, check.Amount, check.TransNum});
  std::vector<int> again;
  for (const int64_t TransNum : before)
    for (int row = 0; row < grdChecks->rows(); ++row)
      if (grdChecks->value(row, column::CheckIndex).integer() == TransNum) again.push_back(row);
  grdChecks->select_rows(again);
  order_ = again;
}

void frmPrintChecks::grdChecks_SelChange() {
  const std::vector<int> now = grdChecks->selected_rows();
  std::erase_if(order_, [&](int row) { return std::ranges::find(now, row) == now.end(); });
  for (const int row : now)
    if (std::ranges::find(order_, row) == order_.end()) order_.push_back(row);
}

std::vector<int64_t> frmPrintChecks::selected() const {
  std::vector<int64_t> checks;
  for (const int row : order_) checks.push_back(grdChecks->value(row, column::CheckIndex).integer());
  return checks;
}

void frmPrintChecks::cmdAll_AfterClick() {
  std::vector<int> all(static_cast<size_t>(grdChecks->rows()));
  std::iota(all.begin(), all.end(), 0);
  grdChecks->select_rows(all);
}

// --- printing ------------------------------------------------------------------------------------

bool frmPrintChecks::may_print() {
  if (const auto fault = First_Check_Fault(utf8(txtFirstCheck->text()))) return show_fault(*fault), false;
  if (!order_.empty()) return true;
  session.prompts.box({"Please select at least on check before printing.", "No Selection", Icon::Information});
  return false;
}

/// As they will come out; nothing is numbered.
void frmPrintChecks::cmdPreview_AfterClick() {
  if (!may_print()) return;
  const Hourglass hourglass(session.prompts);
  std::vector<Layout> layouts;
  int64_t number = *Check_Number(utf8(txtFirstCheck->text()));
  for (const int64_t TransNum : selected())
    std::ranges::move(Print_it(session, TransNum, std::to_string(number++)), std::back_inserter(layouts));
  if (layouts.empty()) return Load_List();
  const auto shelf = Open_Shelf(session);
  frmPreview preview(
      shell, QStringLiteral("Checks"),
      [&](const QPageLayout&) { return std::make_unique<Layout_Pages>(layouts, *shelf); },
      Page_Of(shelf->sheet(layouts.front().name())));
  shell.Run_Modal(preview);
}

void frmPrintChecks::cmdPrint_AfterClick() {
  if (!may_print()) return;
  const std::vector<int64_t> checks = selected();
  const int64_t first = *Check_Number(utf8(txtFirstCheck->text()));
  const auto used = Used_Number(session, utf8(lblBankID->text()), first, static_cast<int64_t>(checks.size()));
  if (used && !session.prompts.ask(
                  {"Check number " + std::to_string(*used) + " has already been used on this bank. Print anyway?",
                   "Number used", Icon::Question},
                  Buttons::YesNoDefaultNo))
    return go_to(txtFirstCheck);
  const auto shelf = Open_Shelf(session);
  const auto printer = Ask_Printer(this, Page_Of(shelf->sheet(Check_Layout(session))), QStringLiteral("Checks"));
  if (!printer) return;
  CheckRun run;
  {
    const Hourglass hourglass(session.prompts);
    ProgressBar bar(session.prompts, "Print");
    run = Print_Checks(session, checks, first, *printer, Paper_Offset(printer->printerName()), *shelf, Told_By(bar));
  }
  shell.changed("Transactions");
  tell(run);
  if (run.printed.empty()) return;
  frmGoodPrint good(shell, run.printed);
  shell.Run_Modal(good);
  finish(true);
}

void frmPrintChecks::tell(const CheckRun& run) {
  if (run.fault) guard("Print_it", [&] { std::rethrow_exception(run.fault); });
  if (run.refused) session.prompts.box({"The printer did not take the pages.", "Print", Icon::Critical});
  if (run.taken || run.gone > 0)
    session.prompts.box({run.taken ? "Another user has printed some of these checks meanwhile. Nothing was printed."
                                   : "Another user has printed or deleted some of these checks. They were left out.",
                         "Data has changed", Icon::Information});
}

}  // namespace tallymere
