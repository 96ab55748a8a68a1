#include "shell/start/frmPassword.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/login.h"
#include "shell/start/login_delay.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmPassword::frmPassword(Shell& shell_of_frame) : Form(shell_of_frame, "frmPassword", Place::Above) {
  setWindowTitle(QStringLiteral("Password Required"));
  Text1 = named("Text1", new QLineEdit);
  Text1->setEchoMode(QLineEdit::Password);
  Text1->setMinimumWidth(26 * theme::unit);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("OK")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("Cancel")));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Enter Password"), Text1);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
  LoginDelay::hold(*cmdOk);
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmPassword::cmdOk_AfterClick() {
  const bool right = Is_Company_Password(*session.dbCompany, utf8(Text1->text()));
  LoginDelay::count(right, *cmdOk);
  if (!right) return show_fault({{"Incorrect Password", "Password", Icon::Information}, "Text1"});
  finish(true);
}

}  // namespace tallymere
