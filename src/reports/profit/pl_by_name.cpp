#include "reports/profit/pl_by_name.h"

#include "core/ledger/category_tree.h"
#include "core/ledger/ledger.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

enum class Party { Customer, Vendor };

// A debit raises what a vendor costs and lowers what a customer brings; the debit is asked first.
constexpr std::string_view from_names =
    " FROM json_each(?3) AS name CROSS JOIN Transactions INDEXED BY Transactions_Name"
    " WHERE Name = name.value AND Date >= ?1 AND Date <= ?2";

bool Is_Result_Type(std::string_view type) {
  return type == "Cost of Goods Sold" || contains(type, "Income") || contains(type, "Expense");
}

std::vector<std::string> Names_Of(store::Database& db, Party party) {
  std::vector<std::string> names;
  db.each(party == Party::Customer ? "SELECT Name FROM Customers ORDER BY Name, RowKey"
                                   : "SELECT Name FROM Vendors ORDER BY Name, RowKey",
          {}, [&](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

std::string Sum_Of_Counted(Basis basis) {
  std::string counted = basis == Basis::Accrual
                            ? ""
                            : "WHEN Transactions.Type IN ('Invoice', 'Bill') AND (Paid IS NULL OR Paid = 0) THEN 0 ";
  return "SUM(CASE " + counted + "WHEN Debit <> 0 THEN Debit ELSE -Credit END)";
}

using Kind = ReportColumn::Kind;

std::vector<ReportColumn> Summary_Columns(const ReportRequest& request) {
  return {{.kind = Kind::Margin},
          {},
          {.caption = Period_Text(request.from, request.to), .kind = Kind::Money, .right = true},
          {.kind = Kind::Margin}};
}

std::vector<ReportColumn> Detail_Columns() {
  return {{.kind = Kind::Margin, .width = 1},
          {.caption = "Type", .width = 20},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Memo"},
          {.caption = "Category"},
          {.caption = "Break Down"},
          {.caption = "Amount", .kind = Kind::Money, .right = true},
          {.kind = Kind::Margin}};
}

ReportTable Summary(Session& session, const ReportRequest& request, Party party) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  CaselessMap<Money> totals;  // of every name that some row of the period bears
  db.each("SELECT Name, Account, " + Sum_Of_Counted(request.basis) +
              " FROM Transactions INDEXED BY Transactions_Name WHERE Date >= ? AND Date <= ? GROUP BY Name, "
              "Account",
          {request.from, request.to}, [&](const store::Row& row) {
            Money& total = totals[std::string(row.text(0))];
            const Category* category = tree.find(row.text(1));
            if (category && Is_Result_Type(category->AccountType))
              total += party == Party::Vendor ? row.money(2) : -row.money(2);
          });
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = Summary_Columns(request);
  for (const std::string& name : Names_Of(db, party))
    if (auto total = totals.find(name); total != totals.end())
      table.add_row("", RowKey{name}).skip().text(name).money(total->second);
  return table;
}

/// Lists the rows name by name, as they come.
class Details {
 public:
  Details(ReportTable& table, const CategoryTree& tree, Party party, Basis basis)
      : table_(table), tree_(tree), party_(party), basis_(basis) {}

  void start(const std::string& name) {
    finish();
    name_ = &name;
    table_.add_row("sBold", RowKey{*name_}).skip().text(*name_);
  }

  /// Type, Date, Number, Memo, Account, Category, Amount, Debit, Credit, Paid from column 1 on.
  void add(const store::Row& row) {
    const Category* category = tree_.find(row.text(5));
    bool counts = Is_Counted(basis_, row.text(1), row.flag(10));
    if (!counts || !category || !Is_Result_Type(category->AccountType)) return;
    bool is_debit = !row.money(8).is_zero();
    Money change = is_debit ? row.money(8) : row.money(9);
    bool lowers = is_debit == (party_ == Party::Customer);
    total_ += lowers ? -change : change;
    auto line = table_.add_row("", RowKey{*name_});
    line.skip().text("     " + std::string(row.text(1))).value(row.date(2)).text(row.text(3)).text(row.text(4));
    line.text(category->AccountName);
    line.text(row.text(6) == break_down ? std::string(break_down) : tree_.name(row.text(6)));
    line.money(lowers ? -row.money(7) : row.money(7));
  }

  void finish() {
    if (!name_) return;
    table_.add_row("sBold", RowKey{*name_}).skip().text(*name_).skip(5).money(total_);
    table_.add_spacer();
    total_ = {};
    name_ = nullptr;
  }

 private:
  ReportTable& table_;
  const CategoryTree& tree_;
  Party party_;
  Basis basis_;
  const std::string* name_ = nullptr;  ///< whose rows are being listed
  Money total_;
};

ReportTable Detail(Session& session, const ReportRequest& request, Party party) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  const auto names = Names_Of(db, party);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = Detail_Columns();
  Details details(table, tree, party, request.basis);
  int64_t name_at = -1;
  db.each(
      "SELECT name.key, Transactions.Type, Date, Number, Memo, Account, Category, Amount, Debit, Credit, "
      "Paid" +
          std::string(from_names) + " ORDER BY name.key, TransNum, Item, Transactions.RowKey",
      {request.from, request.to, Id_List(names)}, [&](const store::Row& row) {
        if (row.integer(0) != name_at) details.start(names[static_cast<size_t>(name_at = row.integer(0))]);
        details.add(row);
      });
  details.finish();
  return table;
}

}  // namespace

ReportTable Build_PLCusSum(Session& session, const ReportRequest& request) {
  return Summary(session, request, Party::Customer);
}
ReportTable Build_PLCusDetail(Session& session, const ReportRequest& request) {
  return Detail(session, request, Party::Customer);
}
ReportTable Build_PLVenSum(Session& session, const ReportRequest& request) {
  return Summary(session, request, Party::Vendor);
}
ReportTable Build_PLVenDetail(Session& session, const ReportRequest& request) {
  return Detail(session, request, Party::Vendor);
}

}  // namespace tallymere
