#include "entry/bank/reconcile.h"

#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

constexpr Side sides[] = {Side::Deposits, Side::Payments};

Money Cleared_So_Far(store::Database& company, const std::string& CatID) {
  Money cleared;
  company.each(
      "SELECT SUM(CASE WHEN Credit <> 0 THEN -Credit ELSE Debit END) FROM Transactions"
      " WHERE Account = ? AND Cleared <> 0",
      {CatID}, [&](const store::Row& row) { cleared = row.money(0); });
  return cleared;
}

}  // namespace

Reconciliation::Reconciliation(Session& session, std::string CatID)
    : session_(session), CatID_(std::move(CatID)), opening_(Cleared_So_Far(*session.dbCompany, CatID_)) {
  Load_Lists();
}

std::vector<ReconcileLine> Reconciliation::read(Side side) const {
  const bool deposits = side == Side::Deposits;
  std::vector<ReconcileLine> lines;
  session_.dbCompany->each(
      std::string("SELECT Type, Number, Date, Name, Memo, Amount, TransNum, RowKey FROM Transactions"
                  " WHERE Account = ? AND Cleared = 0 AND ") +
          (deposits ? "COALESCE(Credit, 0) = 0 ORDER BY Date, RowKey"
                    : "COALESCE(Debit, 0) = 0 ORDER BY Number, Date, RowKey"),
      {CatID_}, [&](const store::Row& row) {
        lines.push_back({.Type = std::string(row.text(0)),
                         .Number = std::string(row.text(1)),
                         .Date = row.date(2),
                         .Name = std::string(row.text(3)),
                         .Memo = std::string(row.text(4)),
                         .Amount = row.money(5),
                         .TransNum = row.integer(6),
                         .key = row.integer(7)});
      });
  return lines;
}

void Reconciliation::Load_Lists() {
  for (const Side side : sides) {
    std::set<int64_t> kept;
    for (const ReconcileLine& line : lines(side))
      if (line.Cleared) kept.insert(line.key);
    const auto at = static_cast<size_t>(side);
    lines_[at] = read(side);
    marked_[at] = {};
    for (size_t line = 0; line < lines_[at].size(); ++line)
      if (kept.contains(lines_[at][line].key)) mark(side, line, true);
  }
}

void Reconciliation::mark(Side side, size_t line, bool marked) {
  const auto at = static_cast<size_t>(side);
  ReconcileLine& row = lines_[at][line];
  if (row.Cleared == marked) return;
  row.Cleared = marked;
  marked_[at].count += marked ? 1 : -1;
  marked_[at].total += marked ? row.Amount : -row.Amount;
}

void Reconciliation::mark_all(bool marked) {
  for (const Side side : sides)
    for (size_t line = 0; line < lines(side).size(); ++line) mark(side, line, marked);
}

Money Reconciliation::cleared() const { return opening_ + marked(Side::Deposits).total - marked(Side::Payments).total; }

/// The row must still be what is on the list.
void Reconciliation::stamp(const ReconcileLine& line, Side side) {
  const int64_t stamped = session_.dbCompany->Execute(
      std::string("UPDATE Transactions SET Cleared = True WHERE RowKey = ? AND TransNum = ? AND Account = ?"
                  " AND Cleared = 0 AND Amount = ? AND COALESCE(") +
          (side == Side::Deposits ? "Credit" : "Debit") + ", 0) = 0",
      {line.key, line.TransNum, CatID_, line.Amount});
  if (stamped != 1)
    throw store::Error(store::errors::data_changed, "Transaction " + std::to_string(line.TransNum) +
                                                        " was changed by another user since the lists were read.");
}

Reconciliation::Result Reconciliation::Balance() {
  if (Dollar_Text(difference()) != "$0.00")
    return {.fault = Fault{{"Bank is not Balanced Yet", "Not Balanced"}, "txtEnd"}};
  Result result;
  result.conflict = Save_Or_Conflict([&] {
    store::Transaction tx(*session_.dbCompany, "Reconcile " + Category_Name(session_, CatID_));
    if (Cleared_So_Far(*session_.dbCompany, CatID_) != opening_)
      throw store::Error(store::errors::data_changed, "Another user has cleared transactions of this bank.");
    for (const Side side : {Side::Payments, Side::Deposits})
      for (const ReconcileLine& line : lines(side))
        if (line.Cleared) stamp(line, side);
    tx.commit();
  });
  return result;
}

}  // namespace tallymere
