#include "entry/sales/inventory_posting.h"

#include "core/company/preferences.h"
#include "core/stock/stock.h"

namespace tallymere {

InventoryPosting Inventory_Rule(store::Database& company) {
  const bool cost = Preference(company, "InventoryPosting") == "Cost";
  return cost ? InventoryPosting::Cost : InventoryPosting::Sale;
}

std::optional<InventoryPosting> Rule_Of(const std::vector<LedgerRow>& rows) {
  if (rows.size() != 3) return std::nullopt;
  const auto net = [&](size_t row) { return rows[row].Credit - rows[row].Debit; };
  const bool sale = !net(2).is_zero() && net(0) == net(2) && net(1) == net(2);
  return sale ? InventoryPosting::Sale : InventoryPosting::Cost;
}

Money Cost_Of(const std::vector<LedgerRow>& rows) { return rows.front().Credit - rows.front().Debit; }

Money Cost_Now(Session& session, const ItemFacts& item, std::optional<double> quantity) {
  if (!quantity) return {};
  const PartCost bought = Average_Cost(*session.dbCompany, item.ItemName);
  const Money cost =
      bought.average().is_zero() ? item.Cost.value_or(Money()).times(*quantity) : bought.value(*quantity);
  return cost.rounded_to_cents();
}

void Post_Part(std::vector<LedgerRow>& rows, InventoryPosting rule, std::optional<Money> amount, Money cost) {
  const std::optional<Money> sale = amount.value_or(Money());
  for (LedgerRow& row : rows) Post(row, LineSide::Credit, sale);
  if (rule == InventoryPosting::Sale) return;
  Post(rows[0], LineSide::Credit, cost);
  Post(rows[1], LineSide::Debit, cost);
  for (LedgerRow& row : rows) row.Amount = sale->abs();
}

}  // namespace tallymere
