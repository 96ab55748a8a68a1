#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "core/store/error.h"
#include "reports/frame/ReportForm.h"
#include "reports/frame/frmChangeTitle.h"
#include "reports/frame/frmSelectFields.h"
#include "reports/frame/table_parts.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"

/// What a report is asked for: by who opens its window, then by its controls.
namespace tallymere {

namespace {

constexpr const char* own_dates = "Custom";

/// The windows whose heading is built with their columns: a new title builds the report again, and so takes in
/// what was entered meanwhile. On the others the caption alone changes.
constexpr std::string_view built_with_title[] = {"frmPrintPL2",      "frmPrintPLName",   "frmPrintBalSheet",
                                                 "frmPrintBalances", "frmPrintInvCount", "frmPrintInvItem",
                                                 "frmPrintInvValue"};

}  // namespace

void ReportForm::load() {
  setWindowTitle(QStringLiteral("Report"));
  for (const std::string_view preset : Date_Range_Names) cmbDate->addItem(qt(std::string(preset)));
  cmbDate->addItem(QLatin1String(own_dates));
}

void ReportForm::take(const Request& asked) {
  const ReportDef* before = report_;
  begin_report(asked);
  begin_graph(report_ != before);
  show_request();
  Load_Standard();
  grdPL->setFocus();
}

/// Asked for again under the same key, the window keeps its dates and columns. Without any report it does not
/// come up.
void ReportForm::begin_report(const Request& asked) {
  const ReportDef* report = Find_Report(utf8(objectName()), asked.key);
  if (!report) {
    if (!report_) finish(false);
    throw store::Error(store::errors::no_such_field, "There is no report \"" + asked.key + "\" here.");
  }
  if (report != report_ || asked.start || asked.end || !asked.columns.empty()) {
    report_ = report;
    request_ = Default_Request(session, report->key);
  }
  request_.from = asked.start.value_or(request_.from);
  request_.to = asked.end.value_or(request_.to);
  take_option(report_option::fields, asked.columns);
  take_option(report_->subject, asked.parent);
}

void ReportForm::take_option(std::string_view option, const std::string& value) {
  if (!option.empty() && !value.empty()) request_.options.insert_or_assign(std::string(option), value);
}

void ReportForm::show_request() {
  dteStart->set_value(request_.from);
  dteEnd->set_value(request_.to);
  show_preset();
  optBasis->button(static_cast<int>(request_.basis))->setChecked(true);
  chkEmpty->setChecked(request_.option(report_option::empty) == report_option::hide);
  for (QWidget* control : std::initializer_list<QWidget*>{lblStart, dteStart, cmbDate})
    control->setVisible(Is_Period(report_->dates));
  for (QWidget* control : std::initializer_list<QWidget*>{lblEnd, dteEnd})
    control->setVisible(Asks_A_Day(report_->dates));
  grdPL->set_empty_hint(Asks_A_Day(report_->dates) ? QStringLiteral("There is nothing to report for these dates.")
                                                   : QStringLiteral("There is nothing to report."));
  lblBasis->setVisible(report_->has_basis);
  for (QAbstractButton* option : optBasis->buttons()) option->setVisible(report_->has_basis);
}

/// A report without dates keeps those it came with.
void ReportForm::read_controls() {
  if (Is_Period(report_->dates)) request_.from = dteStart->value();
  if (Asks_A_Day(report_->dates)) request_.to = dteEnd->value();
  request_.basis = static_cast<Basis>(optBasis->checkedId());
  request_.options.insert_or_assign(std::string(report_option::empty),
                                    chkEmpty->isChecked() ? std::string(report_option::hide) : std::string());
}

/// Dates that are those of a preset show its name, however they came there.
void ReportForm::show_preset() {
  const auto preset = std::find_if(Date_Range_Names.begin(), Date_Range_Names.end(), [&](std::string_view name) {
    return Get_Date_Range(name, session.today()) == request_.days();
  });
  cmbDate->setCurrentText(preset == Date_Range_Names.end() ? QLatin1String(own_dates) : qt(std::string(*preset)));
}

/// A date, the basis or an option was changed: the report follows at once.
void ReportForm::changed_by_user() {
  read_controls();
  if (Is_Period(report_->dates) && request_.from > request_.to)
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

/// Any report can do without some of its columns, but not without all, nor without what its rows are called.
void ReportForm::cmdPick_AfterClick() {
  const std::vector<std::string> picked = Column_Names(request_.option(report_option::fields));
  std::vector<FieldChoice> choices;
  for (const ReportColumn& column : table_.offered) {
    const bool known = std::any_of(choices.begin(), choices.end(),
                                   [&](const FieldChoice& choice) { return choice.name == column.id(); });
    const bool named = std::any_of(picked.begin(), picked.end(), [&](const std::string& name) {
      return name == column.id() || name == column.caption;
    });
    const bool shown = picked.empty() ? is_shown(column) : named;
    if (!known) choices.push_back({column.id(), column.caption, shown});
  }
  frmSelectFields dialog(shell, choices);
  if (!shell.Run_Modal(dialog)) return;
  std::vector<std::string> names;
  for (const FieldChoice& choice : dialog.choices())
    if (choice.selected) names.push_back(choice.name);
  request_.options.insert_or_assign(std::string(report_option::fields), Column_List(names));
  Load_Standard();
}

bool ReportForm::is_shown(const ReportColumn& column) const {
  return std::any_of(table_.columns.begin(), table_.columns.end(),
                     [&](const ReportColumn& shown) { return shown.id() == column.id(); });
}

void ReportForm::cmdLabel_AfterClick() {
  frmChangeTitle dialog(shell, utf8(Label6->text()));
  if (!shell.Run_Modal(dialog)) return;
  request_.title = dialog.title();
  const bool builds = std::find(std::begin(built_with_title), std::end(built_with_title), utf8(objectName())) !=
                      std::end(built_with_title);
  if (builds || request_.title.empty()) return Load_Standard();
  table_.heading.title = graph_.heading.title = request_.title;
  show_heading();
}

}  // namespace tallymere
