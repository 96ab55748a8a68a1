#pragma once

#include "entry/document/EntryForm.h"

namespace tallymere {

/// An entry window that also walks: Previous and Next save and go to the document before or after, Control+Enter does
/// what Next does, and a ball bounces at either end.
class WalkForm : public EntryForm {
  Q_OBJECT

 public:
  bool control_enter() override;

 protected:
  WalkForm(Shell& shell_of_frame, const char* name);

  /// Shows the next or the previous document, or a blank one.
  virtual void step(bool forward) = 0;

  void walk(bool forward);  ///< saves, then moves
  void bounce();            ///< the sound at either end of the walk

  QPushButton *cmdPrev, *cmdNext;
};

}  // namespace tallymere
