#pragma once

#include "entry/document/LineGrid.h"

namespace tallymere {

/// grdExpense, as checks and bills have it: what a document is for, category by category.
class ExpenseGrid : public LineGrid {
 public:
  enum Column { Category, Amount, Memo, Customer, Class, CatID, Kept };

  ExpenseGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window, const QString& hint);

  void show(const std::vector<ExpenseLine>& lines);
  std::vector<ExpenseLine> read() const;

  /// What is left of the document's amount: a line whose category is chosen before its amount is offered it.
  void offer(std::function<std::optional<Money>()> left) { left_ = std::move(left); }
  /// Lines without an amount go; what the others leave of the document's amount is proposed on a new one.
  void propose_remainder(Money amount);
  /// Offers to make the category of the line that was left last, where it is none.
  void new_category();
  /// Takes what is being typed, and asks what leaving its line asks.
  void settle();
  /// Goes to the line that no save takes: an amount without a category, or a category nobody knows.
  void point_at_mistake();

 private:
  void offer_remainder(int row);

  std::function<std::optional<Money>()> left_;
  int left_line_ = -1;  ///< the line that was left last; -1: dealt with
};

}  // namespace tallymere
