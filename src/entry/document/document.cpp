#include "entry/document/document.h"

#include "core/store/recordset.h"
#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {

// --- lines -----------------------------------------------------------------------------------------------

std::string Item_Category(Session& session, const std::string& ItemName) {
  auto item = session.dbCompany->OpenRecordset("SELECT * FROM Items WHERE ItemName = ?", {ItemName});
  if (!item.has_row()) return "";
  return item[item["ItemType"].text() == "Inventory Part" ? "InvAsset" : "ItemCat"].text();
}

std::string Item_Type(Session& session, const std::string& ItemName) {
  return session.dbCompany->value("SELECT ItemType FROM Items WHERE ItemName = ?", {ItemName}).text();
}

std::optional<Money> Item_Amount(const ItemLine& line, std::string_view ItemType) {
  if (ItemType == "Subtotal" || ItemType == "Sales Tax") return line.Amount;
  if (!line.Cost) return std::nullopt;
  return line.Quantity ? line.Cost->times(*line.Quantity) : *line.Cost;
}

std::optional<Money> Expense_Remainder(std::vector<ExpenseLine>& expenses, Money amount) {
  std::erase_if(expenses, [](const ExpenseLine& line) { return !line.Amount; });
  const Money rest = amount - Sum_Of(expenses);
  return rest.is_zero() ? std::nullopt : std::optional(rest);
}

// --- saving ----------------------------------------------------------------------------------------------

Fault Mistake(std::string text, std::string title, std::string control) {
  return {{std::move(text), std::move(title), Icon::Information}, std::move(control)};
}

std::optional<Fault> Balance_Fault(Money lines, Money amount, std::string control) {
  if (lines == amount) return std::nullopt;
  return Mistake("Transaction does not Balance", "No Balance", std::move(control));
}

std::string Spoken(const std::string& Type, const std::string& Number, const std::string& Name,
                   std::optional<Money> amount) {
  std::string words = Type;
  if (!Number.empty() && Number != "Print") words += " " + Number;
  if (!Name.empty()) words += (Type.ends_with("heck") ? " to " : ", ") + Name;
  if (amount) words += " for " + Dollar_Text(*amount);
  return words;
}

bool Confirm_Delete(Prompts& prompts, const std::string& question, bool cleared, const std::string& spoken) {
  const std::string what = "Delete " + spoken + "?";
  if (!prompts.ask({question, "Confirm Delete", Icon::Question, what}, Buttons::YesNoDefaultNo)) return false;
  return !cleared || prompts.ask({"This Transaction has been cleared by your bank, are you sure you want to "
                                  "delete this transaction?",
                                  "Transaction Cleared", Icon::Critical, what},
                                 Buttons::YesNoDefaultNo);
}

// --- the walk --------------------------------------------------------------------------------------------

namespace {

struct Query {
  std::string sql = {};
  store::Database::Params params = {};
};

void Add(Query& query, const std::string& sql, std::initializer_list<store::Value> params) {
  query.sql += sql;
  query.params.insert(query.params.end(), params);
}

Query Within(const Walk& walk, const std::string& column, int64_t TransNum) {
  Query query{"SELECT " + column + " FROM Transactions WHERE Type IN ("};
  for (std::string_view type : walk.types) Add(query, query.params.empty() ? "?" : ", ?", {type});
  query.sql += ")";
  if (!walk.account.empty()) Add(query, " AND Account = ?", {walk.account});
  if (walk.band > 0) Add(query, " AND TransNum > ? AND TransNum < ?", {TransNum - walk.band, TransNum + walk.band});
  return query;
}

/// The neighbour of a transaction, or with no date the last of all; 0 when there is none.
int64_t Neighbour(store::Database& db, const Walk& walk, int64_t TransNum, std::optional<Date> date, bool forward) {
  Query query = Within(walk, "TransNum", TransNum);
  if (date) {
    const std::string beyond = forward ? ">" : "<";
    Add(query, " AND Date " + beyond + "= ? AND (Date " + beyond + " ? OR TransNum " + beyond + " ?)",
        {*date, *date, TransNum});
  }
  query.sql += forward ? " ORDER BY Date, TransNum LIMIT 1" : " ORDER BY Date DESC, TransNum DESC LIMIT 1";
  return db.value(query.sql, query.params).integer();
}

}  // namespace

Step Walk_From(Session& session, const Walk& walk, int64_t TransNum, bool forward) {
  store::Database& db = *session.dbCompany;
  Query current = Within(walk, "Date", TransNum);
  Add(current, " AND TransNum = ? LIMIT 1", {TransNum});
  const auto date = db.value(current.sql, current.params).maybe_date();
  const bool on_new = !date;
  if (on_new && forward) return {.bounce = true};
  if (int64_t next = Neighbour(db, walk, TransNum, date, forward)) return {Arrival::Document, next};
  return forward ? Step{.arrival = Arrival::New} : Step{.bounce = true};
}

// --- windows ---------------------------------------------------------------------------------------------

std::string_view Entry_Window(std::string_view Type) {
  constexpr struct {
    std::string_view Type, window;
  } rows[] = {
      {"Payment", "frmPayments"},     {"Check", "frmCheck"},    {"Billcheck", "frmCheck"},
      {"Liabilitycheck", "frmCheck"}, {"Paycheck", "frmCheck"}, {"Bill", "frmBills"},
      {"Item Receipt", "frmBills"},   {"Credit", "frmBills"},   {"Invoice", "frmInvoice"},
      {"Ledger Entry", "frmJournal"},
  };
  for (const auto& row : rows)
    if (row.Type == Type) return row.window;
  return "";
}

}  // namespace tallymere
