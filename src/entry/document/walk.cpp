#include "entry/document/walk.h"

#include <initializer_list>
#include <string>

namespace tallymere {
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

}  // namespace tallymere
