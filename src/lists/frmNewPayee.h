#pragma once

#include "shell/widgets/Form.h"

class QButtonGroup;
class QLabel;
class QPushButton;

namespace tallymere {

/// A payee was typed who is in no list: asks whether it is a customer or a vendor, and adds it. The name
/// comes as `key` and is the answer.
class frmNewPayee : public Form {
  Q_OBJECT

 public:
  explicit frmNewPayee(Shell& shell_of_frame);

  void take(const Request& request) override;

 private:
  void cmdOk_AfterClick();

  std::string name_;
  QButtonGroup* optType;
  QLabel* lblName;
  QPushButton* cmdOk;
};

}  // namespace tallymere
