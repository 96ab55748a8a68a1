#include "shell/frmStatus.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "shell/widgets/theme.h"

namespace tallymere {

frmStatus::frmStatus(Shell& shell_of_frame) : Form(shell_of_frame, "frmStatus", Place::Above) {
  setWindowTitle(QStringLiteral("Progress"));
  Label1 = named("Label1", new QLabel);
  ProgressBar1 = named("ProgressBar1", new QProgressBar);
  Label1->setBuddy(ProgressBar1);
  auto* column = column_layout(this);
  column->addWidget(Label1);
  column->addWidget(ProgressBar1);
  setMinimumWidth(44 * theme::unit);
}

void frmStatus::show_progress(const std::string& label, int64_t done, int64_t total) {
  Label1->setText(qt(label));
  ProgressBar1->setMaximum(static_cast<int>(std::max<int64_t>(1, total)));
  ProgressBar1->setValue(static_cast<int>(done));
}

}  // namespace tallymere
