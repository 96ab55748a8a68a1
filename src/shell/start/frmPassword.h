#pragma once

#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

/// Asks for the password of a single-user company. Accepted: it was right.
class frmPassword : public Form {
  Q_OBJECT

 public:
  explicit frmPassword(Shell& shell_of_frame);

 private:
  void cmdOk_AfterClick();

  QLineEdit* Text1;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
