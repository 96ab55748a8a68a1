#include "core/ledger/numbers.h"

#include <algorithm>
#include <charconv>

#include "core/company/schema.h"
#include "core/ledger/marks.h"
#include "core/store/error.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::string_view number_mark = "TransNum", category_mark = "CatID", ending = "SS";
constexpr int64_t last_number = 2'147'483'647;  // a Long

/// Marks stand one higher than a category's number: 0 says that there was none.
int64_t Count_Of(std::string_view CatID) {
  if (CatID.size() <= ending.size() || !same_text(CatID.substr(CatID.size() - ending.size()), ending)) return 0;
  const std::string_view digits = CatID.substr(0, CatID.size() - ending.size());
  int64_t number = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool whole = fault == std::errc() && end == digits.data() + digits.size();
  return whole && number >= 0 && number < last_number ? number + 1 : 0;
}

int64_t Highest_Category(store::Database& db, const std::string& sql) {
  int64_t highest = 0;
  db.each(sql, {}, [&](const store::Row& row) { highest = std::max(highest, Count_Of(row.text(0))); });
  return highest;
}

std::string Names_In(const Reference& link) {
  return "SELECT DISTINCT " + store::Quoted(link.from_field) + " FROM " + store::Quoted(link.from_table);
}

}  // namespace

int64_t Next_TransNum(store::Database& db) {
  const int64_t highest = std::max(Mark(db, number_mark), db.value("SELECT MAX(TransNum) FROM Transactions").integer());
  if (highest >= last_number)
    throw store::Error(store::errors::duplicate_key, "All transaction numbers of this company are used up.");
  return highest + 1;
}

std::string Unused_CatID(store::Database& db) {
  const int64_t count = std::max(Mark(db, category_mark), Highest_Category(db, "SELECT CatID FROM Accounts"));
  return std::to_string(count) + std::string(ending);
}

void Note_TransNum(store::Database& db, int64_t TransNum) { Raise_Mark(db, number_mark, TransNum); }

void Note_CatID(store::Database& db, const std::string& CatID) { Raise_Mark(db, category_mark, Count_Of(CatID)); }

void Note_All_Numbers(store::Database& db) {
  int64_t number = db.value("SELECT MAX(TransNum) FROM Transactions").integer();
  int64_t category = Highest_Category(db, "SELECT CatID FROM Accounts");
  for (const Reference& link : references()) {
    if (!db.find_table(link.from_table)) continue;
    if (link.to_table == "Accounts") category = std::max(category, Highest_Category(db, Names_In(link)));
    if (link.to_table == "Transactions")
      db.each(Names_In(link), {}, [&](const store::Row& row) { number = std::max(number, row.integer(0)); });
  }
  db.each("SELECT DISTINCT PaidBy FROM Transactions WHERE PaidBy IS NOT NULL", {}, [&](const store::Row& row) {
    for (const std::string& payer : split(row.text(0), ";"))
      number = std::max<int64_t>(number, std::atoll(payer.c_str()));
  });
  Note_TransNum(db, std::min(number, last_number));
  Raise_Mark(db, category_mark, category);
}

}  // namespace tallymere
