#pragma once

#include <cstdint>

#include "reports/sums/ledger_sums.h"

namespace tallymere {

/// The income statement's rows of the whole ledger, held in memory: with it a report follows at once when its
/// dates change. The sums of the same names in ledger_sums.h ask it for as long as nobody changes the
/// company.
class KeptLedger {
 public:
  /// Reads the ledger on for some milliseconds, while the program has nothing else to do; false when there is
  /// no more to do. Gives up when somebody changes the company meanwhile or when reading fails; the next call
  /// begins again.
  static bool Read_Ahead(store::Database& db);

  /// The one of an open company; nullptr unless it is whole, still true, and holds all these categories.
  static const KeptLedger* Of(store::Database& db, const CatIDs& categories);

  Figures Sum_Category(const CatIDs& categories, const SumRange& range) const;
  ColumnFigures Sum_Category_By_Name(const CatIDs& categories, const SumRange& range,
                                     const std::vector<std::string>& names) const;
  ColumnFigures Sum_Category_By_Class(const CatIDs& categories, const SumRange& range,
                                      const std::vector<std::string>& classes) const;
  void Sum_Category_By_Day(const CatIDs& categories, const SumRange& range, const TakeAmount& take) const;
  void Sum_CashIncome(const CatIDs& categories, DateRange days, const TakeAmount& take) const;

 private:
  friend class LedgerReader;

  using TextId = uint32_t;
  static constexpr TextId no_text = 0;
  struct Row {
    Date day;
    TextId category, Name, Class;
    bool counts;       ///< on cash basis, in periods that end
    Date counts_from;  ///< on this day or later
    Money value;
  };
  struct Income {
    Date day;
    TextId category;
    Money amount;
  };

  TextId id_of(std::string_view text) const;
  /// The places of each text in a list, by the text's id.
  std::vector<std::vector<size_t>> places_in(const std::vector<std::string>& list) const;
  /// fn(place of the row's category, row) for each row that counts.
  template <typename Fn>
  void each_counted(const CatIDs& categories, const SumRange& range, Fn&& fn) const;
  ColumnFigures sum_columns(const CatIDs& categories, const SumRange& range, const std::vector<std::string>& captions,
                            TextId Row::*caption) const;

  std::vector<Row> rows_;       ///< by day
  std::vector<Income> income_;  ///< what counts by its payments on cash basis, by day
  CaselessMap<TextId> texts_;   ///< categories, which have the lowest ids, names and classes
  size_t categories_ = 0;       ///< how many it holds
  store::ChangeStamp read_at_;  ///< of no moment until it is whole
};

}  // namespace tallymere
