#include "reports/frame/ReportForm.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedLayout>

#include "core/store/error.h"
#include "core/values/date_range.h"
#include "core/values/text.h"
#include "reports/frame/widest_texts.h"
#include "reports/saved/saved_reports.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"
#include "shell/widgets/window_memory.h"

/// The window and its way from a request to a report on show; what becomes of it then is in
/// ReportForm_output.cpp.
namespace tallymere {

namespace {

constexpr const char* own_dates = "Custom";
constexpr int rows_looked_at = 400;  ///< for the widths of columns
constexpr int widest_column = 40 * theme::unit, narrowest_text = 8 * theme::unit;

QLabel* heading_label(double size, bool bold) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignHCenter);
  label->setWordWrap(true);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  return label;
}

QPalette paper_of(const QWidget& widget) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, palette.color(QPalette::Base));
  return palette;
}

}  // namespace

ReportForm::ReportForm(Shell& shell_of_frame, const char* name)
    : Form(shell_of_frame, name), request_{.key = {}, .from = session.today(), .to = session.today()} {
  auto* left = column_layout();
  left->addWidget(build_bar());
  left->addWidget(build_sheet(), 1);
  auto* all = row_layout();
  all->addLayout(left, 1);
  all->addSpacing(theme::gap);
  all->addLayout(build_buttons());
  column_layout(this)->addLayout(all);
  connect_controls();
}

// --- building the window

QWidget* ReportForm::build_bar() {
  bar_ = new QWidget;
  auto* row = row_layout();
  bar_->setLayout(row);
  cmbDate = named("cmbDate", new QComboBox);
  for (const std::string_view preset : Date_Range_Names) cmbDate->addItem(qt(std::string(preset)));
  cmbDate->addItem(QLatin1String(own_dates));
  cmbDate->setAccessibleName(QStringLiteral("Dates to Show"));
  dteStart = named("dteStart", new QuillbrookDatePick);
  dteEnd = named("dteEnd", new QuillbrookDatePick);
  lblStart = label_for(dteStart, QStringLiteral("Start Date"));
  lblEnd = label_for(dteEnd, QStringLiteral("End Date"));
  lblBasis = new QLabel(QStringLiteral("Basis:"));
  optBasis = new QButtonGroup(this);
  optBasis->setObjectName(QStringLiteral("optBasis"));
  for (QWidget* control : std::initializer_list<QWidget*>{cmbDate, lblStart, dteStart, lblEnd, dteEnd})
    row->addWidget(control);
  row->addSpacing(theme::margin);
  row->addWidget(lblBasis);
  int index = 0;
  for (const char* caption : {"Cash", "Accrual"}) {
    auto* option = new QRadioButton(QLatin1String(caption));
    option->setObjectName(QStringLiteral("optBasis_%1").arg(index));
    optBasis->addButton(option, index++);
    row->addWidget(option);
  }
  row->addStretch(1);
  return bar_;
}

/// Heading and columns stand on one sheet of paper, no wider than they need.
QWidget* ReportForm::build_sheet() {
  sheet_ = new QFrame;
  static_cast<QFrame*>(sheet_)->setFrameShape(QFrame::StyledPanel);
  sheet_->setAutoFillBackground(true);
  sheet_->setPalette(paper_of(*sheet_));
  Label6 = named("Label6", heading_label(1.5, true));
  Label5 = named("Label5", heading_label(1.1, false));
  Label4 = named("Label4", heading_label(1, false));
  grdPL = named("grdPL", new SSDBGrid);
  grdPL->setFrameShape(QFrame::NoFrame);
  grdPL->setShowGrid(false);
  grdPL->set_multi_select(true);
  grdPL->set_empty_hint(QStringLiteral("There is nothing to report for these dates."));
  grdPL->define_style("sBold", {.bold = true, .rule = true});
  grdPL->define_style("Bold", {.bold = true, .rule = true, .size = 14});
  auto* column = column_layout();
  column->setContentsMargins(0, theme::margin, 0, 0);
  column->setSpacing(theme::gap / 4);
  for (QLabel* label : {Label6, Label5, Label4}) column->addWidget(label);
  column->addSpacing(theme::gap);
  shown_ = new QStackedLayout;
  shown_->addWidget(grdPL);
  column->addLayout(shown_, 1);
  sheet_->setLayout(column);
  auto* middle = new QWidget;
  auto* centred = row_layout();
  centred->addStretch(1);
  centred->addWidget(sheet_, 1000);
  centred->addStretch(1);
  middle->setLayout(centred);
  return middle;
}

