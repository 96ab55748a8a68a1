#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"

/// What the entry windows share: lines of a document, the walk from one to the next, and how a save ends.
namespace tallymere {

/// A line of grdExpense; the columns in the grid's order, the CatID in its hidden one.
struct ExpenseLine {
  std::string Category = {};
  std::optional<Money> Amount = {};
  std::string Memo = {};
  std::string Customer = {};
  std::string Class = {};
  std::string CatID = {};

  friend bool operator==(const ExpenseLine&, const ExpenseLine&) = default;
};

/// A line of grdItems; CatID is the category it posts to.
struct ItemLine {
  std::string Item = {};
  std::string Description = {};
  std::optional<double> Quantity = {};
  std::optional<Money> Cost = {};
  std::optional<Money> Amount = {};
  std::string Customer = {};
  std::string Class = {};
  std::string CatID = {};

  bool blank() const { return Item.empty() && !Amount; }
  friend bool operator==(const ItemLine&, const ItemLine&) = default;
};

/// The sum of the Amount column.
template <typename Line>
Money Sum_Of(const std::vector<Line>& lines) {
  Money sum;
  for (const Line& line : lines) sum += line.Amount.value_or(Money());
  return sum;
}

/// What an item posts to: InvAsset of an "Inventory Part", else ItemCat; "" for an item nobody knows.
std::string Item_Category(Session& session, const std::string& ItemName);

/// "" for an item nobody knows.
std::string Item_Type(Session& session, const std::string& ItemName);

/// The Amount cell of an item line after its Quantity or Cost was typed: Quantity x Cost, the Cost alone, or
/// nothing. A "Subtotal" and a "Sales Tax" line keep the amount they have.
std::optional<Money> Item_Amount(const ItemLine& line, std::string_view ItemType);

/// What expenses leave of a document's amount: lines without an amount are taken out, and the rest, if there
/// is any, is to be proposed in the Amount column of the new line.
std::optional<Money> Expense_Remainder(std::vector<ExpenseLine>& expenses, Money amount);

/// Information boxes are what nearly all mistakes get.
Fault Mistake(std::string text, std::string title, std::string control);
/// "Transaction does not Balance" when the lines do not add up to the document's amount.
std::optional<Fault> Balance_Fault(Money lines, Money amount, std::string control);

/// How a save ended. `ok` lets the window close or move on, also when there was nothing to save.
struct SaveResult {
  std::optional<Fault> fault = {};        ///< the user's mistake; nothing was written
  std::optional<Conflict> conflict = {};  ///< another user's work; nothing was written
  bool written = false;

  bool ok() const { return !fault && !conflict; }
};

/// Which transactions a window walks through, in the order Date, TransNum.
struct Walk {
  std::span<const std::string_view> types;
  int64_t band = 0;               ///< only numbers nearer than this to the one on screen; 0: the whole ledger
  std::string_view account = {};  ///< where each of them has a row, as bills in "AP1": spares reading the ledger
};
enum class Arrival {
  Document,  ///< show `TransNum`
  New,       ///< past the last: show a blank document
  Stay       ///< nothing that way: the screen stays as it is
};
struct Step {
  Arrival arrival = Arrival::Stay;
  int64_t TransNum = 0;
  bool bounce = false;  ///< play ball_bounce.wav
};
/// From the transaction on screen to the next or previous one. From a new document, one that is not in the
/// ledger, back goes to the last and forward stays.
Step Walk_From(Session& session, const Walk& walk, int64_t TransNum, bool forward);

/// A transaction as one speaks of it: "Check 1042 to Acme Supply for $145.50".
std::string Spoken(const std::string& Type, const std::string& Number, const std::string& Name,
                   std::optional<Money> amount);

/// Asks whether to delete what is `spoken` of, and asks again about what the bank has cleared. Enter keeps it.
bool Confirm_Delete(Prompts& prompts, const std::string& question, bool cleared, const std::string& spoken);

/// The window that enters transactions of this type; "" when there is none to go to.
std::string_view Entry_Window(std::string_view Type);

inline constexpr const char* ball_bounce = "ball_bounce.wav";
inline constexpr const char* stapler = "stapler.wav";

}  // namespace tallymere
