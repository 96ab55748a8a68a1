#pragma once

#include "shell/widgets/Form.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace tallymere {

/// The shared progress window of long passes.
class frmStatus : public Form {
  Q_OBJECT

 public:
  explicit frmStatus(Shell& shell_of_frame);
  /// The bar runs to `total`, or to 1 for an empty pass.
  void show_progress(const std::string& label, int64_t done, int64_t total);
  bool may_close() override { return false; }  ///< it goes when the pass ends

 private:
  QLabel* Label1;
  QProgressBar* ProgressBar1;
};

}  // namespace tallymere
