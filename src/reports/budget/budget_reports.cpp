#include "reports/budget/budget_reports.h"

#include "core/ledger/ledger.h"
#include "core/values/format.h"
#include "reports/budget/budget.h"
#include "reports/budget/monthly_amounts.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

/// All budgets of some years: category and year to the months.
class Budgets {
 public:
  Budgets(store::Database& db, int first_year, int last_year) {
    db.each(
        "SELECT Category, Year, Month, Amount FROM Budget WHERE Year BETWEEN ? AND ? AND Month BETWEEN 1 AND 12"
        " ORDER BY RowKey",
        {first_year, last_year}, [&](const store::Row& row) {
          auto& amount = years_[static_cast<int>(row.integer(1))][std::string(row.text(0))]
                               [static_cast<size_t>(row.integer(2) - 1)];
          if (!amount) amount = row.money(3);
        });
  }

  /// nullptr when nothing was set for that year.
  const Budget_Amounts* find(const std::string& CatID, int year) const {
    const auto of_year = years_.find(year);
    if (of_year == years_.end()) return nullptr;
    const auto found = of_year->second.find(CatID);
    return found == of_year->second.end() ? nullptr : &found->second;
  }
  const std::map<int, CaselessMap<Budget_Amounts>>& years() const { return years_; }

 private:
  std::map<int, CaselessMap<Budget_Amounts>> years_;
};

// --- the listing

std::vector<ReportColumn> Month_Columns() {
  std::vector<ReportColumn> columns = {{.kind = Kind::Margin}, {.caption = "Item"}};
  for (unsigned month = 1; month <= months_of_a_year; ++month)
    columns.push_back({.caption = Format(Date(2000, month, 1), "mmm"), .kind = Kind::Money});
  columns.push_back({.caption = "Total", .kind = Kind::Money});
  return columns;
}

/// The categories with a budget, by name; one that is gone shows what it was known by.
void Add_Year(ReportTable& table, const CategoryTree& tree, const CaselessMap<Budget_Amounts>& budgets) {
  std::multimap<std::string, const Budget_Amounts*> by_name;
  CaselessMap<std::string> names;
  for (const auto& [CatID, amounts] : budgets) {
    const std::string name = tree.find(CatID) ? tree.name(CatID) : CatID;
    names.emplace(folded(name) + "\n" + CatID, name);
    by_name.emplace(folded(name) + "\n" + CatID, &amounts);
  }
  for (const auto& [key, amounts] : by_name) {
    auto line = table.add_row();
    line.skip().text(names.at(key));
    Money total;
    for (const auto& amount : *amounts) {
      line.money(amount.value_or(Money()));
      total += amount.value_or(Money());
    }
    line.money(total);
  }
}

// --- budget and actual

/// Which categories have a line of their own.
bool Has_Line(const CategoryTree& tree, const Category& category) {
  if (category.CatID == accounts_receivable || category.CatID == undeposited_funds) return false;
  if (category.AccountType == "Bank" || category.AccountType == "Credit Card") return false;
  return Is_Top_Level(tree, category);
}

void Add_Month_Columns(ReportTable& table, Date month) {
  const std::string head = Format(month, "mmm yyyy");
  table.groups.push_back({head, static_cast<int>(table.columns.size()), 3});
  for (const char* caption : {"Actual", "Budget", "$ Over Budget"})
    table.columns.push_back({.caption = caption, .kind = Kind::Money, .name = head + " " + caption});
}

void Add_Line(ReportTable& table, const Category& category, Amounts actual, const Monthly_Amounts& months,
              const Budgets& budgets) {
  auto line = table.add_row(Role::Detail, To_Report("PrintAcctRep", category.CatID));
  line.skip().text(category.AccountName);
  for (size_t at = 0; at < months.months; ++at) {
    const Date month = months.month(at);
    const Budget_Amounts* budget = budgets.find(category.CatID, month.year());
    if (!budget) {
      line.skip(3);
      continue;
    }
    const Money planned = (*budget)[month.month() - 1].value_or(Money());
    line.money(actual[at]).money(planned).money(actual[at] - planned);
  }
}

}  // namespace

ReportTable Build_Budget_List(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  const Budgets budgets(db, request.from.year(), request.to.year());
  const bool several = request.from.year() < request.to.year();
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = Month_Columns();
  for (const auto& [year, of_year] : budgets.years()) {
    if (several) table.add_row(Role::Head).skip().text(std::to_string(year));
    Add_Year(table, tree, of_year);
    if (several) table.add_spacer();
  }
  return table;
}

ReportTable Build_Budget_Compare(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  CatIDs all;
  for (const Category& category : tree.all()) all.push_back(category.CatID);
  const Monthly_Amounts months = Get_Actual(db, all, request.days());
  const Budgets budgets(db, request.from.year(), request.to.year());
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.heading.note =
      "Actual amounts are those of whole months, with the sub-categories' own; debits and credits add alike.";
  table.columns = {{.kind = Kind::Margin}, {.caption = "Item"}};
  for (size_t at = 0; at < months.months; ++at) Add_Month_Columns(table, months.month(at));
  for (const Category* category : Top_Level_By_Name(tree))
    if (Has_Line(tree, *category))
      Add_Line(table, *category, tree.sum_family(category->CatID, months.own), months, budgets);
  return table;
}

}  // namespace tallymere
