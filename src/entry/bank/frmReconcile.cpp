#include "entry/bank/frmReconcile.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

#include "core/ledger/ledger.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "entry/bank/frmRecReport.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { Cleared, Number, Date, Payee, Amount, TransNum };
}

GridRow cells_of(const ReconcileLine& line) {
  const std::string date = line.Date ? line.Date->to_text() : "";
  return {join({line.Cleared ? "-1" : "0", line.Number, date, line.Name, line.Amount.to_text(),
                std::to_string(line.TransNum)},
               "\t"),
          {}};
}

QLabel* figure(QLabel* label) {
  label->setFont(theme::tabular(label->font()));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setMinimumWidth(14 * theme::unit);
  return label;
}

}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmReconcile::frmReconcile(Shell& shell_of_frame) : Form(shell_of_frame, "frmReconcile") {
  setWindowTitle(QStringLiteral("Reconcile"));
  build();
  connect_controls();
}

void frmReconcile::build() {
  const auto button = [this](const char* name, const char* caption) {
    return named(name, new QPushButton(QLatin1String(caption)));
  };
  cmdBalance = button("cmdBalance", "&Balance");
  cmdMark = button("cmdMark", "&Mark All");
  cmdUnMark = button("cmdUnMark", "&Unmark All");
  cmdRefreshValues = button("cmdRefreshValues", "&Refresh Lists");
  cmdGoTo = button("cmdGoTo", "&Go To Transaction");
  cmdCancel = button("cmdCancel", "&Cancel");
  auto* balances = build_balances();
  grdDeposits = build_list("grdDeposits", "Deposits and Other Credits", Side::Deposits);
  grdPayments = build_list("grdPayments", "Checks and Other Payments", Side::Payments);
  auto* lists = row_layout();
  for (SSDBGrid* grid : {grdDeposits, grdPayments}) {
    auto* half = column_layout();
    half->addWidget(label_for(grid, grid->accessibleName()), 0, Qt::AlignLeft);
    half->addWidget(grid, 1);
    lists->addLayout(half, 1);
  }
  auto* column = column_layout(this);
  column->addLayout(balances);
  column->addLayout(lists, 1);
  column->addLayout(button_row({cmdMark, cmdUnMark, cmdRefreshValues, cmdGoTo}, {cmdCancel, cmdBalance}));
  setMinimumSize(112 * theme::unit, 56 * theme::unit);
}

QLayout* frmReconcile::build_balances() {
  txtOpen = named("txtOpen", new MoneyEdit);
  txtOpen->setReadOnly(true);
  txtOpen->setFocusPolicy(Qt::NoFocus);
  txtEnd = named("txtEnd", new MoneyEdit);
  for (MoneyEdit* box : {txtOpen, txtEnd}) box->set_mask(std::string(dollar_mask));
  lblEndBalance = named("lblEndBalance", figure(new QLabel));
  lblClearedBalance = named("lblClearedBalance", figure(new QLabel));
  lblDifference = named("lblDifference", figure(new QLabel));
  lblDepositCount = named("lblDepositCount", figure(new QLabel));
  lblDepositTotal = named("lblDepositTotal", figure(new QLabel));
  lblPaymenyCount = named("lblPaymenyCount", figure(new QLabel));
  lblPayTotal = named("lblPayTotal", figure(new QLabel));
  auto* statement = form_layout();
  add_field(statement, QStringLiteral("&Opening Statement Balance:"), txtOpen);
  add_field(statement, QStringLiteral("&Ending Statement Balance:"), txtEnd);
  auto* balance = new QGroupBox(QStringLiteral("Balance"));
  auto* balances = form_layout();
  balance->setLayout(balances);
  balances->addRow(QStringLiteral("Ending Balance"), lblEndBalance);
  balances->addRow(QStringLiteral("Cleared Balance"), lblClearedBalance);
  balances->addRow(QStringLiteral("Difference"), lblDifference);
  auto* cleared = new QGroupBox(QStringLiteral("Items Cleared"));
  auto* items = new QGridLayout(cleared);
  const auto line = [items](int row, const char* what, QLabel* count, QLabel* total) {
    items->addWidget(new QLabel(QLatin1String(what)), row, 0, Qt::AlignRight);
    items->addWidget(count, row, 1);
    items->addWidget(new QLabel(QStringLiteral("Total")), row, 2, Qt::AlignRight);
    items->addWidget(total, row, 3);
  };
  line(0, "Deposits", lblDepositCount, lblDepositTotal);
  line(1, "Payments", lblPaymenyCount, lblPayTotal);
  auto* row = row_layout();
  row->addLayout(statement);
  row->addStretch(1);
  row->addWidget(balance);
  row->addWidget(cleared);
  return row;
}

SSDBGrid* frmReconcile::build_list(const char* name, const char* caption, Side side) {
  auto* grid = named(name, new SSDBGrid);
  grid->setAccessibleName(QLatin1String(caption));
  grid->set_columns({{.name = QStringLiteral("Cleared"), .kind = Kind::check, .width = 8},
                     {.name = QStringLiteral("Check #"), .width = 9, .locked = true},
                     {.name = QStringLiteral("Date"), .kind = Kind::date, .width = 11, .locked = true},
                     {.name = QStringLiteral("Payee"), .locked = true},
                     {.name = QStringLiteral("Amount"),
                      .kind = Kind::money,
                      .width = 13,
                      .locked = true,
                      .mask = std::string(money_mask)},
                     {.name = QStringLiteral("TransNum"), .kind = Kind::hidden}});
  grid->set_read_only(false);
  on(grid, &SSDBGrid::AfterColUpdate, (std::string(name) + "_Click").c_str(),
     [this, grid, side](int row) { toggled(*grid, side, row); });
  on(grid, &SSDBGrid::RowColChange, "Highlight", [this, grid] { highlighted_ = grid; });
  on(grid, &SSDBGrid::MenuRequested, "Highlight", [this, grid] { highlighted_ = grid; });
  return grid;
}

