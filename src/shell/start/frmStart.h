#pragma once

#include "shell/company_commands.h"
#include "shell/widgets/Form.h"

class QButtonGroup;
class QPushButton;

namespace tallymere {

/// The first window: a company is opened, created or restored.
class frmStart : public Form {
  Q_OBJECT

 public:
  enum Option { Create = 0, Open = 1, Restore = 2 };

  frmStart(Shell& shell_of_frame, CompanyCommands& commands);

 private:
  void build();
  void cmdOk_AfterClick();

  CompanyCommands& commands_;
  QButtonGroup* optStart;
  QPushButton* cmdOK;
};

}  // namespace tallymere
