#include <algorithm>

#include "core/ledger/ledger.h"
#include "reports/balance/balance_sheet.h"
#include "reports/balance/position.h"

namespace tallymere {
namespace {

constexpr int months_shown = 12;

bool Is_Asset(std::string_view AccountType) { return AccountType == "Bank" || contains(AccountType, "Asset"); }

/// What a sheet comes to: its two totals, the second apart by whose it is.
std::vector<Money> Totals(const CategoryTree& tree, const Position& position) {
  Money assets = position.receivable, liabilities = position.payable, equity;
  for (const Category* category : Top_Level_By_Name(tree)) {
    if (std::find(Position_Sections.begin(), Position_Sections.end(), category->AccountType) == Position_Sections.end())
      continue;
    const Money amount = tree.sum_family(category->CatID, position.own);
    if (Is_Asset(category->AccountType))
      assets -= amount;
    else if (category->AccountType != "Equity")
      liabilities += amount;
    else if (!same_text(category->CatID, retained_earnings))
      equity += amount;
  }
  return {assets, liabilities, equity + position.net_income + position.retained};
}

}  // namespace

Graph Build_Balance_Graph(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  Graph_Months months{.title = "Assets, liabilities and equity, month by month",
                      .series = {"Assets", "Liabilities", "Equity"},
                      .stands = true};
  const Date first = request.to.first_of_month().add_months(1 - months_shown);
  months.months = Months_Of({first, request.to}, months.series.size());
  Positions positions(db, tree, request.basis, request.to);
  for (Graph_Months::Month& month : months.months)
    month.amounts = Totals(tree, positions.at(std::min(month.first_day.end_of_month(), request.to)));
  return {Make_Heading(session, request), {std::move(months)}};
}

}  // namespace tallymere