QPushButton* ReportForm::button(const char* name, const char* caption) {
  auto* made = named(name, new QPushButton(QLatin1String(caption)));
  buttons_->addWidget(made);
  return made;
}

QVBoxLayout* ReportForm::build_buttons() {
  buttons_ = column_layout();
  cmdRefresh = button("cmdRefresh", "&Refresh");
  cmdPrint = button("cmdPrint", "&Print");
  cmdLabel = button("cmdLabel", "&Change Title");
  cmdGoto = button("cmdGoto", "&Go to");
  cmdPick = button("cmdPick", "Pick &Fields");
  extra_button_at_ = buttons_->count();
  cmdExport = button("cmdExport", "E&xport");
  buttons_->addStretch(1);
  cmdClose = button("cmdClose", "&Close");
  cmdRefresh->setToolTip(QStringLiteral("F5"));
  return buttons_;
}

void ReportForm::add_button(QPushButton* added) {
  QWidget* before = buttons_->itemAt(extra_button_at_ - 1)->widget();
  buttons_->insertWidget(extra_button_at_++, added);
  setTabOrder(before, added);
}

void ReportForm::connect_controls() {
  on(cmdRefresh, "cmdRefresh_AfterClick", [this] {
    read_controls();
    Load_Standard();
  });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdLabel, "cmdLabel_AfterClick", [this] { cmdLabel_AfterClick(); });
  on(cmdGoto, "cmdGoto_AfterClick", [this] { cmdGoto_AfterClick(); });
  on(cmdPick, "cmdPick_AfterClick", [this] { cmdPick_AfterClick(); });
  on(cmdExport, "cmdExport_AfterClick", [this] { cmdExport_AfterClick(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
  on(grdPL, &SSDBGrid::DblClick, "grdPL_DblClick", [this] { cmdGoto_AfterClick(); });
  on(cmbDate, &QComboBox::activated, "cmbDate_Click", [this] { cmbDate_Click(); });
  for (QuillbrookDatePick* date : {dteStart, dteEnd})
    on(date, &QuillbrookDatePick::Change, "dteStart_Change", [this] { changed_by_user(); });
  on(optBasis, &QButtonGroup::idClicked, "optBasis_Click", [this] { changed_by_user(); });
  auto* refresh = new QShortcut(QKeySequence::Refresh, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(refresh, &QShortcut::activated, cmdRefresh, &QPushButton::click);
  auto* copies = new QShortcut(QKeySequence::Copy, grdPL, nullptr, nullptr, Qt::WidgetShortcut);
  on(copies, &QShortcut::activated, "grdPL_KeyDown", [this] { copy(); });
}

/// A report of many columns comes up as wide as they are, where the frame has that room.
QSize ReportForm::sizeHint() const {
  if (const auto left = window_memory::size_of(objectName())) return *left;
  const int wanted = grdPL->natural_width() + buttons_->sizeHint().width() + 7 * theme::unit;
  return Form::sizeHint().expandedTo({std::clamp(wanted, 120 * theme::unit, 180 * theme::unit), 76 * theme::unit});
}

void ReportForm::show_instead_of_grid(QWidget* other) {
  if (other && shown_->indexOf(other) < 0) shown_->addWidget(other);
  shown_->setCurrentWidget(other ? other : grdPL);
  cmdGoto->setEnabled(!other);
  cmdPick->setEnabled(!other);
  fit_sheet();
}

/// Light paper turns dark with the desktop.
void ReportForm::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && sheet_) sheet_->setPalette(paper_of(*this));
}

void ReportForm::fit_sheet() {
  const bool grid = shown_->currentWidget() == grdPL;
  const int least = 64 * theme::unit;
  sheet_->setMaximumWidth(grid ? std::max(grdPL->natural_width() * 3 / 2, least) : QWIDGETSIZE_MAX);
}

// --- the request

void ReportForm::load() { setWindowTitle(QStringLiteral("Report")); }

void ReportForm::take(const Request& asked) {
  begin_report(asked);
  show_request();
  Load_Standard();
  grdPL->setFocus();
}

/// Asked for again under the same key, the window keeps its dates. Without any report it does not come up.
void ReportForm::begin_report(const Request& asked) {
  const ReportDef* report = Find_Report(utf8(objectName()), asked.key);
  if (!report) {
    if (!report_) finish(false);
    throw store::Error(store::errors::no_such_field, "There is no report \"" + asked.key + "\" here.");
  }
  if (report != report_ || asked.start || asked.end || !asked.columns.empty()) {
    report_ = report;
    request_ = Default_Request(session, report->key);
    hidden_.clear();
  }
  take_options(asked);
}

void ReportForm::take_options(const Request& asked) {
  request_.from = asked.start.value_or(request_.from);
  request_.to = asked.end.value_or(request_.to);
  const auto set = [&](std::string_view option, const std::string& value) {
    if (!option.empty() && report_->takes(option) && !value.empty())
      request_.options.insert_or_assign(std::string(option), value);
  };
  set(report_option::fields, asked.columns);
  set(Subject_Option(*report_), asked.parent);
}

void ReportForm::show_request() {
  dteStart->set_value(request_.from);
  dteEnd->set_value(request_.to);
  show_preset();
  optBasis->button(static_cast<int>(request_.basis))->setChecked(true);
  const bool period = report_->start != ReportDef::Start::None;
  for (QWidget* control : std::initializer_list<QWidget*>{lblStart, dteStart, cmbDate}) control->setVisible(period);
  lblBasis->setVisible(report_->has_basis);
  for (QAbstractButton* option : optBasis->buttons()) option->setVisible(report_->has_basis);
}

void ReportForm::read_controls() {
  request_.from = dteStart->value();
  request_.to = dteEnd->value();
  request_.basis = static_cast<Basis>(optBasis->checkedId());
}

/// Dates that are those of a preset show its name, however they came there.
void ReportForm::show_preset() {
  const DateRange shown{request_.from, request_.to};
  const auto preset = std::find_if(Date_Range_Names.begin(), Date_Range_Names.end(), [&](std::string_view name) {
    return Get_Date_Range(name, session.today()) == shown;
  });
  cmbDate->setCurrentText(preset == Date_Range_Names.end() ? QLatin1String(own_dates) : qt(std::string(*preset)));
}

/// A date or the basis was changed: the report follows at once.
void ReportForm::changed_by_user() {
  read_controls();
  if (report_->start != ReportDef::Start::None && request_.from > request_.to)
    shell.say("The start date is after the end date: no day lies between them.");
  show_preset();
  Load_Standard();
}

void ReportForm::cmbDate_Click() {
  if (cmbDate->currentText() == QLatin1String(own_dates)) return dteStart->setFocus();
  const DateRange days = Get_Date_Range(utf8(cmbDate->currentText()), session.today());
  request_.from = days.start;
  request_.to = days.end;
  show_request();
  Load_Standard();
}

// --- showing the table

void ReportForm::Load_Standard() {
  if (building_) return;
  const QScopedValueRollback building(building_, true);
  guard("Load_Standard", [this] { build(); });
}

void ReportForm::build() {
  const Hourglass hourglass(session.prompts);
  ReportTable built = Build_Report(session, request_);
  if (!hidden_.empty()) {
    std::vector<bool> keep;
    for (const ReportColumn& column : built.columns) keep.push_back(!hidden_.contains(column.caption));
    built = Pick_Columns(built, keep);
  }
  table_ = std::move(built);
  show_table();
  after_load();
  if (!table_.notice.empty()) session.prompts.box({table_.notice, table_.heading.title, Icon::Information});
}

void ReportForm::show_table() {
  show_heading();
  show_columns();
  cmdGoto->setVisible(table_.go_to != ReportTable::GoTo::Nowhere);
  cmdPick->setVisible(report_->takes(report_option::fields) || !hidden_.empty() || table_.columns.size() > 5);
  grdPL->set_rows(table_.rows(), [this](int row) {
    std::string text;
    for (size_t column = 0; column < table_.columns.size(); ++column) {
      const bool amount = grdPL->column(static_cast<int>(column)).kind == Kind::money;
      std::string cell =
          amount ? table_.text(row, static_cast<int>(column)) : table_.for_the_eye(row, static_cast<int>(column));
      std::replace_if(
          cell.begin(), cell.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
      text += (column ? "\t" : "") + cell;
    }
    return GridRow{std::move(text), std::string(table_.style(row))};
  });
  show_labels();
  show_widths();
}

/// A label runs on over the empty cells after it, as it does on paper; beyond the first rows of a long list
/// that is for heads and totals only.
void ReportForm::show_labels() {
  constexpr int most_rows = 20000;
  grdPL->clearSpans();
  const int label = Label_Column(table_);
  for (int row = 0; row < table_.rows(); ++row) {
    const bool plain = table_.style(row).empty() || table_.style(row) == "Small";
    if (row >= most_rows && plain) continue;
    if (const int span = Label_Span(table_, row); span > 1) grdPL->setSpan(row, label, 1, span);
  }
}

void ReportForm::show_heading() {
  setWindowTitle(qt(table_.heading.title));
  Label6->setText(qt(table_.heading.title));
  Label5->setText(qt(table_.heading.company));
  Label4->setText(qt(table_.heading.period));
  grdPL->setAccessibleDescription(qt(table_.heading.caption()));
}

/// Columns as they were keep the widths the user gave them.
void ReportForm::show_columns() {
  std::vector<GridColumn> columns;
  for (const ReportColumn& column : table_.columns) {
    const bool amount = column.kind == ReportColumn::Kind::Money && column.right;
    columns.push_back({.name = qt(column.caption),
                       .kind = amount         ? Kind::money
                               : column.right ? Kind::number
                                              : Kind::text,
                       .mask = column.mask});
  }
  bool same = static_cast<int>(columns.size()) == grdPL->columns();
  for (int at = 0; same && at < grdPL->columns(); ++at)
    same = grdPL->column(at).name == columns[static_cast<size_t>(at)].name &&
           grdPL->column(at).kind == columns[static_cast<size_t>(at)].kind;
  if (same) return;
  grdPL->set_columns(std::move(columns));
  std::vector<GridGroup> groups;
  for (const ReportGroup& group : table_.groups) groups.push_back({qt(group.caption), group.first, group.count});
  grdPL->set_groups(std::move(groups));
  grdPL->setAlternatingRowColors(table_.columns.size() > 4);
}

/// Texts give way where room is short, amounts never.
void ReportForm::show_widths() {
  const std::vector<int> decimals = Most_Decimals(table_);
  grdPL->set_decimals(decimals);
  grdPL->set_frozen_columns(Label_Column(table_) + 1);
  std::map<std::string, QFontMetrics> looks;
  const auto width_of = [&](const StyledText& text) {
    QFont font = theme::tabular(grdPL->font());
    font.setBold(text.style == "Bold" || text.style == "sBold");
    if (text.style == "Bold") font.setPointSizeF(14);
    return looks.try_emplace(text.style, font).first->second.horizontalAdvance(qt(text.text));
  };
  const auto texts = Widest_Texts(table_, rows_looked_at);
  std::vector<int> natural, least;
  for (size_t column = 0; column < texts.size(); ++column) {
    const ReportColumn& how = table_.columns[column];
    const int head = width_of({how.caption, "sBold"});
    int width = head;
    for (const StyledText& text : texts[column]) width = std::max(width, std::min(width_of(text), widest_column));
    width += (decimals[column] - 2) * width_of({"0", ""});
    const bool margin = how.kind == ReportColumn::Kind::Margin;
    const bool gives_way = how.kind == ReportColumn::Kind::Text && column > 1;
    natural.push_back(margin ? 2 * theme::unit : width + 3 * theme::unit);
    least.push_back(gives_way ? std::min(natural.back(), std::max(head + 3 * theme::unit, narrowest_text))
                              : natural.back());
  }
  grdPL->set_natural_widths(std::move(natural), std::move(least));
  fit_sheet();
}

}  // namespace tallymere
