#pragma once

#include "printing/print_queue.h"
#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

/// After checks were printed: sends those that came out wrong back to the queue.
class frmGoodPrint : public Form {
  Q_OBJECT

 public:
  frmGoodPrint(Shell& shell_of_frame, std::vector<NumberedCheck> run);

 private:
  void cmdOk_AfterClick();

  std::vector<NumberedCheck> run_;
  QLineEdit* txtNum;
  QPushButton* cmdOk;
};

}  // namespace tallymere
