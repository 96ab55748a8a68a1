#include "shell/settings/frmColors.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "shell/widgets/company_color.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
constexpr std::array<const char*, Colored_Windows.size()> box_names = {"picBackGround", "picCheck", "picBill",
                                                                       "picReg"};
}

frmColors::frmColors(Shell& shell_of_frame) : Form(shell_of_frame, "frmColors", Place::Above) {
  setWindowTitle(QStringLiteral("Colors"));
  auto* fields = form_layout();
  for (size_t at = 0; at < boxes_.size(); ++at) {
    boxes_[at] = named(box_names[at], new QLabel(QStringLiteral("1,234.50")));
    boxes_[at]->setFrameShape(QFrame::Box);
    boxes_[at]->setAlignment(Qt::AlignCenter);
    boxes_[at]->setMinimumSize(18 * theme::unit, 4 * theme::unit);
    auto* pick = named(("Pick_" + std::to_string(at)).c_str(), new QPushButton(QStringLiteral("Pick")));
    pick->setAccessibleName(QLatin1String(Colored_Windows[at].caption) + QStringLiteral(" Pick"));
    auto* row = row_layout();
    row->addWidget(boxes_[at], 1);
    row->addWidget(pick);
    fields->addRow(QLatin1String(Colored_Windows[at].caption), row);
    on(pick, "Pick_Click", [this, at] { Pick_Click(at); });
  }
  SSDBCommand1 = named("SSDBCommand1", new QPushButton(QStringLiteral("&OK")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  lay_out_dialog(this, fields, {cmdCancel, SSDBCommand1});
  on(SSDBCommand1, "SSDBCommand1_AfterClick", [this] { SSDBCommand1_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmColors::load() {
  colors_ = Read_Colors(session);
  show_colors();
}

void frmColors::show_colors() {
  for (size_t at = 0; at < boxes_.size(); ++at) Paint_Paper(*boxes_[at], Stored_Color(colors_[at]));
}

void frmColors::Pick_Click(size_t window) {
  const auto picked = shell.Ask_Window({.window = "frmColorPicker", .key = {}, .number = colors_[window]});
  if (!picked) return;
  colors_[window] = std::stoll(*picked);
  show_colors();
}

void frmColors::SSDBCommand1_AfterClick() {
  Save_Colors(session, colors_);
  shell.changed("Colors");
  finish(true);
}

}  // namespace tallymere
