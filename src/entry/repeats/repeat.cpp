#include "entry/repeats/repeat.h"

#include <algorithm>
#include <tuple>

#include "core/ledger/ledger.h"
#include "core/values/caseless.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

struct Period {
  const char* Frequency;
  int days = 0, months = 0;  ///< both 0: semimonthly
};
constexpr Period periods[] = {
    {"Daily", 1},      {"Weekly", 7},       {"Biweekly", 14},       {"Semimonthly"},    {"Every Four Weeks", 28},
    {"Monthly", 0, 1}, {"Quarterly", 0, 3}, {"Semiannually", 0, 6}, {"Annually", 0, 12}};

const Period* Find_Period(const std::string& Frequency) {
  const auto found =
      std::ranges::find_if(periods, [&](const Period& period) { return same_text(period.Frequency, Frequency); });
  return found == std::end(periods) ? nullptr : found;
}

Date Semimonthly(Date date) {
  if (date.day() > 15) return date.end_of_month().plus_days(15);
  return date == date.end_of_month() ? date.end_of_month().plus_days(15) : date.end_of_month();
}

constexpr int64_t most_days = 3650, most_repeats = 32767;

/// A whole number from 0 to `most`; blank is 0.
std::optional<int64_t> Whole(const std::string& typed, int64_t most) {
  const std::string digits = trim(typed);
  if (digits.size() > 6 || !std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; }))
    return std::nullopt;
  const int64_t number = digits.empty() ? 0 : std::stoll(digits);
  return number <= most ? std::optional(number) : std::nullopt;
}

std::optional<Fault> Form_Fault(const RepeatForm& form) {
  if (form.TransactionID == 0)
    return Fault{{"Please save the transaction before it is repeated.", "Not Valid", Icon::Information}, "txtName"};
  const std::pair<bool, const char*> missing[] = {{trim(form.Name).empty(), "txtName"},
                                                  {!Find_Period(form.Frequency), "cmbFreq"},
                                                  {!form.NextDate, "dteNextDate"},
                                                  {trim(form.AdvDays).empty(), "txtAdvDays"}};
  for (const auto& [is_missing, control] : missing)
    if (is_missing)
      return Fault{{"Please Enter all information in the form for Repeat Transaction.", "Not Valid", Icon::Critical},
                   control};
  const std::tuple<std::string, int64_t, const char*> numbers[] = {{form.AdvDays, most_days, "txtAdvDays"},
                                                                   {form.NumRemain, most_repeats, "txtRepeat"}};
  for (const auto& [typed, most, control] : numbers)
    if (!Whole(typed, most))
      return Fault{
          {"Please enter a whole number from 0 to " + std::to_string(most) + ".", "Not Valid", Icon::Information},
          control};
  return std::nullopt;
}

std::optional<Fault> Write_Repeat(Session& session, ListRow& row, const RepeatForm& form) {
  const std::string name = trim(form.Name);
  if (!same_text(name, row.key()) && Row_Exists(session, Repeat_Rows, name))
    return Fault{{"Please Enter a Unique name for this Repeat.", "Duplicate Name", Icon::Information}, "txtName"};
  row.set_text("Name", name);
  row.set_text("Type", form.Type);
  row.set_text("SourceCat", form.SourceCat);
  row.set_text("Frequency", form.Frequency);
  const auto set = [&](const char* field, const store::Value& value) {
    if (row.is_new() || row[field].value() != value) row[field] = value;
  };
  set("Amount", form.Amount);
  set("TransactionID", form.TransactionID);
  set("AdvDays", *Whole(form.AdvDays, most_days));
  set("NumRemain", trim(form.NumRemain).empty() ? store::Value() : store::Value(*Whole(form.NumRemain, most_repeats)));
  if (row.is_new() || row["NextDate"].maybe_date() != form.NextDate) {
    row["NextDate"] = form.NextDate;
    row["AnchorDay"] = static_cast<int>(form.NextDate->day());
  }
  return std::nullopt;
}

}  // namespace

std::vector<RepeatRow> Load_Repeats(Session& session) {
  CaselessMap<std::string> categories;
  session.dbCompany->each("SELECT CatID, AccountName FROM Accounts", {},
                          [&](const store::Row& row) { categories[std::string(row.text(0))] = row.text(1); });
  std::vector<RepeatRow> rows;
  session.dbCompany->each("SELECT Name, Type, SourceCat, Amount, Frequency, NextDate FROM RepeatTrans ORDER BY Name",
                          {}, [&](const store::Row& row) {
                            const auto category = categories.find(row.text(2));
                            rows.push_back({std::string(row.text(0)), std::string(row.text(1)),
                                            category == categories.end() ? "" : category->second, row.money(3),
                                            std::string(row.text(4)), row.date(5)});
                          });
  return rows;
}

std::vector<std::string> Frequencies() {
  std::vector<std::string> names;
  for (const Period& period : periods) names.emplace_back(period.Frequency);
  return names;
}

Date Next_Date(const std::string& Frequency, Date date, int anchor) {
  const Period* period = Find_Period(Frequency);
  if (!period) return date;
  if (period->days) return date.plus_days(period->days);
  if (!period->months) return Semimonthly(date);
  const Date end = date.first_of_month().add_months(period->months).end_of_month();
  return end.first_of_month().plus_days(std::min(anchor, static_cast<int>(end.day())) - 1);
}

RepeatForm Repeat_Form(ListRow& row) {
  return {.Name = row.key(),
          .Frequency = row["Frequency"].text(),
          .NextDate = row["NextDate"].maybe_date(),
          .AdvDays = row["AdvDays"].blank() ? "0" : row["AdvDays"].text(),
          .NumRemain = row["NumRemain"].text(),
          .Type = row["Type"].text(),
          .SourceCat = row["SourceCat"].text(),
          .Amount = row["Amount"].money(),
          .TransactionID = row["TransactionID"].integer()};
}

std::optional<RepeatForm> New_Repeat(Session& session, const std::string& Type, int64_t TransNum) {
  std::optional<RepeatForm> form;
  session.dbCompany->each(
      "SELECT Account, Amount FROM Transactions WHERE TransNum = ? AND Type = ? ORDER BY RowKey LIMIT 1",
      {TransNum, Type}, [&](const store::Row& head) {
        form = RepeatForm{.NextDate = session.today(),
                          .Type = Type,
                          .SourceCat = std::string(head.text(0)),
                          .Amount = head.money(1),
                          .TransactionID = TransNum};
      });
  return form;
}

RowSave Save_Repeat(Session& session, ListRow& row, const RepeatForm& form) {
  if (auto fault = Form_Fault(form)) return {.fault = std::move(fault)};
  return Save_Row(session, row, "repeat " + trim(form.Name),
                  [&](ListRow& fields) { return Write_Repeat(session, fields, form); });
}

bool Delete_Repeat(Session& session, const std::string& Name) {
  const Box question{"Are you sure you want to delete \"" + Name + "\"", "Confirm Delete", Icon::Critical};
  if (!session.prompts.ask(question, Buttons::YesNoDefaultNo)) return false;
  store::Transaction tx(*session.dbCompany, "Deleted repeat " + Name);
  session.dbCompany->Execute("DELETE FROM RepeatTrans WHERE Name = ?", {Name});
  tx.commit();
  return true;
}

}  // namespace tallymere
