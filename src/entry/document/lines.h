#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/item_rate.h"
#include "core/ledger/transaction_writer.h"

/// Lines of a document: expenses that name a category, items that are bought or sold. Amounts are as the screen shows
/// them: a negative one stands on the other side in the ledger, where nothing is signed.
namespace tallymere {

/// The side that a document's positive lines stand on: Debit in a check or a bill, Credit in a vendor's credit.
enum class LineSide { Debit, Credit };

/// A row's own fields as they were loaded. A line writes back what its window does not show.
using KeptRow = std::shared_ptr<const LedgerRow>;

/// A line of grdExpense; the columns in the grid's order, the CatID in its hidden one.
struct ExpenseLine {
  std::string Category = {};
  std::optional<Money> Amount = {};
  std::string Memo = {};
  std::string Customer = {};
  std::string Class = {};
  std::string CatID = {};
  KeptRow kept = {};

  auto shown() const { return std::tie(Category, Amount, Memo, Customer, Class, CatID); }
  friend bool operator==(const ExpenseLine& a, const ExpenseLine& b) { return a.shown() == b.shown(); }
};

/// A line of grdItems; CatID is the category it posts to.
struct ItemLine {
  std::string Item = {};
  std::string Description = {};
  std::optional<double> Quantity = {};
  std::optional<Money> Cost = {};  ///< or the price of what is sold
  std::optional<Money> Amount = {};
  std::string Customer = {};
  std::string Class = {};
  bool Tax = false;
  std::string CatID = {};
  KeptRow kept = {};

  bool blank() const { return Item.empty() && !Amount; }
  auto shown() const { return std::tie(Item, Description, Quantity, Cost, Amount, Customer, Class, Tax, CatID); }
  friend bool operator==(const ItemLine& a, const ItemLine& b) { return a.shown() == b.shown(); }
};

/// The two tabs of lines that checks and bills have.
enum class LineTab { Expenses = 0, Items = 1 };

/// The sum of the Amount column.
template <typename Line>
Money Sum_Of(const std::vector<Line>& lines) {
  Money sum;
  for (const Line& line : lines) sum += line.Amount.value_or(Money());
  return sum;
}

// --- items -----------------------------------------------------------------------------------------------

/// All that a line asks of its item, in one look-up.
struct ItemFacts {
  bool known = false;
  std::string ItemName = {};  ///< as the list has it
  std::string ItemType = {};
  std::string Description = {};
  std::string InvPurchaseDesc = {};
  std::string ItemCat = {};
  std::string COGScat = {};
  std::string InvAsset = {};
  std::string PayMethod = {};
  std::string PayTo = {};
  std::optional<Money> PriceRate = {};
  std::optional<double> ExactRate = {};
  std::optional<Money> Cost = {};
  bool InvTaxable = false;

  bool is_stock() const { return ItemType == "Inventory Part"; }
  /// What a line of it posts to: InvAsset of an "Inventory Part", PayTo of a "Payment", else ItemCat; "" for an item
  /// nobody knows.
  const std::string& posts_to() const { return is_stock() ? InvAsset : ItemType == "Payment" ? PayTo : ItemCat; }
};
ItemFacts Item_Facts(Session& session, const std::string& ItemName);

/// What a tax line takes of the amounts above it: exactly what its row or its item says, while that is what Cost shows.
ItemRate Line_Rate(const ItemLine& line, const ItemFacts& item);

/// The Amount cell of an item line after its Quantity or Cost was typed: Quantity x Cost, the Cost alone, or
/// nothing. A "Subtotal" and a "Sales Tax" line keep the amount they have.
std::optional<Money> Item_Amount(const ItemLine& line, std::string_view ItemType);

// --- while lines are typed -------------------------------------------------------------------------------

/// What expenses leave of a document's amount: lines without an amount are taken out, and the rest, if there
/// is any, is to be proposed in the Amount column of the new line.
std::optional<Money> Expense_Remainder(std::vector<ExpenseLine>& expenses, Money amount);

/// "Assigned 80.00, left 20.00": what stands below the lines.
std::string Assigned_Text(Money assigned, Money left);

/// Takes out what is not written: expenses without a category, items without name and amount.
void Drop_Blank_Lines(std::vector<ExpenseLine>& expenses, std::vector<ItemLine>& items);

// --- lines and rows --------------------------------------------------------------------------------------

/// Puts an amount on its side, or a negative one on the other; Amount takes it without its sign.
void Post(LedgerRow& row, LineSide side, std::optional<Money> amount);
/// The amount of a row as the screen shows it.
std::optional<Money> Posted(const LedgerRow& row, LineSide side);

/// Lines of a row of the ledger. `head` is the document's own row: what a line says as it does follows it.
ExpenseLine Read_Expense(Session& session, const LedgerRow& row, const LedgerRow& head, LineSide side);
ItemLine Read_Item(const LedgerRow& row, const LedgerRow& head, LineSide side);

/// What a line posts to: its category, or the " - Other" child of one that has children. A line that was loaded from
/// there stays where it is, also when its category was given children since.
std::string Posts_To(Session& session, const std::string& CatID, const KeptRow& kept);

/// Rows of lines, whose other side is `Category`.
LedgerRow Expense_Row(Session& session, const ExpenseLine& line, const std::string& Category, LineSide side);
LedgerRow Item_Row(const ItemLine& line, const std::string& Category, LineSide side);

/// What a document's own row names as the other side: the only line's category, or "<-Break Down->".
std::string Other_Side(Session& session, const std::vector<ExpenseLine>& expenses, const std::vector<ItemLine>& items);

}  // namespace tallymere
