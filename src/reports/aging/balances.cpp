#include <numeric>

#include "reports/aging/aging_reports.h"
#include "reports/aging/open_documents.h"
#include "reports/frame/listing.h"
#include "reports/frame/names.h"
#include "reports/frame/table_parts.h"

// What a period moved on the control category, name by name.
namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

/// The names that rows bear, each once, by leaps through the index: a step for each name, not for each row. Rows
/// without a name come last.
constexpr std::string_view each_name =
    "WITH RECURSIVE met(name) AS (SELECT MIN(Name) FROM Transactions UNION ALL"
    " SELECT (SELECT MIN(Name) FROM Transactions WHERE Name > met.name) FROM met WHERE met.name IS NOT NULL)";
constexpr std::string_view of_the_name =
    " FROM met CROSS JOIN Transactions INDEXED BY Transactions_Name"
    " WHERE Transactions.Name IS met.name AND Account = ?1 AND Date >= ?2 AND Date <= ?3";

store::Database::Params Params_Of(Party party, const ReportRequest& request) {
  return {Words_Of(party).control, request.from, request.to};
}

ReportTable Summary(Session& session, const ReportRequest& request, Party party) {
  CaselessMap<Money> sums;
  std::vector<std::string> met;
  session.dbCompany->each(std::string(each_name) + " SELECT met.name, SUM(" + std::string(Words_Of(party).value) + ")" +
                              std::string(of_the_name) + " GROUP BY met.name",
                          Params_Of(party, request), [&](const store::Row& row) {
                            sums[std::string(row.text(0))] += row.money(1);
                            met.emplace_back(row.text(0));
                          });
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin},
                   {.name = "Name"},
                   {.caption = "All Transactions", .kind = Kind::Money},
                   {.kind = Kind::Margin}};
  Money total;
  for (const std::string& name : Names_Met(*session.dbCompany, Words_Of(party).list, met)) {
    const auto sum = sums.find(name);
    if (sum == sums.end() || sum->second.is_zero()) continue;
    table.add_row().skip().text(Shown_Name(name)).money(sum->second);
    total += sum->second;
  }
  table.add_row(Role::Grand_Total).skip().text("Total").money(total);
  return table;
}

std::vector<ReportColumn> Detail_Columns() {
  return {{.kind = Kind::Margin},
          {.caption = "Type"},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Category"},
          {.caption = "Break Down"},
          {.caption = "Amount", .kind = Kind::Money},
          {.kind = Kind::Margin}};
}

/// The rows as they come, by date, and which of them are whose.
class Movements {
 public:
  Movements(store::Database& db, const ReportRequest& request, Party party) : tree_(CategoryTree::Load(db)) {
    db.each(std::string(each_name) +
                " SELECT met.name, TransNum, Transactions.Type, Date, Number, Account, Category, Amount, " +
                std::string(Words_Of(party).value) + ", Debit <> 0" + std::string(of_the_name) +
                " ORDER BY Date, TransNum, Transactions.RowKey",
            Params_Of(party, request), [&](const store::Row& row) { add(row, party); });
    names_ = Names_Met(db, Words_Of(party).list, met_);
  }

  const std::vector<std::string>& names() const { return names_; }  ///< also those without rows
  /// Adds the rows of a name to a listing that stands at it.
  void add_to(ReportTable& table, Listing& listing, const std::vector<int>& rows) const {
    for (const int row : rows) {
      listing.sum(values_[static_cast<size_t>(row)]);
      Add_Rows(lines_, row, 1, table);
    }
  }
  const std::vector<int>* rows_of(const std::string& name) const {
    const auto found = by_name_.find(name);
    return found == by_name_.end() ? nullptr : &found->second;
  }
  Money total() const { return std::accumulate(values_.begin(), values_.end(), Money()); }

  static constexpr int amount_column = 6;

 private:
  void add(const store::Row& row, Party party) {
    enum { Name, TransNum, Type, Day, Number, Account, Category, Amount, Value, IsDebit };
    const bool lowers = row.flag(IsDebit) == (party == Party::Vendors);
    met_.emplace_back(row.text(Name));
    by_name_[met_.back()].push_back(lines_.rows());
    values_.push_back(row.money(Value));
    auto line = lines_.add_row(Role::Detail, {.number = row.integer(TransNum)});
    line.skip().text("     " + std::string(row.text(Type))).value(row.date(Day)).text(row.text(Number));
    line.text(Category_Name(tree_, row.text(Account))).text(Category_Name(tree_, row.text(Category)));
    line.money(lowers ? -row.money(Amount) : row.money(Amount));
  }

  CategoryTree tree_;
  ReportTable lines_;
  std::vector<Money> values_;  ///< what each row adds to its name's balance
  CaselessMap<std::vector<int>> by_name_;
  std::vector<std::string> met_, names_;
};

ReportTable Detail(Session& session, const ReportRequest& request, Party party) {
  const Movements movements(*session.dbCompany, request, party);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = Detail_Columns();
  std::vector<std::string> shown;
  for (const std::string& name : movements.names()) shown.emplace_back(Shown_Name(name));
  Listing listing(table, shown, Listing::Idle::Left_Out, Movements::amount_column);
  for (size_t at = 0; at < shown.size(); ++at) {
    const std::vector<int>* rows = movements.rows_of(movements.names()[at]);
    if (!rows) continue;
    listing.go_to(at);
    movements.add_to(table, listing, *rows);
  }
  listing.finish();
  table.add_row(Role::Grand_Total).skip().text("Total").skip(Movements::amount_column - 2).money(movements.total());
  return table;
}

}  // namespace

ReportTable Build_Customer_Balances(Session& session, const ReportRequest& request) {
  return Summary(session, request, Party::Customers);
}
ReportTable Build_Vendor_Balances(Session& session, const ReportRequest& request) {
  return Summary(session, request, Party::Vendors);
}
ReportTable Build_Customer_Balance_Detail(Session& session, const ReportRequest& request) {
  return Detail(session, request, Party::Customers);
}
ReportTable Build_Vendor_Balance_Detail(Session& session, const ReportRequest& request) {
  return Detail(session, request, Party::Vendors);
}

}  // namespace tallymere
