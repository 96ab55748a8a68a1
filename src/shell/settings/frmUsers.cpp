#include "shell/settings/frmUsers.h"

#include <QPushButton>
#include <algorithm>

#include "core/company/users.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmUsers::frmUsers(Shell& shell_of_frame) : Form(shell_of_frame, "frmUsers") {
  setWindowTitle(QStringLiteral("Users"));
  SSDBGrid1 = named("SSDBGrid1", new SSDBGrid);
  SSDBGrid1->setAccessibleName(QStringLiteral("Users"));
  SSDBGrid1->set_columns({{.name = QStringLiteral("User")}, {.name = QStringLiteral("Password"), .width = 14}});
  cmdNew = named("cmdNew", new QPushButton(QStringLiteral("&New User")));
  cmdEdit = named("cmdEdit", new QPushButton(QStringLiteral("&Edit User")));
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete User")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  auto* column = column_layout(this);
  column->addWidget(SSDBGrid1, 1);
  column->addLayout(plain_button_row({cmdNew, cmdEdit, cmdDelete}, {cmdClose}));
  setMinimumSize(60 * theme::unit, 36 * theme::unit);
  on(cmdNew, "cmdNew_AfterClick", [this] { cmdNew_AfterClick(); });
  on(cmdEdit, "cmdEdit_AfterClick", [this] { cmdEdit_AfterClick(); });
  on(cmdDelete, "cmdDelete_AfterClick", [this] { cmdDelete_AfterClick(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
  on(SSDBGrid1, &SSDBGrid::DblClick, "SSDBGrid1_DblClick", [this] { cmdEdit_AfterClick(); });
}

void frmUsers::load() {
  Make_List();
  SSDBGrid1->set_Row(0);
  SSDBGrid1->setFocus();
}

void frmUsers::on_changed(const std::string& table) {
  if (table == "Users") Make_List();
}

void frmUsers::Make_List() {
  const SSDBGrid::Fill fill(*SSDBGrid1);
  const int row = SSDBGrid1->Row();
  SSDBGrid1->RemoveAll();
  for (const UserRow& listed : User_List(*session.dbCompany))
    SSDBGrid1->AddItem(listed.UserName + "\t" + (listed.has_password ? "" : "none"));
  SSDBGrid1->set_Row(std::clamp(row, 0, std::max(SSDBGrid1->rows() - 1, 0)));
}

std::string frmUsers::user() const { return SSDBGrid1->text(SSDBGrid1->Row(), 0); }

void frmUsers::cmdNew_AfterClick() { shell.Ask_Window({.window = "frmModUser", .key = {}}); }

void frmUsers::cmdEdit_AfterClick() {
  if (user().empty()) return;
  if (!Edit_User(session, user())) {
    Make_List();
    return shell.say("Another user has deleted this user.");
  }
  shell.Ask_Window({.window = "frmModUser", .key = user()});
}

void frmUsers::cmdDelete_AfterClick() {
  if (Delete_User(session, user())) shell.changed("Users");
}

}  // namespace tallymere
