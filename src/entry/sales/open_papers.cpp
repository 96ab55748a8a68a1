#include "entry/sales/open_papers.h"

#include "core/store/recordset.h"
#include "core/store/sql.h"

namespace tallymere {

std::vector<OpenPaper> Open_Papers(Session& session, const SalePaper& paper, const std::string& customer) {
  std::vector<OpenPaper> open;
  if (customer.empty()) return open;
  session.dbCompany->each("SELECT \"Index\", " + store::Quoted(paper.number) + ", IFNULL(Total, 0) FROM " +
                              store::Quoted(paper.table) + " WHERE " + store::Quoted(paper.customer) +
                              " = ? AND Open = True ORDER BY \"Index\"",
                          {customer}, [&](const store::Row& row) {
                            open.push_back({row.integer(0), std::string(row.text(1)), row.money(2)});
                          });
  return open;
}

std::vector<ItemLine> Paper_Lines(Session& session, SaleItems& items, const SalePaper& paper, int64_t Index) {
  std::vector<ItemLine> lines;
  auto rows = session.dbCompany->OpenRecordset(
      "SELECT * FROM " + store::Quoted(paper.lines) + " WHERE " + store::Quoted(paper.index) + " = ? ORDER BY RowKey",
      {Index});
  for (; !rows.Eof(); rows.MoveNext()) {
    ItemLine line{.Item = rows["Item"].text(), .Description = rows["Description"].text()};
    if (!rows["Qty"].blank()) line.Quantity = rows["Qty"].number();
    if (!rows["Rate"].blank()) line.Cost = rows["Rate"].money();
    if (!rows["Amount"].blank()) line.Amount = rows["Amount"].money();
    const ItemFacts& item = items.of(line.Item);
    line.Tax = item.InvTaxable;
    line.CatID = item.posts_to();
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace tallymere
