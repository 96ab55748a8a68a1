#pragma once

#include "import/lists_import.h"
#include "shell/widgets/Form.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBGrid;

/// Lists out of another program's export: a file is chosen, what it would change is shown, and Ok does it in one step.
class frmImportQB : public Form {
  Q_OBJECT

 public:
  explicit frmImportQB(Shell& shell_of_frame);

  void load() override;

 private:
  void build();
  void SSDBCommand1_AfterClick();
  void cmdOk_AfterClick();
  void show_plan();
  void show_report(const ImportReport& report);
  std::optional<IifFile> read();  ///< a box says why it cannot be

  QLineEdit* Text1;
  QCheckBox* chk2003;
  SSDBGrid* grdPlan;
  QLabel* lblPlan;
  QPushButton *SSDBCommand1, *cmdOk, *cmdCancel;
};

}  // namespace tallymere
