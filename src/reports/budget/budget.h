#pragma once

#include <array>
#include <optional>

#include "core/company/session.h"

/// What is planned: an amount for each month of a category's year.
namespace tallymere {

inline constexpr int months_of_a_year = 12;
using Budget_Amounts = std::array<std::optional<Money>, months_of_a_year>;  ///< nothing: no row for that month

/// The amounts of a category's year; of a month that stands twice, the first.
Budget_Amounts Load_Budget(store::Database& db, const std::string& CatID, int year);

/// Writes a year so that each month has one row; a month left empty is zero. Error 3197 when it does not stand any
/// more as it was `loaded`.
void Save_Budget(Session& session, const std::string& CatID, int year, const Budget_Amounts& loaded,
                 const Budget_Amounts& amounts);

/// A year's budget after what the category and all below it came to the year before, so many percent more; to the
/// cent.
Budget_Amounts Budget_From_Actual(store::Database& db, const std::string& CatID, int year, double percent);

}  // namespace tallymere
