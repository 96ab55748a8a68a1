#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/store/database.h"

/// Numbers that documents come up with. They are proposals, for the person to change; none that is in use is proposed.
namespace tallymere {

/// Where documents of a kind keep their number.
struct NumberField {
  std::string_view table;
  std::string_view field;
  std::string_view Type = {};  ///< of transactions
};
inline constexpr NumberField Invoice_Numbers = {"Transactions", "Number", "Invoice"};
inline constexpr NumberField Estimate_Numbers = {"Estimates", "EstimateNumber"};
inline constexpr NumberField PO_Numbers = {"POs", "PONumber"};
inline constexpr NumberField Slip_Numbers = {"PSlips", "PONumber"};

/// `from`, or the first number after it that no document has.
std::string Next_Free_Number(store::Database& db, const NumberField& numbers, int64_t from);

/// An invoice's: one more than the last invoice's in the order of the walk where that is a number, else than there are
/// rows of invoices; "1" for the first.
std::string Next_Invoice_Number(store::Database& db);
/// A paper's: one more than there are.
std::string Next_Paper_Number(store::Database& db, const NumberField& numbers);
/// A clone's: one more than the highest number of all.
std::string After_Highest_Number(store::Database& db, const NumberField& numbers);

}  // namespace tallymere
