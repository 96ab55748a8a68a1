#include "shell/settings/frmModUser.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/users.h"
#include "shell/settings/password_boxes.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmModUser::frmModUser(Shell& shell_of_frame) : Form(shell_of_frame, "frmModUser", Place::Above) {
  build();
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmModUser::build() {
  txtUser = named("txtUser", new QLineEdit);
  txtUser->setMinimumWidth(30 * theme::unit);
  txtPassword = named("txtPassword", new QLineEdit);
  txtPassword2 = named("txtPassword2", new QLineEdit);
  auto* access = new QGroupBox(QStringLiteral("Access"));
  auto* boxes = column_layout(access);
  const auto box = [this, boxes](const char* name, const char* caption) {
    auto* made = named(name, new QCheckBox(QLatin1String(caption)));
    boxes->addWidget(made);
    return made;
  };
  chkAR = box("chkAR", "Accounts &Recievable");
  chkAP = box("chkAP", "Accounts &Payable");
  chkBBC = box("chkBBC", "&Banking and Credit Cards");
  chkInv = box("chkInv", "&Inventory");
  chkPay = box("chkPay", "Pa&yroll");
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&User Name:"), txtUser);
  add_field(fields, QStringLiteral("Pass&word:"), txtPassword);
  add_field(fields, QStringLiteral("Re-&Type Password:"), txtPassword2);
  fields->addRow(access);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
}

void frmModUser::take(const Request& request) {
  editing_ = request.key;
  setWindowTitle(editing_.empty() ? QStringLiteral("New User") : QStringLiteral("Edit User"));
  const UserForm form = editing_.empty() ? UserForm{} : Edit_User(session, editing_).value_or(UserForm{});
  txtUser->setText(qt(form.UserName));
  Show_Password_Boxes(*txtPassword, *txtPassword2, !editing_.empty());
  show_flags(form.flags);
  go_to(txtUser);
}

UserFlags frmModUser::flags() const {
  return {chkAR->isChecked(), chkAP->isChecked(), chkBBC->isChecked(), chkInv->isChecked(), chkPay->isChecked()};
}

void frmModUser::show_flags(const UserFlags& flags) {
  chkAR->setChecked(flags.AR);
  chkAP->setChecked(flags.AP);
  chkBBC->setChecked(flags.BankCC);
  chkInv->setChecked(flags.Inventory);
  chkPay->setChecked(flags.Payroll);
}

void frmModUser::cmdOk_AfterClick() {
  const UserForm form{utf8(txtUser->text()), Read_Password(*txtPassword, *txtPassword2), flags()};
  if (const auto fault = Save_User(session, editing_, form)) return show_fault(*fault);
  shell.changed("Users");
  finish(true, form.UserName);
}

}  // namespace tallymere
