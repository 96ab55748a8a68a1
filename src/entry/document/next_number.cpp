#include "entry/document/next_number.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

/// A number as it is counted on from; nothing for text, and for what is too long to be counted.
std::optional<int64_t> Whole_Number(std::string_view text) {
  const std::string digits(trim(text));
  if (digits.empty() || digits.size() > 15 || !std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; }))
    return std::nullopt;
  return std::stoll(digits);
}

struct Select {
  std::string sql;
  store::Database::Params params;
};

Select All(const NumberField& numbers, const std::string& what) {
  Select all{"SELECT " + what + " FROM " + store::Quoted(numbers.table), {}};
  if (numbers.Type.empty()) return all;
  all.sql += " WHERE Type = ?";
  all.params.emplace_back(numbers.Type);
  // A transaction has many rows and one head: invoices are met where they stand in receivables.
  if (numbers.Type == "Invoice") all.sql += " AND Account = 'AR1'";
  return all;
}

std::unordered_set<int64_t> Used(store::Database& db, const NumberField& numbers) {
  std::unordered_set<int64_t> used;
  const Select all = All(numbers, store::Quoted(numbers.field));
  db.each(all.sql, all.params, [&](const store::Row& row) {
    if (const auto number = Whole_Number(row.text(0))) used.insert(*number);
  });
  return used;
}

bool Is_Used(store::Database& db, const NumberField& numbers, int64_t number) {
  Select found = All(numbers, "1");
  found.sql += (found.params.empty() ? " WHERE " : " AND ") + store::Quoted(numbers.field) + " = ? LIMIT 1";
  found.params.emplace_back(std::to_string(number));
  return !db.value(found.sql, found.params).is_null();
}

int64_t Count(store::Database& db, const Select& all) { return db.value(all.sql, all.params).integer(); }

}  // namespace

std::string Next_Free_Number(store::Database& db, const NumberField& numbers, int64_t from) {
  if (!Is_Used(db, numbers, from)) return std::to_string(from);
  const auto used = Used(db, numbers);
  while (used.contains(from)) ++from;
  return std::to_string(from);
}

std::string Next_Invoice_Number(store::Database& db) {
  const std::string last = db.value(
                                 "SELECT Number FROM Transactions WHERE Type = 'Invoice' AND Account = 'AR1' ORDER BY "
                                 "Date DESC, TransNum DESC LIMIT 1")
                               .text();
  if (const auto number = Whole_Number(last)) return Next_Free_Number(db, Invoice_Numbers, *number + 1);
  const int64_t rows = db.value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Invoice'").integer();
  return Next_Free_Number(db, Invoice_Numbers, rows + 1);
}

std::string Next_Paper_Number(store::Database& db, const NumberField& numbers) {
  return Next_Free_Number(db, numbers, Count(db, All(numbers, "COUNT(*)")) + 1);
}

std::string After_Highest_Number(store::Database& db, const NumberField& numbers) {
  const auto used = Used(db, numbers);
  const auto highest = std::ranges::max_element(used);
  return std::to_string(highest == used.end() ? 1 : *highest + 1);
}

}  // namespace tallymere
