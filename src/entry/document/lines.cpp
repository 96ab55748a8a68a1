#include "entry/document/lines.h"

#include "core/ledger/ledger.h"
#include "core/ledger/stored_row.h"
#include "core/store/recordset.h"
#include "core/values/format.h"

namespace tallymere {

// --- items -----------------------------------------------------------------------------------------------

ItemFacts Item_Facts(Session& session, const std::string& ItemName) {
  if (ItemName.empty()) return {};
  auto item = session.dbCompany->OpenRecordset("SELECT * FROM Items WHERE ItemName = ?", {ItemName});
  if (!item.has_row()) return {};
  const auto amount = [&](const char* field) {
    return item[field].blank() ? std::nullopt : std::optional(item[field].money());
  };
  return {.known = true,
          .ItemName = item["ItemName"].text(),
          .ItemType = item["ItemType"].text(),
          .Description = item["Description"].text(),
          .InvPurchaseDesc = item["InvPurchaseDesc"].text(),
          .ItemCat = item["ItemCat"].text(),
          .COGScat = item["COGScat"].text(),
          .InvAsset = item["InvAsset"].text(),
          .PayMethod = item["PayMethod"].text(),
          .PayTo = item["PayTo"].text(),
          .PriceRate = amount("PriceRate"),
          .ExactRate = item["ExactRate"].blank() ? std::nullopt : std::optional(item["ExactRate"].number()),
          .Cost = amount("Cost"),
          .InvTaxable = item["InvTaxable"].flag()};
}

ItemRate Line_Rate(const ItemLine& line, const ItemFacts& item) {
  const ItemRate kept = Rate_Of(line.Cost, line.kept ? line.kept->ExactRate : std::nullopt);
  return kept.ExactRate ? kept : Rate_Of(line.Cost, item.ExactRate);
}

std::optional<Money> Item_Amount(const ItemLine& line, std::string_view ItemType) {
  if (ItemType == "Subtotal" || ItemType == "Sales Tax") return line.Amount;
  if (!line.Cost) return std::nullopt;
  return line.Quantity ? line.Cost->times(*line.Quantity) : *line.Cost;
}

// --- while lines are typed -------------------------------------------------------------------------------

std::optional<Money> Expense_Remainder(std::vector<ExpenseLine>& expenses, Money amount) {
  std::erase_if(expenses, [](const ExpenseLine& line) { return !line.Amount; });
  const Money rest = amount - Sum_Of(expenses);
  return rest.is_zero() ? std::nullopt : std::optional(rest);
}

std::string Assigned_Text(Money assigned, Money left) {
  return "Assigned " + Format(assigned, "#,##0.00") + ", left " + Format(left, "#,##0.00");
}

void Drop_Blank_Lines(std::vector<ExpenseLine>& expenses, std::vector<ItemLine>& items) {
  std::erase_if(expenses, [](const ExpenseLine& line) { return line.CatID.empty(); });
  std::erase_if(items, [](const ItemLine& line) { return line.blank(); });
}

// --- lines and rows --------------------------------------------------------------------------------------

void Post(LedgerRow& row, LineSide side, std::optional<Money> amount) {
  const Money shown = amount.value_or(Money());
  const bool debit = (side == LineSide::Debit) != shown.is_negative();
  row.Debit = debit ? shown.abs() : Money();
  row.Credit = debit ? Money() : shown.abs();
  row.Amount = amount ? std::optional(amount->abs()) : std::nullopt;
}

std::optional<Money> Posted(const LedgerRow& row, LineSide side) {
  const Money net = side == LineSide::Debit ? row.Debit - row.Credit : row.Credit - row.Debit;
  return net.is_zero() ? row.Amount : net;
}

namespace {

KeptRow Kept(LedgerRow row, const LedgerRow& head) {
  Follow_Head(row, head);
  return std::make_shared<const LedgerRow>(std::move(row));
}

LedgerRow Begin_Row(const KeptRow& kept) { return kept ? *kept : LedgerRow{}; }

}  // namespace

ExpenseLine Read_Expense(Session& session, const LedgerRow& row, const LedgerRow& head, LineSide side) {
  return {.Category = Category_Name(session, row.Account),
          .Amount = Posted(row, side),
          .Memo = row.Memo,
          .Customer = row.SourceName,
          .Class = row.Class,
          .CatID = row.Account,
          .kept = Kept(row, head)};
}

ItemLine Read_Item(const LedgerRow& row, const LedgerRow& head, LineSide side) {
  return {.Item = row.Item,
          .Description = row.ItemDescription,
          .Quantity = row.Qty,
          .Cost = row.SalePrice,
          .Amount = Posted(row, side),
          .Customer = row.SourceName,
          .Class = row.Class,
          .Tax = row.Taxable,
          .CatID = row.Account,
          .kept = Kept(row, head)};
}

std::string Posts_To(Session& session, const std::string& CatID, const KeptRow& kept) {
  return kept && kept->Account == CatID ? CatID : Get_Postable_Category(session, CatID);
}

LedgerRow Expense_Row(Session& session, const ExpenseLine& line, const std::string& Category, LineSide side) {
  LedgerRow row = Begin_Row(line.kept);
  row.Account = Posts_To(session, line.CatID, line.kept);
  row.Category = Category;
  Post(row, side, line.Amount);
  row.Memo = line.Memo;
  row.SourceName = line.Customer;
  row.Class = line.Class;
  return row;
}

LedgerRow Item_Row(const ItemLine& line, const std::string& Category, LineSide side) {
  LedgerRow row = Begin_Row(line.kept);
  row.Account = line.CatID;
  row.Category = Category;
  Post(row, side, line.Amount);
  row.SourceName = line.Customer;
  row.Class = line.Class;
  row.Item = line.Item;
  row.ItemDescription = line.Description;
  row.Qty = line.Quantity;
  row.SalePrice = line.Cost;
  row.ExactRate = Rate_Of(line.Cost, row.ExactRate).ExactRate;  // unless another rate was typed
  row.Taxable = line.Tax;
  return row;
}

std::string Other_Side(Session& session, const std::vector<ExpenseLine>& expenses, const std::vector<ItemLine>& items) {
  if (!items.empty() || expenses.size() > 1) return break_down;
  return expenses.empty() ? "" : Posts_To(session, expenses.front().CatID, expenses.front().kept);
}

}  // namespace tallymere
