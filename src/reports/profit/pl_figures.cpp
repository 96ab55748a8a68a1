#include "reports/profit/pl_figures.h"

#include "reports/frame/names.h"

namespace tallymere {
namespace {

void Put(Statement_Columns& columns, size_t column, const Figures& figures) {
  for (const auto& [id, amount] : figures) columns.own[id][column] += amount;
}

/// The first amount. On cash basis the section "Income" has a rule of its own; no other section and no column
/// of comparison has.
void Put_First_Amount(Statement_Columns& columns, store::Database& db, const CategoryTree& tree,
                      const ReportRequest& request) {
  DateRange days{request.from, request.to};
  CatIDs ordinary;
  for (std::string_view section : PL_Sections) {
    CatIDs ids = Section_Categories(tree, section);
    if (section == "Income" && request.basis == Basis::Cash)
      Put(columns, 0, Sum_CashIncome(db, ids, days));
    else
      ordinary.insert(ordinary.end(), ids.begin(), ids.end());
  }
  Put(columns, 0, Sum_Category(db, ordinary, {days, request.basis}));
}

ReportColumn Amount_Column(std::string caption, std::string name = {}) {
  return {.caption = std::move(caption), .kind = ReportColumn::Kind::Money, .name = std::move(name)};
}

Statement_Columns Compared_With(store::Database& db, const CategoryTree& tree, const ReportRequest& request,
                                std::string caption, DateRange days) {
  Statement_Columns columns{
      {Amount_Column(Period_Text(request.from, request.to), "Period"), Amount_Column(std::move(caption), "Comparison")},
      {false, true},
      {}};
  Put_First_Amount(columns, db, tree, request);
  Put(columns, 1, Sum_Category(db, Result_Categories(tree), {days, request.basis}));
  return columns;
}

using SumByText = ColumnFigures(store::Database&, const CatIDs&, const SumRange&, const std::vector<std::string>&);

/// A column for each name, and the total, which is a sum of its own.
Statement_Columns By_Text(store::Database& db, const CategoryTree& tree, const ReportRequest& request,
                          const std::vector<std::string>& names, SumByText& sum) {
  const SumRange range{request.days(), request.basis};
  const CatIDs categories = Result_Categories(tree);
  Statement_Columns columns;
  columns.own = sum(db, categories, range, names);
  for (const std::string& name : names) {
    columns.columns.push_back(Amount_Column(name));
    columns.columns.back().may_go = true;
  }
  Put(columns, names.size(), Sum_Category(db, categories, range));
  columns.columns.push_back(Amount_Column("Total"));
  columns.counts_twice.assign(names.size(), true);
  columns.counts_twice.push_back(false);
  return columns;
}

}  // namespace

Statement_Columns Load_PL(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  Statement_Columns columns{{Amount_Column("Amount")}, {false}, {}};
  Put_First_Amount(columns, db, tree, request);
  return columns;
}

Statement_Columns Load_PLYTD(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return Compared_With(db, tree, request, "Year-To-Date", {Date(request.from.year(), 1, 1), request.to});
}

Statement_Columns Load_PLPrev(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  DateRange last_year{Date(request.from.year() - 1, 1, 1), request.to.add_months(-12)};
  return Compared_With(db, tree, request, last_year.start.to_text() + " -" + last_year.end.to_text(), last_year);
}

Statement_Columns Load_PLCus(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return By_Text(db, tree, request, Names_In(db, "Customers"), Sum_Category_By_Name);
}

Statement_Columns Load_PLClass(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return By_Text(db, tree, request, Names_In(db, "Class"), Sum_Category_By_Class);
}

}  // namespace tallymere
