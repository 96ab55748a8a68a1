#pragma once

#include <array>

#include "entry/document/LineGrid.h"

namespace tallymere {

/// Item lines of checks, bills, invoices and papers: "Item", "Description", "Quantity", what one costs, "Amount", and
/// then what the window asks for.
class ItemGrid : public LineGrid {
 public:
  enum class Field { Item, Description, Quantity, Cost, Amount, Customer, Class, Tax, CatID, Kept };

  struct Layout {
    const char* name = "grdItems";
    std::vector<Field> more = {Field::Customer, Field::Class, Field::CatID};  ///< behind Amount
    const char* Quantity = "Quantity";
    const char* Cost = "Cost";
    QString hint = {};
  };
  ItemGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window, const Layout& layout);

  int column(Field field) const { return columns_[static_cast<size_t>(field)]; }  ///< -1: not in this window

  void show(const std::vector<ItemLine>& lines);
  std::vector<ItemLine> read() const;
  ItemLine read(int row) const;
  void set_line(int row, const ItemLine& line);  ///< row rows(): a new one below the others
  void settle() { grid->commit(); }              ///< takes what is being typed

  /// What else choosing an item does: its line has its name and the category it posts to by then.
  void when_chosen(std::function<void(int row, const ItemFacts& item)> handler) { chosen_ = std::move(handler); }

 private:
  GridColumn column_of(Field field, const Layout& layout) const;
  void updated(int row, int column);

  std::array<int, 10> columns_;
  std::function<void(int row, const ItemFacts& item)> chosen_;
};

}  // namespace tallymere
