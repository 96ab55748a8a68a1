#include "entry/find/frmFind.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { Type, Date, Name, Category, Amount, TransNum };
}

/// The inputs, one of which shows.
enum { NameInput, DateInput, TextInput };

constexpr const char* ways[] = {"&Name", "&Date", "&Amount", "N&umber", "&Memo"};  // in the order of FindBy

QWidget* in_a_row(std::initializer_list<QWidget*> widgets) {
  auto* box = new QWidget;
  QHBoxLayout* row = row_layout();
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) row->addWidget(widget);
  row->addStretch();
  box->setLayout(row);
  return box;
}

}  // namespace

frmFind::frmFind(Shell& shell_of_frame) : Form(shell_of_frame, "frmFind"), lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Find Transaction"));
  optFind = new QButtonGroup(this);
  optFind->setObjectName(QStringLiteral("optFind"));
  SSDBGrid1 = named("SSDBGrid1", new SSDBGrid);
  cmdFind = named("cmdFind", new QPushButton(QStringLiteral("&Find")));
  cmdGoto = named("cmdGoto", new QPushButton(QStringLiteral("&Go To Transaction")));
  cmdExit = named("cmdExit", new QPushButton(QStringLiteral("E&xit")));
  build();
  on(optFind, &QButtonGroup::idClicked, "optFind_Click", [this] { optFind_Click(); });
  on(cmdFind, "cmdFind_AfterClick", [this] { cmdFind_AfterClick(); });
  on(cmdGoto, "cmdGoto_AfterClick", [this] { cmdGoto_AfterClick(); });
  on(cmdExit, "cmdExit_AfterClick", [this] { finish(false); });
  on(SSDBGrid1, &SSDBGrid::DblClick, "SSDBGrid1_DblClick", [this] { cmdGoto_AfterClick(); });
}

void frmFind::build() {
  auto* frame = new QGroupBox(QStringLiteral("Find:"));
  auto* options = row_layout();
  frame->setLayout(options);
  for (int way = 0; way < static_cast<int>(std::size(ways)); ++way) {
    auto* option = named(("optFind_" + std::to_string(way)).c_str(), new QRadioButton(QLatin1String(ways[way])));
    optFind->addButton(option, way);
    options->addWidget(option);
  }
  options->addStretch();
  optFind->button(0)->setChecked(true);

  inputs_ = new QStackedWidget;
  inputs_->addWidget(name_input());
  inputs_->addWidget(date_input());
  inputs_->addWidget(text_input());
  inputs_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

  SSDBGrid1->setAccessibleName(QStringLiteral("Transactions found"));
  SSDBGrid1->set_columns({{.name = QStringLiteral("Type"), .width = 14},
                          {.name = QStringLiteral("Date"), .kind = Kind::date, .width = 11},
                          {.name = QStringLiteral("Name")},
                          {.name = QStringLiteral("Category")},
                          {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 13},
                          {.name = QStringLiteral("TransNum"), .kind = Kind::hidden}});
  SSDBGrid1->set_sorting(true);

  auto* input_row = row_layout();
  input_row->addWidget(inputs_, 1);
  input_row->addWidget(cmdFind);
  auto* column = column_layout(this);
  column->addWidget(frame);
  column->addLayout(input_row);
  column->addWidget(SSDBGrid1, 1);
  column->addLayout(plain_button_row({cmdGoto}, {cmdExit}));
  setMinimumSize(80 * theme::unit, 56 * theme::unit);
}

QWidget* frmFind::name_input() {
  cmbVen = named("cmbVen", new SSDBCombo);
  cmbVen->setAccessibleName(QStringLiteral("Name"));
  cmbVen->set_list(lists_->drpCustomers);
  cmbVen->setMinimumWidth(40 * theme::unit);
  return in_a_row({cmbVen});
}

