#include "shell/start/frmCreate.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/company_name.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmCreate::frmCreate(Shell& shell_of_frame, CompanyCommands& commands)
    : Form(shell_of_frame, "frmCreate", Place::Above), commands_(commands) {
  setWindowTitle(QStringLiteral("Create New Company"));
  txtName = named("txtName", new QLineEdit);
  txtName->setMinimumWidth(30 * theme::unit);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("OK")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("Cancel")));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Company Name"), txtName);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmCreate::cmdOk_AfterClick() {
  const std::string name = utf8(txtName->text());
  if (const auto fault = Company_Name_Fault(name)) return show_fault({*fault, "txtName"});
  finish(commands_.Create_Company(name));
}

}  // namespace tallymere
