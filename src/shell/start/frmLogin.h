#pragma once

#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBCombo;

/// Asks who it is. Accepted: the session works as a user of the company who gave the right password.
class frmLogin : public Form {
  Q_OBJECT

 public:
  explicit frmLogin(Shell& shell_of_frame);
  void load() override;

 private:
  void build();
  void cmdLogin_AfterClick();

  SSDBCombo* cmbUser;
  QLineEdit* txtPassord;
  QPushButton *cmdLogin, *SSDBCommand2;
};

}  // namespace tallymere
