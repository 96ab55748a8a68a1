#include "reports/saved/frmModSaveReport.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "core/values/date_range.h"
#include "core/values/text.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmModSaveReport::frmModSaveReport(Shell& shell_of_frame, SavedReport report)
    : Form(shell_of_frame, "frmModSaveReport", Place::Above), report_(std::move(report)) {
  setWindowTitle(report_.key ? QStringLiteral("Edit Report") : QStringLiteral("Save Report"));
  txtName = named("txtName", new QLineEdit);
  cmbDate = named("cmbDate", new SSDBCombo);
  cmbClass = named("cmbClass", new SSDBCombo);
  cmbItem = named("cmbItem", new SSDBCombo);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* form = form_layout();
  add_field(form, QStringLiteral("Report Name:"), txtName);
  add_field(form, QStringLiteral("Dates to Show:"), cmbDate);
  add_field(form, QStringLiteral("Class:"), cmbClass);
  add_field(form, QStringLiteral("Item:"), cmbItem);
  lay_out_dialog(this, form, {cmdCancel, cmdOk});
  setMinimumWidth(48 * theme::unit);
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmModSaveReport::load() {
  for (const std::string_view preset : Date_Range_Names) cmbDate->AddItem(std::string(preset));
  session.dbCompany->each("SELECT Class FROM Class ORDER BY Class", {},
                          [this](const store::Row& row) { cmbClass->AddItem(std::string(row.text(0))); });
  for (const std::string& item : Items_To_Report(session)) cmbItem->AddItem(item);
  cmbDate->set_list_only(true);
  cmbItem->setEnabled(is_item_report());
  txtName->setText(qt(report_.ReportName));
  cmbDate->set_text(report_.DateRange);
  cmbClass->set_text(report_.Class);
  if (is_item_report()) cmbItem->set_text(report_.Item);
  txtName->setFocus();
}

void frmModSaveReport::cmdOk_AfterClick() {
  report_.ReportName = utf8(txtName->text());
  report_.DateRange = cmbDate->text();
  report_.Class = cmbClass->text();
  if (is_item_report()) report_.Item = trim(cmbItem->text());
  if (const auto fault = Check_Saved_Report(report_)) return show_fault(*fault);
  Save_Report(session, report_);
  finish(true);
}

}  // namespace tallymere
