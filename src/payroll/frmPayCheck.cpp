#include "payroll/frmPayCheck.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <utility>

#include "core/values/format.h"
#include "payroll/chosen_items.h"
#include "payroll/posting.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace earning {
enum { Name, Rate, Hours };
}
namespace other {
enum { Item, Rate, Quantity, Type, Known };  // Known: not typed in here
}
namespace summary {
enum { Name, Amount, YTD, At };  // At: the row of the check
}

QLabel* heading(const char* text, QWidget* grid) {
  auto* label = new QLabel(QLatin1String(text));
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->setBuddy(grid);
  grid->setAccessibleName(QString::fromLatin1(text).remove(QLatin1Char('&')));
  return label;
}

QString hours_text(double hours) { return QString::number(hours, 'g', 8); }

/// The first two lines, and how many more there are.
QString note_text(const QStringList& lines) {
  QString text = lines.mid(0, 2).join(QLatin1Char('\n'));
  if (lines.size() > 2) text += QStringLiteral(" (and %1 more)").arg(lines.size() - 2);
  return text;
}

/// Code fills a grid; the cursor stays where it was.
template <typename Rows, typename Cells>
void fill_grid(SSDBGrid& grid, const Rows& rows, Cells&& cells) {
  const int row = grid.Row(), column = grid.Col();
  {
    const SSDBGrid::Fill fill(grid);
    grid.RemoveAll();
    for (const auto& each : rows) grid.AddItem(cells(each));
  }
  if (row >= 0) grid.set_cell(std::min(row, grid.rows()), std::max(column, 0));
}

}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmPayCheck::frmPayCheck(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmPayCheck"),
      entry_{.date = session.today(), .pay_end = session.today()},
      lists_(new DropDowns(session, this)),
      drpEarnings(new SSDBDropDown(this)),
      drpOthers(new SSDBDropDown(this)) {
  setWindowTitle(QStringLiteral("Create PayCheck"));
  build();
  connect_controls();
}

void frmPayCheck::build_grids() {
  grdEarnings = line_grid("grdEarnings",
                          {{.name = QStringLiteral("Name"), .list = drpEarnings, .list_only = true},
                           {.name = QStringLiteral("Rate"), .kind = Kind::number, .width = 12},
                           {.name = QStringLiteral("Hours"), .kind = Kind::number, .width = 9}},
                          QStringLiteral("Choose what is earned."));
  grdOtherItems = line_grid("grdOtherItems",
                            {{.name = QStringLiteral("Item"), .list = drpOthers, .list_only = true},
                             {.name = QStringLiteral("Rate"), .width = 10},
                             {.name = QStringLiteral("Quantity"), .kind = Kind::number, .width = 9},
                             {.name = QStringLiteral("Type"), .width = 14, .locked = true},
                             {.name = QStringLiteral("Known"), .kind = Kind::hidden}},
                            QStringLiteral("Additions, deductions and contributions."));
  const std::vector<GridColumn> amounts = {
      {.name = QStringLiteral("Name"), .locked = true},
      {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 12, .mask = "0.00"},
      {.name = QStringLiteral("YTD"), .kind = Kind::money, .width = 13, .locked = true, .mask = "0.00"},
      {.name = QStringLiteral("At"), .kind = Kind::hidden}};
  grdEmployee = line_grid("grdEmployee", amounts, QString());
  grdCompany = line_grid("grdCompany", amounts, QString());
  for (SSDBGrid* grid : {grdEmployee, grdCompany}) grid->set_new_line(false);
}

QLayout* frmPayCheck::build_head() {
  lblName = named("lblName", new QLabel);
  QFont bold = lblName->font();
  bold.setBold(true);
  lblName->setFont(bold);
  lblPayPeriodStart = named("lblPayPeriodStart", new QLabel);
  lblPayPeriodEnd = named("lblPayPeriodEnd", new QLabel);
  lblSick = named("lblSick", new QLabel);
  lblVac = named("lblVac", new QLabel);
  txtClass = named("txtClass", new ListCombo(shell, *lists_, Class_List, Grow_Unasked(Class_List)));
  txtClass->setMinimumWidth(18 * theme::unit);
  auto* row = row_layout();
  row->addWidget(lblName);
  row->addSpacing(2 * theme::margin);
  row->addWidget(new QLabel(QStringLiteral("Pay Period:")));
  row->addWidget(lblPayPeriodStart);
  row->addWidget(new QLabel(QStringLiteral("-")));
  row->addWidget(lblPayPeriodEnd);
  row->addSpacing(2 * theme::margin);
  row->addWidget(new QLabel(QStringLiteral("Sick Hours:")));
  row->addWidget(lblSick);
  row->addSpacing(theme::margin);
  row->addWidget(new QLabel(QStringLiteral("Vacation Hours:")));
  row->addWidget(lblVac);
  row->addStretch(1);
  row->addWidget(label_for(txtClass, QStringLiteral("C&lass:")));
  row->addWidget(txtClass);
  return row;
}

QLayout* frmPayCheck::build_foot() {
  lblTotal = named("lblTotal", new QLabel);
  QFont figures = theme::tabular(lblTotal->font());
  figures.setBold(true);
  lblTotal->setFont(figures);
  lblNotes = named("lblNotes", new QLabel);
  lblNotes->setWordWrap(true);
  auto* row = row_layout();
  row->addWidget(lblNotes, 1);
  row->addWidget(new QLabel(QStringLiteral("Net Pay:")), 0, Qt::AlignTop);
  row->addWidget(lblTotal, 0, Qt::AlignTop);
  return row;
}

void frmPayCheck::build() {
  build_grids();
  for (auto [name, label] : {std::pair{"lblSSNum", &lblSSNum},
                             {"lblNet", &lblNet},
                             {"lblRegSal", &lblRegSal},
                             {"lblYearEarnings", &lblYearEarnings},
                             {"lblFedHold", &lblFedHold},
                             {"lblMemo", &lblMemo}}) {
    *label = named(name, new QLabel(this));
    (*label)->hide();
  }
  cmdOk->setObjectName(QStringLiteral("cmdCreate"));
  cmdOk->setText(QStringLiteral("C&reate"));
  cmdOk->setToolTip(QStringLiteral("Writes the paycheck and closes"));
  cmdCancel = cancel_button();

  auto* grids = new QGridLayout;
  grids->setSpacing(theme::gap);
  grids->addWidget(heading("&Earnings", grdEarnings), 0, 0);
  grids->addWidget(grdEarnings, 1, 0);
  grids->addWidget(heading("Employee &Summary", grdEmployee), 0, 1);
  grids->addWidget(grdEmployee, 1, 1);
  grids->addWidget(heading("&Other Payroll Items", grdOtherItems), 2, 0);
  grids->addWidget(grdOtherItems, 3, 0);
  grids->addWidget(heading("Company S&ummary", grdCompany), 2, 1);
  grids->addWidget(grdCompany, 3, 1);
  for (const int row : {1, 3}) grids->setRowStretch(row, 1);
  for (const int column : {0, 1}) grids->setColumnStretch(column, 1);
  auto* column = column_layout(this);
  column->addLayout(build_head());
  column->addLayout(grids, 1);
  column->addLayout(build_foot());
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  QWidget* const order[] = {grdEarnings, grdOtherItems, grdEmployee, grdCompany, txtClass, cmdCancel, cmdOk};
  for (size_t at = 1; at < std::size(order); ++at) setTabOrder(order[at - 1], order[at]);
  setMinimumSize(112 * theme::unit, 56 * theme::unit);
}

void frmPayCheck::connect_controls() {
  // What leaving a grid sets off waits until the focus has arrived.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { watch_focus(now); });
  on(grdEarnings, &SSDBGrid::AfterColUpdate, "drpEarnings_AfterClick",
     [this](int row, int column) { drpEarnings_AfterClick(row, column); });
  on(grdOtherItems, &SSDBGrid::AfterColUpdate, "drpOthers_AfterClick",
     [this](int row, int column) { drpOthers_AfterClick(row, column); });
  on(grdOtherItems, &SSDBGrid::AfterUpdate, "grdOtherItems_AfterInsert",
     [this](int row) { grdOtherItems_AfterInsert(row); });
}

// --- opening -------------------------------------------------------------------------------------

void frmPayCheck::open(PaycheckEntry entry) {
  entry_ = std::move(entry);
  due_ = entry_.is_new();
}

void frmPayCheck::load() {
  lists_->fill();
  if (!entry_.facts.items) return;
  fill_lists();
  txtClass->set_text(entry_.Class);
  show_check();
  keep();
  grdEarnings->setFocus();
}

void frmPayCheck::take(const Request& request) {
  if (request.number == 0) return;
  auto entry = Open_Paycheck(session, request.number);
  if (!entry)
    throw store::Error(store::errors::no_current_record,
                       "There is no paycheck " + std::to_string(request.number) + " any more.");
  if (request.start) {
    entry->date = *request.start;
    entry->Number = request.key;
    if (!request.parent.empty()) entry->BankID = request.parent;
  }
  open(std::move(*entry));
  load();
}

/// Another user changed or deleted the paycheck.
void frmPayCheck::load_again() {
  auto entry = Open_Paycheck(session, entry_.TransNum);
  if (!entry) return discard();
  open(std::move(*entry));
  load();
}

void frmPayCheck::on_changed(const std::string& table) { lists_->changed(table); }

void frmPayCheck::fill_lists() {
  std::vector<SSDBDropDown::Item> wages, others;
  for (const PayItem& item : entry_.facts.items->all()) {
    if (item.type() == ItemType::Wage) wages.push_back({item.Name, {}});
    if (Is_Other_Item(item)) others.push_back({item.Name, {}});
  }
  std::ranges::sort(others, {}, &SSDBDropDown::Item::text);
  drpEarnings->set_items(wages);
  drpOthers->set_items(others);
}

// --- check to screen and back --------------------------------------------------------------------

void frmPayCheck::show_check() {
  const Paycheck& check = entry_.check;
  fill_grid(*grdEarnings, check.grdEarnings,
            [](const EarningRow& row) { return row.Name + "\t" + row.Rate + "\t" + row.Hours; });
  fill_grid(*grdOtherItems, check.grdOtherItems, [](const OtherItemRow& row) {
    return row.Item + "\t" + row.Rate + "\t" + row.Quantity + "\t" + row.Type + "\tYes";
  });
  for (auto [grid, rows] : {std::pair{grdEmployee, &check.grdEmployee}, {grdCompany, &check.grdCompany}})
    fill_grid(*grid, *rows, [at = 0](const SummaryRow& row) mutable {
      return row.Name + "\t" + row.Amount + "\t" + row.YTD + "\t" + std::to_string(at++);
    });
  show_labels();
  say_what_it_says();
}

void frmPayCheck::show_labels() {
  const Paycheck& check = entry_.check;
  const std::pair<QLabel*, std::string> texts[] = {{lblName, entry_.facts.employee.Name},
                                                   {lblSSNum, entry_.facts.employee.SSNum},
                                                   {lblPayPeriodStart, entry_.period.start},
                                                   {lblPayPeriodEnd, entry_.period.end},
                                                   {lblNet, check.lblNet.to_text()},
                                                   {lblYearEarnings, check.lblYearEarnings.to_text()},
                                                   {lblRegSal, check.lblRegSal.to_text()},
                                                   {lblFedHold, check.lblFedHold.text()},
                                                   {lblMemo, check.lblMemo},
                                                   {lblTotal, Format(check.lblTotal, "$0.00")}};
  for (const auto& [label, text] : texts) label->setText(qt(text));
  lblSick->setText(hours_text(check.lblSick));
  lblVac->setText(hours_text(check.lblVac));
}

/// Each box once; what stays true stands below the grids.
void frmPayCheck::say_what_it_says() {
  QStringList lines;
  const std::vector<Box> boxes = entry_.check.boxes;
  for (const auto& notes : {entry_.check.notes, Off_Balance_Lines(entry_)})
    for (const std::string& note : notes) lines.append(qt(note));
  for (const Box& box : boxes) {
    lines.append(qt(box.text));
    if (std::ranges::find(said_, box.text) != said_.end()) continue;
    said_.push_back(box.text);
    session.prompts.box(box);
  }
  lblNotes->setText(note_text(lines));
  lblNotes->setToolTip(lines.join(QLatin1Char('\n')));
}

Paycheck frmPayCheck::read() const {
  Paycheck check = entry_.check;
  check.grdEarnings.clear();
  for (int row = 0; row < grdEarnings->rows(); ++row)
    if (std::string name = grdEarnings->text(row, earning::Name); !name.empty())
      check.grdEarnings.push_back(
          {std::move(name), grdEarnings->text(row, earning::Rate), grdEarnings->text(row, earning::Hours)});
  check.grdOtherItems.clear();
  for (int row = 0; row < grdOtherItems->rows(); ++row)
    if (std::string name = grdOtherItems->text(row, other::Item); !name.empty())
      check.grdOtherItems.push_back({std::move(name), grdOtherItems->text(row, other::Rate),
                                     grdOtherItems->text(row, other::Quantity), grdOtherItems->text(row, other::Type)});
  for (auto [grid, rows] : {std::pair{grdEmployee, &check.grdEmployee}, {grdCompany, &check.grdCompany}}) {
    const std::vector<SummaryRow> before = std::exchange(*rows, {});
    for (int row = 0; row < grid->rows(); ++row) {
      rows->push_back(before.at(std::stoul(grid->text(row, summary::At))));
      const std::string typed = grid->text(row, summary::Amount);
      if (typed != rows->back().Amount) rows->back().Amount = typed.empty() ? "" : First_Number(typed).cell();
    }
  }
  return check;
}

// --- what leaving a grid sets off ----------------------------------------------------------------

SSDBGrid* frmPayCheck::grid_of(QWidget* widget) const {
  for (; widget; widget = widget->parentWidget())
    for (SSDBGrid* grid : {grdEarnings, grdOtherItems, grdEmployee, grdCompany})
      if (widget == grid) return grid;
  return nullptr;
}

void frmPayCheck::watch_focus(QWidget* now) {
  if (!now || now->window() != window()) return;
  SSDBGrid* here = grid_of(now);
  SSDBGrid* left = std::exchange(entered_, here);
  if (!left || left == here) return;
  QMetaObject::invokeMethod(
      this, [this, left] { guard((utf8(left->objectName()) + "_LostFocus").c_str(), [this] { settle(); }); },
      Qt::QueuedConnection);
}

bool frmPayCheck::commit_grids() {
  return std::ranges::all_of(std::array{grdEarnings, grdOtherItems, grdEmployee, grdCompany},
                             [](SSDBGrid* grid) { return grid->commit(); });
}

/// Brings the check up to date with its cells. What was changed by hand in a summary stays until something in the earnings
/// or other items changes. false: a row cannot be left as it is.
bool frmPayCheck::settle() {
  if (!commit_grids()) return false;
  Paycheck now = read();
  const Paycheck& shown = entry_.check;
  const bool untouched = !changed();
  if (due_ || now.grdEarnings != shown.grdEarnings || now.grdOtherItems != shown.grdOtherItems)
    Calculate(now, entry_.facts);
  else if (now.grdEmployee != shown.grdEmployee || now.grdCompany != shown.grdCompany)
    Calc_Balance(now, entry_.facts);
  else
    return true;
  const bool first = std::exchange(due_, false);
  entry_.check = std::move(now);
  show_check();
  if (first && untouched) keep();  // nobody has typed anything yet
  return true;
}

void frmPayCheck::drpEarnings_AfterClick(int row, int column) {
  if (column != earning::Name) return;
  const EarningRow chosen = Chosen_Wage(entry_.facts, grdEarnings->text(row, earning::Name));
  grdEarnings->set_text(row, earning::Rate, chosen.Rate);
  grdEarnings->set_text(row, earning::Hours, chosen.Hours);
}

void frmPayCheck::drpOthers_AfterClick(int row, int column) {
  if (column != other::Item) return;
  const OtherItemRow chosen = Chosen_Item(entry_.facts, grdOtherItems->text(row, other::Item));
  grdOtherItems->set_text(row, other::Rate, chosen.Rate);
  grdOtherItems->set_text(row, other::Type, chosen.Type);
}

void frmPayCheck::grdOtherItems_AfterInsert(int row) {
  const std::string item = grdOtherItems->text(row, other::Item);
  if (item.empty() || !grdOtherItems->text(row, other::Known).empty()) return;
  grdOtherItems->set_text(row, other::Known, "Yes");
  if (!Is_Missing_From_Upcoming(*session.dbCompany, entry_.facts.employee, item)) return;
  if (session.prompts.ask({"Do you want this Item to appear on Upcoming Pay Checks?", "Update", Icon::Question, item}))
    Add_To_Upcoming(session, entry_.facts, item);
}

// --- posting -------------------------------------------------------------------------------------

bool frmPayCheck::enter() {
  txtClass->settle();
  if (!settle()) return false;
  entry_.Class = txtClass->text();
  const PostResult result = Post_Paycheck(session, entry_);
  if (result.ok()) session.prompts.sound(stapler);
  return conclude({result.fault, result.conflict, result.ok()});
}

}  // namespace tallymere
