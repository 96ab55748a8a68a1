#pragma once

#include "shell/company_commands.h"
#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

/// Asks for the name of a new company and makes it current.
class frmCreate : public Form {
  Q_OBJECT

 public:
  frmCreate(Shell& shell_of_frame, CompanyCommands& commands);

 private:
  void cmdOk_AfterClick();

  CompanyCommands& commands_;
  QLineEdit* txtName;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
