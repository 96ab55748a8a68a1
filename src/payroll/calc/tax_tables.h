#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"
#include "payroll/calc/exact.h"

/// The withholding tables of Accounts.mdb, as the calculation walks them.
namespace tallymere {

/// A bracket of any table: bottom, top, tax at the bottom, rate on the excess. A table without tops or bases leaves
/// them 0.
struct TaxBracket {
  std::string status;
  Exact over, under, base, rate;
  Exact allowance, standard_deduction;
};
using TaxBrackets = std::vector<TaxBracket>;  ///< in the order of the index: by status, then as loaded

/// The exemptions of Indiana under one key, an amount per pay period.
struct ExemptionRow {
  std::string key;
  Exact rate;
  std::vector<Exact> amounts;  ///< in the order of pay_period_names
};

struct AllowanceOfPeriod {
  std::string pay_period;
  Exact amount;       ///< one federal allowance
  Exact periods = 1;  ///< in a year
};

struct TaxTables {
  std::vector<TaxBrackets> federal;  ///< in the order of pay_period_names
  std::vector<AllowanceOfPeriod> allowances;
  TaxBrackets minnesota, wisconsin, missouri;
  std::vector<ExemptionRow> indiana_allowances, indiana_statuses;
  struct Illinois {
    Exact rate, line1, line2;
  };
  std::optional<Illinois> illinois;

  static TaxTables Read(store::Database& accounts);
  /// The same, read again only once somebody has changed the file.
  static std::shared_ptr<const TaxTables> Of(store::Database& accounts);

  // Error 3021, saying which row is missing, where there is none.
  const TaxBrackets& federal_of(std::string_view pay_period) const;
  const AllowanceOfPeriod& allowance_of(std::string_view pay_period) const;
};

/// The rows of one filing status, as a table has them; Error 3021 when it has none.
class StatusRows {
 public:
  StatusRows(const TaxBrackets& table, std::string_view table_name, std::string_view status);
  const TaxBracket& first() const { return *begin_; }
  /// The first row from the top down for which `stop` is true; Error 3021 when the status ends before.
  template <typename Stop>
  const TaxBracket& walk(Stop&& stop) const {
    for (const TaxBracket* row = begin_; row != end_; ++row)
      if (stop(*row)) return *row;
    past_the_end();
  }
  /// Error 3021 before the first row.
  const TaxBracket& before(const TaxBracket& row) const;

 private:
  [[noreturn]] void past_the_end() const;
  const TaxBracket* begin_;
  const TaxBracket* end_;
  std::string what_;
};

}  // namespace tallymere
