#include "core/ledger/paper_faults.h"

#include <utility>

#include "core/store/sql.h"

namespace tallymere {
namespace {

using store::Quoted;

struct Table {
  std::string_view papers, party, lines, link;
};
constexpr Table tables[] = {{"Estimates", "Customer", "EstItems", "EstimateIndex"},
                            {"POs", "Vendor", "POItems", "POIndex"},
                            {"PSlips", "Vendor", "PSlipItems", "POIndex"}};

/// The faults of one kind, each a query for the Index of papers that have it. Totals were once kept in cents.
std::vector<std::pair<std::string, std::string>> Queries(const Table& table) {
  const std::string from = "SELECT \"Index\" FROM " + Quoted(table.papers) + " AS paper ";
  const std::string sum = "(SELECT SUM(IFNULL(Amount, 0)) FROM " + Quoted(table.lines) + " WHERE " +
                          Quoted(table.link) + " = paper.\"Index\")";
  const std::string of_party =
      "SELECT 1 FROM Transactions WHERE TransNum = TakenBy AND Name = paper." + Quoted(table.party);
  return {
      {from + "GROUP BY \"Index\" HAVING COUNT(*) > 1", "stands twice"},
      {from + "WHERE ABS(IFNULL(Total, 0) - IFNULL(" + sum + ", 0)) >= 100", "has a total that its lines do not make"},
      {from + "WHERE Open = True AND TakenBy IS NOT NULL", "is open, and taken up by a document"},
      {from + "WHERE TakenBy IS NOT NULL AND NOT EXISTS (" + of_party + ")",
       "is taken up by a document of another party"}};
}

}  // namespace

std::vector<std::string> Paper_Faults(store::Database& db) {
  std::vector<std::string> faults;
  for (const Table& table : tables)
    for (const auto& [query, words] : Queries(table))
      db.each(query, {}, [&](const store::Row& row) {
        faults.push_back(std::string(table.papers) + " " + std::string(row.text(0)) + " " + words);
      });
  return faults;
}

}  // namespace tallymere
