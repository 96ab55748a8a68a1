#include "reports/inventory/inventory_reports.h"

#include "core/stock/stock.h"
#include "core/values/format.h"
#include "reports/inventory/part_list.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

constexpr std::string_view opens = "ItemRep";  // where a part's row leads
constexpr std::string_view line_to_write_on = "___________";

double Of(const CaselessMap<double>& stock, const Part& part) {
  const auto found = stock.find(part.ItemName);
  return found == stock.end() ? part.InitialQty : found->second;
}

ReportColumn Quantity(std::string caption) { return {.caption = std::move(caption), .kind = Kind::Number}; }
ReportColumn Amount(std::string caption) { return {.caption = std::move(caption), .kind = Kind::Money}; }
ReportColumn Price(std::string caption) {
  return {.caption = std::move(caption), .kind = Kind::Money, .mask = std::string(price_mask)};
}

// --- status

/// The rows of a status, part by part.
class Status {
 public:
  Status(Session& session, const ReportRequest& request)
      : as_of_(request.to),
        stock_(Stock_On_Hand(*session.dbCompany, request.to)),
        sales_(Sales_Of_Parts(*session.dbCompany, request.to)) {
    table.heading = Make_Heading(session, request);
    table.columns = {{.kind = Kind::Margin},
                     {.caption = "Item"},
                     {.caption = "Description"},
                     {.caption = "Prefered Vendor"},
                     Quantity("Reorder Pt"),
                     Quantity("Stock Qty"),
                     {.caption = "Sales Per Week", .kind = Kind::Number, .mask = "#,##0.00"}};
  }

  void add(const Part& part) {
    const auto sold = sales_.find(part.ItemName);
    auto line = table.add_row(Role::Detail, To_Report(opens, part.ItemName));
    line.skip().text(part.label()).text(part.Description).text(part.InvVendor);
    line.value(part.ReorderQty).value(Of(stock_, part));
    line.value(sold == sales_.end() ? 0.0 : sold->second.per_week(as_of_));
  }

  ReportTable table;

 private:
  Date as_of_;
  CaselessMap<double> stock_;
  CaselessMap<Part_Sales> sales_;
};

// --- value

/// What the rows of a value report come to.
struct Value {
  double qty = 0;
  Money stock, retail;
};

/// The movements of the parts up to a day, by part and date.
class Movements {
 public:
  Movements(store::Database& db, Date until) {
    db.each(
        "SELECT ItemName, TransNum, Transactions.Type, Date, Number, Qty FROM Items CROSS JOIN Transactions"
        " INDEXED BY Transactions_Item ON Item = ItemName WHERE ItemType = 'Inventory Part' AND Date <= ? AND"
        " COALESCE(SourceName, '') <> 'Inventory Part' ORDER BY Date, TransNum, Transactions.RowKey",
        {until}, [&](const store::Row& row) {
          by_part_[std::string(row.text(0))].push_back(
              {row.integer(1), std::string(row.text(2)), row.date(3), std::string(row.text(4)), row.number(5)});
        });
  }

  struct Row {
    int64_t TransNum;
    std::string Type;
    std::optional<Date> day;
    std::string Number;
    double Qty;
  };
  const std::vector<Row>& of(const std::string& ItemName) const {
    static const std::vector<Row> none;
    const auto found = by_part_.find(ItemName);
    return found == by_part_.end() ? none : found->second;
  }

 private:
  CaselessMap<std::vector<Row>> by_part_;
};

/// One part's rows at the average cost; each is worth what it changed the value of the stock by.
void Add_Movements(ReportTable& table, const Part& part, Money cost, const std::vector<Movements::Row>& rows,
                   Value& all) {
  double stock = 0;
  const auto add = [&](ReportTable::Line line, double qty) {
    const Money before = cost.times(stock);
    stock += qty;
    line.value(qty).money(cost).money(cost.times(stock) - before);
  };
  table.add_row(Role::Head, To_Report(opens, part.ItemName)).skip().text(part.label());
  if (part.InitialQty != 0) add(table.add_row().skip().text("     Opening").skip(2), part.InitialQty);
  for (const Movements::Row& row : rows)
    add(table.add_row(Role::Detail, To_Transaction(row.Type, row.TransNum))
            .skip()
            .text("     " + row.Type)
            .value(row.day)
            .text(row.Number),
        row.Qty);
  table.add_row(Role::Total).skip().text(part.label()).skip(2).value(stock).skip().money(cost.times(stock));
  table.add_spacer();
  all.qty += stock;
  all.stock += cost.times(stock);
}

