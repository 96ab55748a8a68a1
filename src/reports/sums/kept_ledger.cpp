#include "reports/sums/kept_ledger.h"

#include <algorithm>

namespace tallymere {
namespace {

/// What a list sorted by day has of a period.
template <typename T>
std::pair<const T*, const T*> In_Period(const std::vector<T>& sorted, DateRange days) {
  auto first = std::partition_point(sorted.begin(), sorted.end(), [&](auto& row) { return row.day < days.start; });
  auto last = std::partition_point(first, sorted.end(), [&](auto& row) { return row.day <= days.end; });
  return {sorted.data() + (first - sorted.begin()), sorted.data() + (last - sorted.begin())};
}

}  // namespace

const KeptLedger* KeptLedger::Of(store::Database& db, const CatIDs& categories) {
  const KeptLedger& ledger = db.kept<KeptLedger>();
  if (ledger.read_at_ != db.change_stamp()) return nullptr;
  const bool holds_all = std::all_of(categories.begin(), categories.end(), [&](const std::string& id) {
    const TextId text = ledger.id_of(id);
    return text != no_text && text <= ledger.categories_;
  });
  return holds_all ? &ledger : nullptr;
}

KeptLedger::TextId KeptLedger::id_of(std::string_view text) const {
  auto found = texts_.find(text);
  return found == texts_.end() ? no_text : found->second;
}

std::vector<std::vector<size_t>> KeptLedger::places_in(const std::vector<std::string>& list) const {
  std::vector<std::vector<size_t>> places(texts_.size() + 1);
  for (size_t at = 0; at < list.size(); ++at)
    if (const TextId text = id_of(list[at])) places[text].push_back(at);
  return places;
}

template <typename Fn>
void KeptLedger::each_counted(const CatIDs& categories, const SumRange& range, Fn&& fn) const {
  const auto places = places_in(categories);
  const auto [first, last] = In_Period(rows_, range.days);
  for (const Row* row = first; row != last; ++row) {
    if (range.basis == Basis::Cash && (!row->counts || row->counts_from > range.days.end)) continue;
    if (const auto& place = places[row->category]; !place.empty()) fn(place.front(), *row);
  }
}

Figures KeptLedger::Sum_Category(const CatIDs& categories, const SumRange& range) const {
  std::vector<Money> sums(categories.size());
  each_counted(categories, range, [&](size_t place, const Row& row) { sums[place] += row.value; });
  return By_Category(categories, sums);
}

ColumnFigures KeptLedger::sum_columns(const CatIDs& categories, const SumRange& range,
                                      const std::vector<std::string>& captions, TextId Row::*caption) const {
  const auto columns = places_in(captions);
  std::vector<Amounts> sums(categories.size());
  each_counted(categories, range, [&](size_t place, const Row& row) {
    for (size_t column : columns[row.*caption]) sums[place][column] += row.value;
  });
  return By_Category(categories, sums);
}

ColumnFigures KeptLedger::Sum_Category_By_Name(const CatIDs& categories, const SumRange& range,
                                               const std::vector<std::string>& names) const {
  return sum_columns(categories, range, names, &Row::Name);
}

ColumnFigures KeptLedger::Sum_Category_By_Class(const CatIDs& categories, const SumRange& range,
                                                const std::vector<std::string>& classes) const {
  return sum_columns(categories, range, classes, &Row::Class);
}

void KeptLedger::Sum_Category_By_Day(const CatIDs& categories, const SumRange& range, const TakeAmount& take) const {
  each_counted(categories, range, [&](size_t place, const Row& row) { take({place, row.day, row.value}); });
}

void KeptLedger::Sum_CashIncome(const CatIDs& categories, DateRange days, const TakeAmount& take) const {
  const auto places = places_in(categories);
  const auto [first, last] = In_Period(income_, days);
  for (const Income* part = first; part != last; ++part)
    if (const auto& place = places[part->category]; !place.empty()) take({place.front(), part->day, part->amount});
}

}  // namespace tallymere
