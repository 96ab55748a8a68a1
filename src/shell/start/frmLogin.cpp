#include "shell/start/frmLogin.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/login.h"
#include "core/company/rights.h"
#include "core/store/recordset.h"
#include "shell/start/login_delay.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmLogin::frmLogin(Shell& shell_of_frame) : Form(shell_of_frame, "frmLogin", Place::Above) {
  setWindowTitle(QStringLiteral("User Login"));
  build();
  LoginDelay::hold(*cmdLogin);
  on(cmdLogin, "cmdLogin_AfterClick", [this] { cmdLogin_AfterClick(); });
  on(SSDBCommand2, "SSDBCommand2_AfterClick", [this] { finish(false); });
}

void frmLogin::build() {
  cmbUser = named("cmbUser", new SSDBCombo);
  cmbUser->setMinimumWidth(26 * theme::unit);
  txtPassord = named("txtPassord", new QLineEdit);
  txtPassord->setEchoMode(QLineEdit::Password);
  cmdLogin = named("cmdLogin", new QPushButton(QStringLiteral("&Login")));
  SSDBCommand2 = named("SSDBCommand2", new QPushButton(QStringLiteral("&Cancel")));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&User Name:"), cmbUser);
  add_field(fields, QStringLiteral("&Password:"), txtPassord);
  lay_out_dialog(this, fields, {SSDBCommand2, cmdLogin});
}

void frmLogin::load() {
  const auto users = session.dbCompany->OpenTable("Users");
  users->Index("UserName");
  for (users->MoveFirst(); !users->Eof(); users->MoveNext()) cmbUser->AddItem((*users)["UserName"].text());
  cmbUser->set_text(std::string(Administrator));
  txtPassord->setFocus();
}

void frmLogin::cmdLogin_AfterClick() {
  const std::string user = cmbUser->text();
  if (user.empty()) return show_fault({{"Please enter a User name.", "No User", Icon::Information}, "cmbUser"});
  const auto name = Accepted_User(*session.dbCompany, user, utf8(txtPassord->text()));
  LoginDelay::count(name.has_value(), *cmdLogin);
  if (!name) return show_fault({{"Invlaid Login", "Access Denied", Icon::Critical}, "txtPassord"});
  Enter_As(session, name);
  finish(true);
}

}  // namespace tallymere