Money Average_Of(const CaselessMap<PartCost>& costs, const Part& part) {
  const auto found = costs.find(part.ItemName);
  return found == costs.end() ? Money() : found->second.average();
}

}  // namespace

ReportTable Build_Stock_By_Item(Session& session, const ReportRequest& request) {
  Status status(session, request);
  for (const Part& part : Parts_By_Item(*session.dbCompany)) status.add(part);
  return std::move(status.table);
}

ReportTable Build_Stock_By_Vendor(Session& session, const ReportRequest& request) {
  Status status(session, request);
  const std::string* vendor = nullptr;
  const std::vector<Part> parts = Parts_By_Vendor(*session.dbCompany);
  for (const Part& part : parts) {
    if (!vendor || !same_text(*vendor, part.InvVendor))
      status.table.add_row(Role::Head).skip().text(part.InvVendor.empty() ? "No Vendor" : part.InvVendor);
    vendor = &part.InvVendor;
    status.add(part);
  }
  return std::move(status.table);
}

ReportTable Build_Stock_Value(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const auto stock = Stock_On_Hand(db, request.to);
  const auto costs = Average_Cost(db, request.to);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin}, {.caption = "Item"},   {.caption = "Description"}, Quantity("Stock Qty"),
                   Price("Avg Cost"),      Amount("Stock Value"), Price("Sale Price"),        Amount("Retail Value")};
  Value all;
  for (const Part& part : Parts_By_Item(db)) {
    const double qty = Of(stock, part);
    const Money cost = Average_Of(costs, part), value = cost.times(qty), retail = part.PriceRate.times(qty);
    auto line = table.add_row(Role::Detail, To_Report(opens, part.ItemName));
    line.skip().text(part.label()).text(part.Description).value(qty).money(cost).money(value);
    line.money(part.PriceRate).money(retail);
    all = {all.qty + qty, all.stock + value, all.retail + retail};
  }
  table.add_row(Role::Grand_Total)
      .skip()
      .text("Total")
      .skip()
      .value(all.qty)
      .skip()
      .money(all.stock)
      .skip()
      .money(all.retail);
  return table;
}

ReportTable Build_Stock_Value_Detail(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const auto costs = Average_Cost(db, request.to);
  const Movements movements(db, request.to);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.heading.note = "All quantities are valued at the average cost of what came in up to that day.";
  table.columns = {{.kind = Kind::Margin}, {.caption = "Type"}, {.caption = "Date", .kind = Kind::Date},
                   {.caption = "Number"},  Quantity("Qty"),     Price("Cost"),
                   Amount("Value")};
  Value all;
  for (const Part& part : Parts_By_Item(db))
    Add_Movements(table, part, Average_Of(costs, part), movements.of(part.ItemName), all);
  table.add_row(Role::Grand_Total).skip().text("Total").skip(2).value(all.qty).skip().money(all.stock);
  return table;
}

ReportTable Build_Count_Worksheet(Session& session, const ReportRequest& request) {
  const auto stock = Stock_On_Hand(*session.dbCompany);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin},
                   {.caption = "Item"},
                   {.caption = "Description"},
                   Quantity("Stock Qty"),
                   {.caption = "Physical Qty"}};
  for (const Part& part : Parts_By_Item(*session.dbCompany)) {
    auto line = table.add_row(Role::Detail, To_Report(opens, part.ItemName));
    line.skip().text(part.label()).text(part.Description).value(Of(stock, part)).text(line_to_write_on);
  }
  return table;
}

}  // namespace tallymere
