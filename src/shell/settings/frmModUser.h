#pragma once

#include "core/company/rights.h"
#include "shell/widgets/Form.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace tallymere {

/// A new user, or the one that comes as `key`: name, password and the parts of the program it may use.
class frmModUser : public Form {
  Q_OBJECT

 public:
  explicit frmModUser(Shell& shell_of_frame);

  void take(const Request& request) override;

 private:
  void build();
  void cmdOk_AfterClick();
  UserFlags flags() const;
  void show_flags(const UserFlags& flags);

  std::string editing_;  ///< empty: a new one
  QLineEdit *txtUser, *txtPassword, *txtPassword2;
  QCheckBox *chkAR, *chkAP, *chkBBC, *chkInv, *chkPay;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
