#pragma once

#include <array>

#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

/// The names of the employees' four free fields.
class frmCustFields : public Form {
  Q_OBJECT

 public:
  explicit frmCustFields(Shell& shell_of_frame);

  void load() override;

 private:
  void cmdOk_AfterClick();

  std::array<QLineEdit*, 4> texts_;  ///< Text1 to Text4
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
