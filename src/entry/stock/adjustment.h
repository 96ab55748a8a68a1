#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/document.h"

/// Counting the stock: what was found differs from what the books say, and a category takes the difference.
namespace tallymere {

/// A part as grdInventory shows it.
struct StockCount {
  std::string Item = {};
  std::string Description = {};
  double Current = 0;              ///< in stock by the books
  std::optional<double> New = {};  ///< as counted; nothing: not counted
  Money Price = {};                ///< what one costs
  std::string InvAsset = {};

  std::optional<double> Difference() const;
  Money Value() const;  ///< of the difference, negative where stock is missing
};

/// What frmInvAdjust shows.
struct Adjustment {
  tallymere::Date Date;
  std::string CatID = {};  ///< lblCatID
  std::vector<StockCount> parts = {};

  Money Value() const;  ///< lblValue
};

/// All parts with what is in stock of them now.
std::vector<StockCount> Stock_Counts(Session& session);
/// The same parts with what is in stock now; what was counted stays.
void Read_Stock_Again(Session& session, Adjustment& adjustment);

/// Writes the adjustment; without a count there is nothing to write. Where stock of a counted part moved since it was
/// read, nothing is written, and the conflict says so.
SaveResult Enter_Adjustment(Session& session, const Adjustment& adjustment);

}  // namespace tallymere
