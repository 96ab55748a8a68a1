#include "entry/document/WalkForm.h"

#include <QPushButton>

namespace tallymere {

WalkForm::WalkForm(Shell& shell_of_frame, const char* name) : EntryForm(shell_of_frame, name) {
  cmdPrev = named("cmdPrev", new QPushButton(QStringLiteral("P&revious")));
  cmdNext = named("cmdNext", new QPushButton(QStringLiteral("&Next")));
  cmdPrev->setToolTip(QStringLiteral("Saves and shows the one before"));
  cmdNext->setToolTip(QStringLiteral("Saves and shows the one after, or a new one (Ctrl+Enter)"));
  cmdSaveNew = named("cmdSaveNew", new QPushButton(QStringLiteral("Save && Ne&w")));
  cmdSaveNew->setToolTip(QStringLiteral("Saves and begins a new one"));
  cmdOk->setText(QStringLiteral("Save && Cl&ose"));
  on(cmdSaveNew, "cmdSaveNew_Click", [this] { save_and_new(); });
  on(cmdPrev, "cmdPrev_Click", [this] { walk(false); });
  on(cmdNext, "cmdNext_Click", [this] { walk(true); });
}

void WalkForm::walk(bool forward) {
  const Hourglass hourglass(session.prompts);
  if (save()) step(forward);
}

void WalkForm::save_and_new() {
  const Hourglass hourglass(session.prompts);
  if (save()) show_new();
}

bool WalkForm::control_enter() {
  walk(true);
  return true;
}

void WalkForm::bounce() { session.prompts.sound(ball_bounce); }

}  // namespace tallymere
