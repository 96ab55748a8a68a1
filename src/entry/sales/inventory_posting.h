#pragma once

#include <optional>
#include <vector>

#include "core/ledger/transaction_writer.h"
#include "entry/document/lines.h"

/// How a sold "Inventory Part" is posted. It stands in three rows, on the item's InvAsset, COGScat and ItemCat, each with
/// its Item, Qty and the sale's Amount; what differs is their sides.
namespace tallymere {

/// The preference "InventoryPosting". Sale: the sale's amount three times on the same side, so that such an invoice does
/// not balance. Cost: stock goes out (Credit) to cost of goods (Debit) at average cost, income is credited the sale.
enum class InventoryPosting { Sale, Cost };

/// A company without the row, or with any other State than "Cost", goes by Sale.
InventoryPosting Inventory_Rule(store::Database& company);

/// "Inventory Part": what the second and third row say in SourceName.
inline constexpr std::string_view part_source = "Inventory Part";

/// How the three rows of a stored line were posted; nothing when they are not three.
std::optional<InventoryPosting> Rule_Of(const std::vector<LedgerRow>& rows);
/// What left the stock by them: what stands on InvAsset's credit side, negative for what came back.
Money Cost_Of(const std::vector<LedgerRow>& rows);

/// What `quantity` pieces cost at this moment, to the cent: at the average of what was bought, or at the item's own Cost
/// while nothing was.
Money Cost_Now(Session& session, const ItemFacts& item, std::optional<double> quantity);

/// Puts the sale and what it cost on their sides of the three rows. `amount`: as the screen shows it.
void Post_Part(std::vector<LedgerRow>& rows, InventoryPosting rule, std::optional<Money> amount, Money cost);

}  // namespace tallymere
