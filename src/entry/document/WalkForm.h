#pragma once

#include "entry/document/EntryForm.h"

namespace tallymere {

/// An entry window that also walks: Previous and Next save and go to the document before or after, Control+Enter does
/// what Next does, and a ball bounces at either end. The last buttons are cmdSaveNew and cmdOk, which saves and closes;
/// Esc leaves, and asks.
class WalkForm : public EntryForm {
  Q_OBJECT

 public:
  bool control_enter() override;

 protected:
  WalkForm(Shell& shell_of_frame, const char* name);

  /// Shows the next or the previous document, or a blank one.
  virtual void step(bool forward) = 0;

  /// Shows a blank document.
  virtual void show_new() = 0;

  void walk(bool forward);  ///< saves, then moves
  void save_and_new();      ///< cmdSaveNew
  void bounce();            ///< the sound at either end of the walk

  QPushButton *cmdPrev, *cmdNext, *cmdSaveNew;
};

}  // namespace tallymere
