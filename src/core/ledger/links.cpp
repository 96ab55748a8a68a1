#include "core/ledger/links.h"

#include "core/company/field_captions.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {

bool Points_At(store::Database& db, const Reference& link, const store::Value& key) {
  if (key.blank() || !db.find_table(link.from_table)) return false;
  const std::string condition = link.condition.empty() ? "" : " AND (" + std::string(link.condition) + ")";
  return !db.value("SELECT 1 FROM " + store::Quoted(link.from_table) + " WHERE " + store::Quoted(link.from_field) +
                       " = ?" + condition + " LIMIT 1",
                   {key})
              .is_null();
}

std::optional<Reference> In_Use(store::Database& db, std::string_view table, std::string_view field,
                                const store::Value& key) {
  for (const Reference& link : references())
    if (same_text(link.to_table, table) && same_text(link.to_field, field) && Points_At(db, link, key)) return link;
  return std::nullopt;
}

std::string Use_In_Words(const Reference& link) {
  constexpr struct {
    std::string_view table, words;
  } names[] = {{"Transactions", "Transactions are posted to it."}, {"Accounts", "It has sub-categories."},
               {"GeneralPrefs", "The preferences name it."},       {"Budget", "The budget plans it."},
               {"RepeatTrans", "A repeated transaction uses it."}, {"SavedReports", "A saved report is of it."}};
  for (const auto& name : names)
    if (name.table == link.from_table) return std::string(name.words);
  return Field_Caption(link.from_table) + " name it as \"" + Field_Caption(link.from_field) + "\".";
}

}  // namespace tallymere
