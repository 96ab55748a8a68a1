#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "entry/document/lines.h"

/// Lines of what is sold: invoices, estimates, package slips. An item's type decides what its line does: it is an
/// amount, a subtotal, a tax, a discount, a group of others, a payment that was made at once.
namespace tallymere {

/// What the lines of a sale ask of their items, each looked up once.
class SaleItems {
 public:
  explicit SaleItems(Session& session) : session_(session) {}

  const ItemFacts& of(const std::string& ItemName);
  const std::string& type(const std::string& ItemName) { return of(ItemName).ItemType; }
  void forget() { facts_.clear(); }  ///< the list of items was changed

 private:
  Session& session_;
  std::map<std::string, ItemFacts> facts_;
};

/// The line once its item was chosen: name, description, price and amount, tax mark and the category it posts to. A
/// quantity that stands there stays.
ItemLine Chosen_Line(const ItemFacts& item, ItemLine line);

/// Add_Subtotal, Add_SalesTax and what a discount in percent takes off, from the first line down, each with all lines
/// above it. A subtotal shows the sum of the other lines; a tax the taxable ones times its rate, rounded with a nudge
/// of a tenth of a cent; "10%" is a tenth of all, taken off.
void Reckon_Lines(SaleItems& items, std::vector<ItemLine>& lines);

/// A line after its quantity, price or amount was typed: a discount or payment lowers the total, also when it was typed
/// without a minus.
void Lower_Total(std::string_view ItemType, ItemLine& line);

/// The sum of all lines but subtotals.
Money Total_Of(SaleItems& items, const std::vector<ItemLine>& lines);

/// Enter_Group_Members: the lines that choosing a group adds below it.
std::vector<ItemLine> Group_Members(Session& session, SaleItems& items, const std::string& GroupName);

}  // namespace tallymere
