#pragma once

#include "shell/company_commands.h"
#include "shell/widgets/Form.h"

class QButtonGroup;
class QListWidget;
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
  void fill_recent();
  void cmdOk_AfterClick();
  void lstRecent_DblClick();

  CompanyCommands& commands_;
  QButtonGroup* optStart;
  QPushButton* cmdOK;
  QListWidget* lstRecent;  ///< companies opened last; Enter opens
};

}  // namespace tallymere
