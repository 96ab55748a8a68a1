#include "lists/terms.h"

#include "core/store/recordset.h"
#include "core/values/money.h"

namespace tallymere {
namespace {

constexpr int most_days = 32767;  // what the field holds

/// The day amount as it is typed, as a whole number.
std::optional<int> Days_Typed(const std::string& typed) {
  const auto days = Money::parse(typed);
  if (!days || days->abs() > Money::dollars(most_days)) return std::nullopt;
  return static_cast<int>(days->to_double());
}

}  // namespace

std::optional<int> Term_Days(Session& session, const std::string& Term) {
  if (Term.empty()) return std::nullopt;
  const store::Value days = session.dbCompany->value("SELECT Days FROM Terms WHERE Term = ?", {Term});
  return days.blank() ? std::nullopt : std::optional(static_cast<int>(days.integer()));
}

std::optional<Date> Due_Date(Session& session, const std::string& Term, Date date) {
  const auto days = Term_Days(session, Term);
  return days ? std::optional(date.plus_days(*days)) : std::nullopt;
}

bool Add_Term(Session& session, const std::string& Term, const std::string& question) {
  const auto days = Days_Typed(session.prompts.input("New Term", question).value_or(""));
  if (!days) return false;
  store::Transaction tx(*session.dbCompany, "New term " + Term);
  auto rows = session.dbCompany->OpenRecordset("SELECT * FROM Terms WHERE 1 = 0");
  rows.AddNew();
  rows["Term"] = Term;
  rows["Days"] = *days;
  rows.Update();
  tx.commit();
  return true;
}

}  // namespace tallymere
