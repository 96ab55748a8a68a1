#include "shell/frmProgress.h"

#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/widgets/theme.h"

namespace tallymere {

frmProgress::frmProgress(Shell& shell_of_frame) : Form(shell_of_frame, "frmProgress", Place::Above) {
  ProgressBar1 = named("ProgressBar1", new QProgressBar);
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* column = column_layout(this);
  column->addWidget(ProgressBar1);
  column->addSpacing(theme::gap);
  column->addLayout(plain_button_row({}, {cmdCancel}));
  setMinimumWidth(44 * theme::unit);
  on(cmdCancel, "cmdCancel_AfterClick", [this] { cmdCancel_AfterClick(); });
}

void frmProgress::show_progress(const std::string& caption, int64_t done, int64_t total) {
  setWindowTitle(qt(caption));
  ProgressBar1->setAccessibleName(qt(caption));
  ProgressBar1->setMaximum(static_cast<int>(total));
  ProgressBar1->setValue(static_cast<int>(done));
}

void frmProgress::cmdCancel_AfterClick() {
  stopped_ = true;
  cmdCancel->setEnabled(false);
}

/// The frame's close box asks to stop, like the button; the window goes when the work has ended.
bool frmProgress::may_close() {
  cmdCancel_AfterClick();
  return false;
}

}  // namespace tallymere
