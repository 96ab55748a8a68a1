#include "entry/document/WalkForm.h"

#include <QPushButton>

namespace tallymere {

WalkForm::WalkForm(Shell& shell_of_frame, const char* name) : EntryForm(shell_of_frame, name) {
  cmdPrev = named("cmdPrev", new QPushButton(QStringLiteral("P&revious")));
  cmdNext = named("cmdNext", new QPushButton(QStringLiteral("&Next")));
  cmdPrev->setToolTip(QStringLiteral("Saves and shows the one before"));
  cmdNext->setToolTip(QStringLiteral("Saves and shows the one after, or a new one (Ctrl+Enter)"));
  on(cmdPrev, "cmdPrev_Click", [this] { walk(false); });
  on(cmdNext, "cmdNext_Click", [this] { walk(true); });
}

void WalkForm::walk(bool forward) {
  const Hourglass hourglass(session.prompts);
  if (save()) step(forward);
}

bool WalkForm::control_enter() {
  walk(true);
  return true;
}

void WalkForm::bounce() { session.prompts.sound(ball_bounce); }

}  // namespace tallymere
