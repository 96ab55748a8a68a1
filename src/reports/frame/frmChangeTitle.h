#pragma once

#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

/// Asks for another title; the report that asked takes it when this was accepted.
class frmChangeTitle : public Form {
  Q_OBJECT

 public:
  frmChangeTitle(Shell& shell_of_frame, const std::string& present);

  std::string title() const;

 private:
  QLineEdit* Text1;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
