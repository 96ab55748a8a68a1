#include "entry/stock/adjustment.h"

#include <algorithm>
#include <cmath>

#include "core/ledger/ledger.h"
#include "core/stock/stock.h"
#include "core/values/caseless.h"
#include "entry/document/lines.h"

namespace tallymere {
namespace {

/// Quantities are decimals to the eye: 2.2 - 0.1 is 2.1.
double Decimal(double quantity) { return std::round(quantity * 1e6) / 1e6; }

}  // namespace

std::optional<double> StockCount::Difference() const {
  return New ? std::optional(Decimal(*New - Current)) : std::nullopt;
}

Money StockCount::Value() const { return Price.times(Difference().value_or(0)); }

Money Adjustment::Value() const {
  Money sum;
  for (const StockCount& part : parts) sum += part.Value();
  return sum;
}

// --- stock -----------------------------------------------------------------------------------------------

std::vector<StockCount> Stock_Counts(Session& session) {
  const auto stock = Stock_On_Hand(*session.dbCompany);
  std::vector<StockCount> parts;
  session.dbCompany->each(
      "SELECT ItemName, Description, Cost, InvAsset FROM Items WHERE ItemType = 'Inventory Part' ORDER BY ItemName", {},
      [&](const store::Row& row) {
        const std::string name(row.text(0));
        const auto found = stock.find(name);
        parts.push_back({.Item = name,
                         .Description = std::string(row.text(1)),
                         .Current = found == stock.end() ? 0 : Decimal(found->second),
                         .Price = row.money(2),
                         .InvAsset = std::string(row.text(3))});
      });
  return parts;
}

void Read_Stock_Again(Session& session, Adjustment& adjustment) {
  CaselessMap<std::optional<double>> counted;
  for (const StockCount& part : adjustment.parts) counted[part.Item] = part.New;
  adjustment.parts = Stock_Counts(session);
  for (StockCount& part : adjustment.parts)
    if (const auto found = counted.find(part.Item); found != counted.end()) part.New = found->second;
}

// --- saving ----------------------------------------------------------------------------------------------

namespace {

/// The first counted part of which something else is in stock by now, or that is none any more.
const StockCount* Moved(Session& session, const std::vector<StockCount>& counted) {
  CaselessMap<double> now;
  for (const StockCount& part : Stock_Counts(session)) now[part.Item] = part.Current;
  const auto moved = std::ranges::find_if(counted, [&](const StockCount& part) {
    const auto found = now.find(part.Item);
    return found == now.end() || found->second != part.Current;
  });
  return moved == counted.end() ? nullptr : &*moved;
}

/// More stock than thought debits the part's asset, less credits it.
LedgerRow Part_Row(const StockCount& part, const std::string& Category) {
  LedgerRow row{.Account = part.InvAsset,
                .Category = Category,
                .Item = part.Item,
                .ItemDescription = part.Description,
                .Qty = part.Difference(),
                .SalePrice = part.Price};
  Post(row, LineSide::Debit, part.Value());
  return row;
}

void Write_Adjustment(Session& session, const Adjustment& adjustment, const std::vector<StockCount>& counted) {
  Transaction_Writer rows(session, {.Type = "Inv Adjust", .Date = adjustment.Date});
  const std::string category = Get_Postable_Category(session, adjustment.CatID);
  LedgerRow head{.Account = category, .Category = break_down};
  Post(head, LineSide::Credit, adjustment.Value());
  rows.add(std::move(head));
  for (const StockCount& part : counted) rows.add(Part_Row(part, category));
  rows.commit();
}

}  // namespace

SaveResult Enter_Adjustment(Session& session, const Adjustment& adjustment) {
  if (adjustment.CatID.empty())
    return {.fault = Mistake("Please Select a Category to Adjust From.", "No Category", "cmbCat")};
  std::vector<StockCount> counted;
  std::ranges::copy_if(adjustment.parts, std::back_inserter(counted),
                       [](const StockCount& part) { return part.New.has_value(); });
  if (counted.empty()) return {};
  std::string moved;
  SaveResult result;
  result.conflict = Save_Or_Conflict([&] {
    store::Transaction tx(*session.dbCompany, "Inv Adjust, " + std::to_string(counted.size()) + " counted");
    if (const StockCount* part = Moved(session, counted)) {
      moved = part->Item;
      throw store::Error(store::errors::data_changed, "Stock has moved.");
    }
    Write_Adjustment(session, adjustment, counted);
    tx.commit();
  });
  if (!moved.empty())
    result.conflict->box.detail =
        "The stock of " + moved + " has moved since. Your counts stay, to be looked at again.";
  result.written = !result.conflict;
  return result;
}

}  // namespace tallymere
