#pragma once

#include "shell/widgets/Form.h"

class QProgressBar;
class QPushButton;

namespace tallymere {

/// How far a backup or a restore is. It may be stopped: nothing is replaced before all is done.
class frmProgress : public Form {
  Q_OBJECT

 public:
  explicit frmProgress(Shell& shell_of_frame);
  void show_progress(const std::string& caption, int64_t done, int64_t total);
  bool stopped() const { return stopped_; }
  bool may_close() override;

 private:
  void cmdCancel_AfterClick();

  QProgressBar* ProgressBar1;
  QPushButton* cmdCancel;
  bool stopped_ = false;
};

}  // namespace tallymere
