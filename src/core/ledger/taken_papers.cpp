#include "core/ledger/taken_papers.h"

#include "core/store/error.h"
#include "core/store/sql.h"

namespace tallymere {

void Take_Paper(store::Database& db, std::string_view table, int64_t Index, int64_t TransNum) {
  const int64_t taken = db.Execute(
      "UPDATE " + store::Quoted(table) + " SET Open = False, TakenBy = ? WHERE \"Index\" = ? AND Open = True",
      {TransNum, Index});
  if (taken == 0) throw store::Error(store::errors::data_changed, "Another user took this paper.");
}

void Give_Papers_Back(store::Database& db, int64_t TransNum) {
  for (const std::string_view table : {Estimates, PSlips, POs})
    db.Execute("UPDATE " + store::Quoted(table) + " SET Open = True, TakenBy = NULL WHERE TakenBy = ?", {TransNum});
}

}  // namespace tallymere