void frmReconcile::connect_controls() {
  on(txtEnd, &MoneyEdit::LostFocus, "txtEnd_LostFocus", [this] { txtEnd_LostFocus(); });
  on(cmdMark, "cmdMark_AfterClick", [this] { mark_all(true); });
  on(cmdUnMark, "cmdUnMark_AfterClick", [this] { mark_all(false); });
  on(cmdRefreshValues, "cmdRefreshValues_AfterClick", [this] { cmdRefreshValues_AfterClick(); });
  on(cmdGoTo, "cmdGoTo_AfterClick", [this] { cmdGoTo_AfterClick(); });
  on(cmdBalance, "cmdBalance_AfterClick", [this] { cmdBalance_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

// --- showing -------------------------------------------------------------------------------------

void frmReconcile::take(const Request& request) {
  if (reconciliation_ && reconciliation_->CatID() == request.key) return;
  reconciliation_ = std::make_unique<Reconciliation>(session, request.key);
  setWindowTitle(qt("Reconcile - " + Category_Name(session, request.key)));
  txtEnd->clear();
  txtOpen->set_amount(reconciliation_->opening());
  Load_Lists();
  go_to(txtEnd);
}

void frmReconcile::on_changed(const std::string& table) {
  if (table == "Transactions" && reconciliation_) cmdRefreshValues_AfterClick();
}

void frmReconcile::Load_Lists() {
  show_list(*grdDeposits, Side::Deposits);
  show_list(*grdPayments, Side::Payments);
  highlighted_ = nullptr;
  show_figures();
}

void frmReconcile::show_list(SSDBGrid& grid, Side side) {
  const int row = grid.Row();
  const int count = static_cast<int>(reconciliation_->lines(side).size());
  grid.set_rows(count,
                [this, side](int at) { return cells_of(reconciliation_->lines(side)[static_cast<size_t>(at)]); });
  if (row >= 0 && row < count) grid.set_Row(row);
}

void frmReconcile::show_figures() {
  const Reconciliation& now = *reconciliation_;
  lblEndBalance->setText(qt(Dollar_Text(now.ending())));
  lblClearedBalance->setText(qt(Dollar_Text(now.cleared())));
  lblDifference->setText(qt(Dollar_Text(now.difference())));
  const LineSum deposits = now.marked(Side::Deposits), payments = now.marked(Side::Payments);
  lblDepositCount->setText(QString::number(deposits.count));
  lblDepositTotal->setText(qt(Dollar_Text(deposits.total)));
  lblPaymenyCount->setText(QString::number(payments.count));
  lblPayTotal->setText(qt(Dollar_Text(payments.total)));
}

// --- what the user does --------------------------------------------------------------------------

void frmReconcile::toggled(SSDBGrid& grid, Side side, int row) {
  reconciliation_->mark(side, static_cast<size_t>(row), grid.checked(row, column::Cleared));
  show_figures();
}

void frmReconcile::mark_all(bool marked) {
  const Hourglass hourglass(session.prompts);
  reconciliation_->mark_all(marked);
  Load_Lists();
}

void frmReconcile::txtEnd_LostFocus() {
  const auto ending = txtEnd->amount();
  if (!ending) return;
  reconciliation_->set_ending(*ending);
  show_figures();
}

void frmReconcile::cmdRefreshValues_AfterClick() {
  const Hourglass hourglass(session.prompts);
  reconciliation_->Load_Lists();
  Load_Lists();
}

void frmReconcile::cmdGoTo_AfterClick() {
  const int row = highlighted_ ? highlighted_->Row() : -1;
  if (row < 0 || row >= highlighted_->rows())
    return session.prompts.box(
        {"Use the Mouse and Right Click on a transaction to highlight it and then click 'Go To Transaction'",
         "No Selection"});
  const Side side = highlighted_ == grdDeposits ? Side::Deposits : Side::Payments;
  const ReconcileLine line = reconciliation_->lines(side)[static_cast<size_t>(row)];
  reconciliation_->mark(side, static_cast<size_t>(row), false);
  highlighted_->set_text(row, column::Cleared, "0");
  show_figures();
  shell.Go_To_Transaction(line.Type, line.TransNum);
}

void frmReconcile::cmdBalance_AfterClick() {
  txtEnd_LostFocus();
  const Hourglass hourglass(session.prompts);
  const Reconciled reconciled = Record_Of(session, *reconciliation_);
  const auto result = reconciliation_->Balance();
  if (result.fault) return show_fault(*result.fault);
  if (result.conflict) {
    session.prompts.box(result.conflict->box);
    return cmdRefreshValues_AfterClick();
  }
  const std::string CatID = reconciliation_->CatID();
  reconciliation_ = std::make_unique<Reconciliation>(session, CatID);
  reconciliation_->set_ending(reconciled.ending);
  txtOpen->set_amount(reconciliation_->opening());
  Load_Lists();
  shell.changed("Transactions");
  frmRecReport report(shell, reconciled);
  if (shell.Run_Modal(report)) finish(true);
}

}  // namespace tallymere
