#include "reports/frame/statement_rows.h"

#include <algorithm>

#include "reports/frame/names.h"

namespace tallymere {

std::vector<ReportColumn> Statement_Rows::Columns(std::string_view break_down_caption) {
  using Kind = ReportColumn::Kind;
  return {{.kind = Kind::Margin},
          {.caption = "Type"},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Name"},
          {.caption = "Memo"},
          {.caption = "Class"},
          {.caption = std::string(break_down_caption)},
          {.caption = "Amount", .kind = Kind::Money}};
}

Statement_Rows::Statement_Rows(store::Database& db, const CategoryTree& tree, const CatIDs& categories, DateRange days,
                               const std::string& counted)
    : tree_(tree) {
  enum { Account, TransNum, Type, Day, Number, Name, Memo, Class, Category, Amount };
  db.each(
      "SELECT Account, TransNum, Transactions.Type, Date, Number, Name, Memo, Class, Category, Amount"
      " FROM json_each(?3) AS wanted CROSS JOIN Transactions INDEXED BY Transactions_Account"
      " WHERE Account = wanted.value AND Date >= ?1 AND Date <= ?2" +
          (counted.empty() ? "" : " AND (" + counted + ")") + " ORDER BY Date, TransNum, Transactions.RowKey",
      {days.start, days.end, Id_List(categories)}, [&](const store::Row& row) {
        by_category_[std::string(row.text(Account))].push_back(lines_.rows());
        auto line = lines_.add_row(Role::Detail, {.number = row.integer(TransNum)});
        line.skip().text(row.text(Type)).value(row.date(Day));
        for (int column = Number; column <= Class; ++column) line.text(row.text(column));
        line.text(Category_Name(tree, row.text(Category)));
        if (!row.is_null(Amount)) line.money(row.money(Amount));
      });
}

void Statement_Rows::add_to(ReportTable& table, const std::string& CatID) const {
  std::vector<int> rows;
  for (const std::string& id : Family_Of(tree_, CatID))
    if (auto found = by_category_.find(id); found != by_category_.end())
      rows.insert(rows.end(), found->second.begin(), found->second.end());
  std::sort(rows.begin(), rows.end());
  for (int row : rows) {
    auto line = table.add_row(Role::Detail, lines_.key(row));
    for (int column = 0; column <= amount_column; ++column) line.value(lines_.value(row, column));
  }
}

}  // namespace tallymere