QWidget* frmFind::date_input() {
  QuillbrookDatePick1 = named("QuillbrookDatePick1", new QuillbrookDatePick);
  QuillbrookDatePick1->setAccessibleName(QStringLiteral("Date"));
  QuillbrookDatePick2 = named("QuillbrookDatePick2", new QuillbrookDatePick);
  QuillbrookDatePick2->allow_blank(true);
  QuillbrookDatePick2->setAccessibleName(QStringLiteral("To this date"));
  return in_a_row({QuillbrookDatePick1, new QLabel(QStringLiteral("to")), QuillbrookDatePick2});
}

QWidget* frmFind::text_input() {
  txtNumber = named("txtNumber", new QLineEdit);
  txtNumberTo = named("txtNumberTo", new QLineEdit);
  txtNumberTo->setAccessibleName(QStringLiteral("To this amount"));
  to_ = new QLabel(QStringLiteral("to"));
  return in_a_row({txtNumber, to_, txtNumberTo});
}

void frmFind::load() {
  lists_->changed("Vendors");
  QuillbrookDatePick1->set_value(session.today());
  QuillbrookDatePick2->set_value({});
  SSDBGrid1->set_empty_hint(QStringLiteral("Say what to look for, then Find."));
}

void frmFind::take(const Request&) { optFind_Click(); }

/// The list follows the ledger: what was changed or deleted elsewhere does not stand here as it was.
void frmFind::on_changed(const std::string& table) {
  lists_->changed(table);
  if ((table == "Transactions" || table == "Accounts") && found_by_) {
    const int row = SSDBGrid1->Row();
    show_found(Find_Transactions(session, *found_by_));
    SSDBGrid1->set_Row(std::min(row, SSDBGrid1->rows() - 1));
  }
}

/// Shows the one input that fits.
void frmFind::optFind_Click() {
  const auto by = static_cast<FindBy>(optFind->checkedId());
  const bool amount = by == FindBy::Amount;
  inputs_->setCurrentIndex(by == FindBy::Name ? NameInput : by == FindBy::Date ? DateInput : TextInput);
  to_->setVisible(amount);
  txtNumberTo->setVisible(amount);
  txtNumber->setAccessibleName(amount               ? QStringLiteral("Amount")
                               : by == FindBy::Memo ? QStringLiteral("Part of the memo")
                                                    : QStringLiteral("Number"));
  QWidget* const firsts[] = {cmbVen, QuillbrookDatePick1, txtNumber};
  go_to(firsts[inputs_->currentIndex()]);
}

FindRequest frmFind::request() const {
  FindRequest request{.by = static_cast<FindBy>(optFind->checkedId())};
  if (request.by == FindBy::Name) {
    request.text = cmbVen->text();
  } else if (request.by == FindBy::Date) {
    request.date = QuillbrookDatePick1->value();
    request.date_to = QuillbrookDatePick2->maybe_value();
  } else {
    request.text = utf8(txtNumber->text());
    if (request.by == FindBy::Amount) request.text_to = utf8(txtNumberTo->text());
  }
  return request;
}

void frmFind::cmdFind_AfterClick() {
  const FindRequest wanted = request();
  if (const auto fault = Check_Find(wanted)) return show_fault(*fault);
  const Hourglass hourglass(session.prompts);
  const auto found = Find_Transactions(session, wanted);
  found_by_ = wanted;
  show_found(found);
  if (found.empty()) return session.prompts.box({"No Transactions Found", "No Find"});
  SSDBGrid1->set_Row(0);
  SSDBGrid1->setFocus();
}

void frmFind::show_found(const std::vector<FoundRow>& found) {
  const SSDBGrid::Fill fill(*SSDBGrid1);
  SSDBGrid1->RemoveAll();
  for (const FoundRow& row : found)
    SSDBGrid1->AddValues({row.Type, row.Date ? store::Value(*row.Date) : store::Value(), row.Name, row.Category,
                          row.Amount, row.TransNum});
}

void frmFind::cmdGoto_AfterClick() {
  const int row = SSDBGrid1->Row();
  if (row < 0 || row >= SSDBGrid1->rows()) return;
  const Hourglass hourglass(session.prompts);
  shell.Go_To_Transaction(SSDBGrid1->text(row, column::Type), SSDBGrid1->value(row, column::TransNum).integer());
}

}  // namespace tallymere
