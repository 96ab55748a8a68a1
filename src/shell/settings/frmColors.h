#pragma once

#include <array>

#include "core/company/company_settings.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

/// The backgrounds of the main window, checks, bills and registers. The main window follows at once, the others when they
/// next load.
class frmColors : public Form {
  Q_OBJECT

 public:
  explicit frmColors(Shell& shell_of_frame);

  void load() override;

 private:
  void Pick_Click(size_t window);
  void SSDBCommand1_AfterClick();
  void show_colors();

  WindowColors colors_{};
  std::array<QLabel*, Colored_Windows.size()> boxes_;  ///< picBackGround, picCheck, picBill, picReg
  QPushButton *SSDBCommand1, *cmdCancel;
};

}  // namespace tallymere
