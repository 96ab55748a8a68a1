#include "reports/profit/pl_figures.h"

namespace tallymere {
namespace {

CatIDs All_Sections(const CategoryTree& tree) {
  CatIDs all;
  for (std::string_view section : PL_Sections)
    for (std::string& id : Section_Categories(tree, section)) all.push_back(std::move(id));
  return all;
}

void Put(PL_Columns& columns, size_t column, const Figures& figures) {
  for (const auto& [id, amount] : figures) columns.own[id][column] += amount;
}

/// The first amount. On cash basis the section "Income" has a rule of its own; no other section and no column
/// of comparison has.
void Put_First_Amount(PL_Columns& columns, store::Database& db, const CategoryTree& tree,
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

PL_Columns Compared_With(store::Database& db, const CategoryTree& tree, const ReportRequest& request,
                         std::string caption, DateRange days) {
  PL_Columns columns{{Period_Text(request.from, request.to), std::move(caption)}, {false, true}, {}};
  Put_First_Amount(columns, db, tree, request);
  Put(columns, 1, Sum_Category(db, All_Sections(tree), {days, request.basis}));
  return columns;
}

std::vector<std::string> Texts(store::Database& db, std::string_view sql) {
  std::vector<std::string> texts;
  db.each(sql, {}, [&](const store::Row& row) { texts.emplace_back(row.text(0)); });
  return texts;
}

using SumByText = ColumnFigures(store::Database&, const CatIDs&, const SumRange&, const std::vector<std::string>&);

PL_Columns By_Text(store::Database& db, const CategoryTree& tree, const ReportRequest& request, std::string_view list,
                   SumByText& sum) {
  const SumRange range{{request.from, request.to}, request.basis};
  const CatIDs categories = All_Sections(tree);
  PL_Columns columns{Texts(db, list), {}, {}};
  const size_t total = columns.captions.size();
  columns.own = sum(db, categories, range, columns.captions);
  Put(columns, total, Sum_Category(db, categories, range));
  columns.captions.push_back("Total");
  columns.counts_twice.assign(total, true);
  columns.counts_twice.push_back(false);
  return columns;
}

}  // namespace

PL_Columns Load_PL(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  PL_Columns columns{{"Amount"}, {false}, {}};
  Put_First_Amount(columns, db, tree, request);
  return columns;
}

PL_Columns Load_PLYTD(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return Compared_With(db, tree, request, "Year-To-Date", {Date(request.from.year(), 1, 1), request.to});
}

PL_Columns Load_PLPrev(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  DateRange last_year{Date(request.from.year() - 1, 1, 1), request.to.add_months(-12)};
  return Compared_With(db, tree, request, last_year.start.to_text() + " -" + last_year.end.to_text(), last_year);
}

PL_Columns Load_PLCus(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return By_Text(db, tree, request, "SELECT Name FROM Customers ORDER BY Name, RowKey", Sum_Category_By_Name);
}

PL_Columns Load_PLClass(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  return By_Text(db, tree, request, "SELECT Class FROM Class ORDER BY Class, RowKey", Sum_Category_By_Class);
}

}  // namespace tallymere
