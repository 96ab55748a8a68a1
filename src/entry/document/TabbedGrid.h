#pragma once

#include <QTabWidget>
#include <functional>
#include <optional>

#include "entry/document/ExpenseGrid.h"
#include "entry/document/ItemGrid.h"

class QLabel;

namespace tallymere {

/// SSTab1 of checks and bills: a page of expenses, a page of items, and beside their names how much of the document's
/// amount the lines of both take.
class TabbedGrid : public QTabWidget {
  Q_OBJECT

 public:
  struct Hints {
    QString expenses, items;
  };
  /// `amount`: what the lines have to come to, as it stands on screen; nothing where there is nothing to reckon.
  TabbedGrid(EntryForm& window, Shell& shell, DropDowns& lists, const Hints& hints,
             std::function<std::optional<Money>()> amount);

  template <typename Document>
  void show_lines(const Document& document) {
    expenses->show(document.expenses);
    items->show(document.items);
    setCurrentIndex(static_cast<int>(document.Tab));
  }
  template <typename Document>
  void read_lines(Document& document) const {
    document.expenses = expenses->read();
    document.items = items->read();
    document.Tab = static_cast<LineTab>(currentIndex());
  }
  /// Takes what is being typed, and asks what leaving its line asks.
  void settle();
  /// The document's amount was entered: while expenses show, what they leave of it is proposed on a new line.
  void propose_remainder(Money amount);
  void show_assigned();

  ExpenseGrid* expenses;
  ItemGrid* items;

 private:
  std::optional<Money> left() const;

  std::function<std::optional<Money>()> amount_;
  QLabel* lblAssigned;
};

}  // namespace tallymere
