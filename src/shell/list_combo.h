#pragma once

#include <functional>

#include "lists/small_lists.h"
#include "shell/shell.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

class DropDowns;

/// A combo over a small list (Terms, RepNames, VIA, Class, PaymentMethod, CustomerMessages). Left with a text that is
/// not in the list, it puts it there, after the question that belongs to the list, if one does.
class ListCombo : public SSDBCombo {
  Q_OBJECT

 public:
  /// Adds a new text to the list. false: it was not wanted there; the combo keeps what was typed.
  using Grow = std::function<bool(Session& session, const std::string& text)>;

  ListCombo(Shell& shell, DropDowns& lists, const SmallList& list, Grow grow);

  /// Shows a text that was dealt with when it was typed: leaving it sets off nothing.
  void show_text(const std::string& text);
  /// What leaving the combo sets off; before a save, which may come by a key that leaves nothing.
  void settle();

 Q_SIGNALS:
  void Settled();  ///< the combo was left with a text other than before, and has dealt with it

 private:
  void deal_with_text();

  Shell& shell_;
  SmallList list_;
  Grow grow_;
  std::string settled_;  ///< the text that was dealt with
};

/// The ways a list grows: unasked; by asking for the days of a term in these words; by asking whether to keep a message.
ListCombo::Grow Grow_Unasked(const SmallList& list);
ListCombo::Grow Grow_Terms(const std::string& question);
ListCombo::Grow Grow_Messages();

}  // namespace tallymere
