#include "reports/budget/frmBudget.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "core/ledger/category_list.h"
#include "core/values/format.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr struct {
  const char *name, *label;
} month_boxes[] = {{"txtJan", "January"},   {"txtFeb", "February"}, {"txtMar", "March"},    {"txtApr", "April"},
                   {"txtMay", "May"},       {"txtJun", "June"},     {"txtJul", "July"},     {"txtAug", "August"},
                   {"txtSep", "September"}, {"txtOct", "October"},  {"txtNov", "November"}, {"txtDec", "December"}};

/// The months in two columns of six, each under its captions.
QHBoxLayout* month_columns(const std::array<MoneyEdit*, months_of_a_year>& boxes) {
  auto* columns = row_layout();
  for (size_t half = 0; half < 2; ++half) {
    auto* form = form_layout();
    form->addRow(QStringLiteral("Month"), new QLabel(QStringLiteral("Budget Amount")));
    for (size_t at = half * 6; at < half * 6 + 6; ++at)
      add_field(form, QLatin1String(month_boxes[at].label), boxes[at]);
    columns->addLayout(form);
    if (half == 0) columns->addSpacing(2 * theme::gap);
  }
  return columns;
}

}  // namespace

frmBudget::frmBudget(Shell& shell_of_frame) : Form(shell_of_frame, "frmBudget"), year_(session.today().year()) {
  setWindowTitle(QStringLiteral("Set up Budget"));
  build();
  on(cmbCat, &SSDBCombo::CloseUp, "cmbCat_Click", [this] { cmbCat_Click(); });
  on(cmbCat, &SSDBCombo::LostFocus, "cmbCat_Click", [this] { cmbCat_Click(); });
  on(dteYear, &QuillbrookDatePick::Change, "dteYear_Change", [this] { dteYear_Change(); });
  on(cmdFill, "cmdFill_AfterClick", [this] { cmdFill_AfterClick(); });
  on(cmdActual, "cmdActual_AfterClick", [this] { cmdActual_AfterClick(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { close(); });
}

void frmBudget::build() {
  dteYear = named("dteYear", new QuillbrookDatePick);
  cmbCat = named("cmbCat", new SSDBCombo);
  cmbCat->setMinimumWidth(36 * theme::unit);
  cmbCat->set_list_only(true);
  cmbCat->set_columns({{.name = QStringLiteral("AccountName")}, {.name = QStringLiteral("Type")}});
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  for (size_t at = 0; at < months_.size(); ++at) {
    months_[at] = named(month_boxes[at].name, new MoneyEdit);
    months_[at]->set_mask(std::string(dollar_mask));
  }
  cmdFill = named("cmdFill", new QPushButton(QStringLiteral("&Fill Down")));
  cmdActual = named("cmdActual", new QPushButton(QStringLiteral("From &Last Year")));
  cmdActual->setToolTip(QStringLiteral("What the ledger shows for the year before, and a percentage more or less."));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* head = form_layout();
  add_field(head, QStringLiteral("Budget &Year"), dteYear);
  add_field(head, QStringLiteral("C&ategory"), cmbCat);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addSpacing(theme::gap);
  column->addLayout(month_columns(months_));
  column->addStretch(1);
  column->addLayout(button_row({cmdFill, cmdActual}, {cmdCancel, cmdOk}));
}

void frmBudget::load() {
  dteYear->set_value(Date(year_, 1, 1));
  on_changed("Accounts");
  Load_List();
}

void frmBudget::on_changed(const std::string& table) {
  if (table == "Budget" && !is_typed()) Load_List();
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> items;
  for (const CategoryRow& row : Make_Expense_List(*session.dbCompany))
    items.push_back({Indented(row.AccountName, row.level) + "\t" + row.AccountType, row.CatID});
  cmbCat->list().set_items(items);
}

/// Another category or year comes up; what was typed for the present one is asked about first.
void frmBudget::cmbCat_Click() {
  if (cmbCat->id() == CatID_) return;
  if (!typed_may_go()) {
    cmbCat->set_id(CatID_);
    return;
  }
  CatID_ = cmbCat->id();
  lblBankID->setText(qt(CatID_));
  Load_List();
}

void frmBudget::dteYear_Change() {
  const int wanted = dteYear->value().year();
  if (wanted == year_) return;
  if (!typed_may_go()) return dteYear->set_value(Date(year_, 1, 1));
  year_ = wanted;
  Load_List();
}

void frmBudget::Load_List() {
  loaded_ = CatID_.empty() ? Budget_Amounts() : Load_Budget(*session.dbCompany, CatID_, year_);
  show_amounts(loaded_);
  shown_ = read();
}

void frmBudget::show_amounts(const Budget_Amounts& amounts) {
  for (size_t at = 0; at < months_.size(); ++at) months_[at]->set_amount(amounts[at]);
}

Budget_Amounts frmBudget::read() const {
  Budget_Amounts amounts;
  for (size_t at = 0; at < months_.size(); ++at) amounts[at] = months_[at]->amount();
  return amounts;
}

bool frmBudget::typed_may_go() {
  if (!is_typed()) return true;
  const Box question{
      "Do you wish to record your changes?", "Save Changes", Icon::Question,
      CatID_.empty() ? "" : cmbCat->list().text(cmbCat->list().find_id(CatID_)) + ", " + std::to_string(year_)};
  const std::optional<bool> wanted = session.prompts.ask_or_stay(question);
  if (!wanted) return false;
  return !*wanted || save();
}

bool frmBudget::may_close() { return typed_may_go(); }

/// What cannot be read as an amount is never stored as nothing.
bool frmBudget::save() {
  if (CatID_.empty()) {
    show_fault({{"Select a Category to Budget", "", Icon::None}, "cmbCat"});
    return false;
  }
  for (MoneyEdit* box : months_)
    if (!box->text().trimmed().isEmpty() && !box->amount()) {
      show_fault(
          {{"Please enter an amount.", "No Amount", Icon::Information, utf8(box->text())}, utf8(box->objectName())});
      return false;
    }
  Budget_Amounts amounts = read();
  for (size_t at = 0; at < amounts.size(); ++at)
    if (amounts[at] == shown_[at]) amounts[at] = loaded_[at];  // what is kept may be finer than what is shown
  const bool saved = guard("cmdOk_AfterClick", [&] { Save_Budget(session, CatID_, year_, loaded_, amounts); });
  if (!saved) return false;
  Load_List();
  shell.changed("Budget");
  return true;
}

void frmBudget::cmdOk_AfterClick() {
  if (!save()) return;
  shell.say("The budget of " + std::to_string(year_) + " is saved.");
  cmbCat->setFocus();
}

void frmBudget::cmdFill_AfterClick() {
  for (MoneyEdit* box : months_)
    if (box != months_.front()) box->setText(months_.front()->text());
}

void frmBudget::cmdActual_AfterClick() {
  if (CatID_.empty()) return show_fault({{"Select a Category to Budget", "", Icon::None}, "cmbCat"});
  const auto typed = session.prompts.input(
      "From Last Year", "How many percent more than in " + std::to_string(year_ - 1) + "? Less with a minus.");
  if (!typed) return;
  bool is_number = false;
  const double percent = qt(*typed).remove(u'%').trimmed().toDouble(&is_number);
  if (!is_number && !qt(*typed).trimmed().isEmpty())
    return session.prompts.box({"Please enter a number.", "From Last Year", Icon::Information, *typed});
  show_amounts(Budget_From_Actual(*session.dbCompany, CatID_, year_, percent));
}

}  // namespace tallymere
