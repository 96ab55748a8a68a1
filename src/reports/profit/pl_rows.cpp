#include "reports/profit/pl_rows.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "reports/profit/profit_and_loss.h"

namespace tallymere {
namespace {

CatIDs Listed_Categories(const CategoryTree& tree, Basis basis) {
  CatIDs listed;
  for (std::string_view section : PL_Sections) {
    if (section == "Income" && basis == Basis::Cash) continue;
    for (std::string& id : Section_Categories(tree, section)) listed.push_back(std::move(id));
  }
  return listed;
}

}  // namespace

std::vector<ReportColumn> PL_Rows::Columns() {
  using Kind = ReportColumn::Kind;
  return {{.kind = Kind::Margin, .width = 1},
          {.caption = "Type", .width = 30},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Name"},
          {.caption = "Memo"},
          {.caption = "Class"},
          {.caption = "Break Down"},
          {.caption = "Amount", .kind = Kind::Money, .right = true}};
}

PL_Rows::PL_Rows(store::Database& db, const CategoryTree& tree, const ReportRequest& request) : tree_(tree) {
  db.each(
      "SELECT Account, Transactions.Type, Date, Number, Name, Memo, Class, Category, Amount"
      " FROM json_each(?3) AS wanted CROSS JOIN Transactions INDEXED BY Transactions_Account"
      " WHERE Account = wanted.value AND Date >= ?1 AND Date <= ?2 ORDER BY Date, TransNum, "
      "Transactions.RowKey",
      {request.from, request.to, Id_List(Listed_Categories(tree, request.basis))}, [&](const store::Row& row) {
        by_category_[std::string(row.text(0))].push_back(lines_.rows());
        auto line = lines_.add_row();
        line.skip().text(row.text(1)).value(row.date(2));
        for (int column = 3; column <= 6; ++column) line.text(row.text(column));
        line.text(row.text(7) == break_down ? std::string(break_down) : tree.name(row.text(7)));
        if (row.is_null(8))
          line.skip();
        else
          line.money(row.money(8));
      });
}

void PL_Rows::add_to(ReportTable& table, std::string_view CatID) const {
  std::vector<int> rows;
  auto take = [&](std::string_view id) {
    if (auto found = by_category_.find(id); found != by_category_.end())
      rows.insert(rows.end(), found->second.begin(), found->second.end());
  };
  take(CatID);
  for (const Category* below : tree_.descendants(CatID)) take(below->CatID);
  std::sort(rows.begin(), rows.end());
  for (int row : rows) {
    auto line = table.add_row();
    for (int column = 0; column <= amount_column; ++column) line.value(lines_.value(row, column));
  }
}

}  // namespace tallymere
