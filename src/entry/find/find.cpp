#include "entry/find/find.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr const char* found_rows =
    "SELECT Type, Date, Name, AccountName, Amount, TransNum FROM Transactions LEFT JOIN Accounts ON CatID = Account WHERE ";

std::vector<FoundRow> Rows_Where(store::Database& company, const std::string& test,
                                 const store::Database::Params& params) {
  std::vector<FoundRow> found;
  company.each(found_rows + test, params, [&](const store::Row& row) {
    found.push_back({.Type = std::string(row.text(0)),
                     .Date = row.date(1),
                     .Name = std::string(row.text(2)),
                     .Category = std::string(row.text(3)),
                     .Amount = row.money(4),
                     .TransNum = row.integer(5)});
  });
  return found;
}

/// A pattern that finds a text anywhere, its own signs taken as they stand.
std::string Anywhere(std::string text) {
  for (const char* sign : {"\\", "%", "_"}) text = replace_all(text, sign, std::string("\\") + sign);
  return "%" + text + "%";
}

std::vector<FoundRow> Containing(store::Database& company, const std::string& field, const std::string& text) {
  return Rows_Where(company, field + " LIKE ? ESCAPE '\\' ORDER BY Date, TransNum", {Anywhere(text)});
}

std::vector<FoundRow> By_Name(store::Database& company, const std::string& name) {
  auto found = Rows_Where(company, "Name = ? ORDER BY Date", {name});
  return found.empty() ? Containing(company, "Name", name) : found;
}

std::vector<FoundRow> By_Date(store::Database& company, const FindRequest& request) {
  if (!request.date_to) return Rows_Where(company, "Date = ? ORDER BY TransNum", {request.date});
  const auto [from, to] = std::minmax(request.date, *request.date_to);
  return Rows_Where(company, "Date BETWEEN ? AND ? ORDER BY Date, TransNum", {from, to});
}

/// Amounts are looked up in cents.
std::vector<FoundRow> By_Amount(store::Database& company, const FindRequest& request) {
  const Money amount = Money::parse(request.text)->rounded_to_cents();
  const auto other = Money::parse(request.text_to);
  if (!other) return Rows_Where(company, "Amount = ? ORDER BY Date", {amount});
  const auto [from, to] = std::minmax({amount, other->rounded_to_cents()});
  return Rows_Where(company, "Amount BETWEEN ? AND ? ORDER BY Date", {from, to});
}

}  // namespace

std::optional<Fault> Check_Find(const FindRequest& request) {
  const Box no_number{"Please Enter a Number value in the Box", "No Value"};
  if (request.by == FindBy::Amount && !Money::parse(request.text)) return Fault{no_number, "txtNumber"};
  if (request.by == FindBy::Amount && !trim(request.text_to).empty() && !Money::parse(request.text_to))
    return Fault{no_number, "txtNumberTo"};
  if (request.by == FindBy::Name && trim(request.text).empty())
    return Fault{{"Please Pick a Name", "No Value"}, "cmbVen"};
  return {};
}

std::vector<FoundRow> Find_Transactions(Session& session, const FindRequest& request) {
  store::Database& company = *session.dbCompany;
  switch (request.by) {
    case FindBy::Name:
      return By_Name(company, std::string(trim(request.text)));
    case FindBy::Date:
      return By_Date(company, request);
    case FindBy::Amount:
      return By_Amount(company, request);
    case FindBy::Number:
      return Rows_Where(company, "Number = ? ORDER BY Date", {request.text});
    case FindBy::Memo:
      return request.text.empty() ? std::vector<FoundRow>{} : Containing(company, "Memo", request.text);
  }
  return {};
}

}  // namespace tallymere
