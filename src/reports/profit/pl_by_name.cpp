#include "reports/profit/pl_by_name.h"

#include "reports/frame/listing.h"
#include "reports/frame/names.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

enum class Party { Customer, Vendor };

std::vector<std::string> Names_Of(store::Database& db, Party party) {
  return Names_In(db, party == Party::Customer ? "Customers" : "Vendors");
}

bool Is_Result_Type(std::string_view type) {
  return type == "Cost of Goods Sold" || contains(type, "Income") || contains(type, "Expense");
}

using Kind = ReportColumn::Kind;

ReportTable Begin(Session& session, const ReportRequest& request, std::vector<ReportColumn> columns) {
  ReportTable table;
  table.heading = Make_Heading(session, request);
  if (request.basis == Basis::Cash)
    table.heading.note = "Invoices and bills count by their own date once they are paid.";
  table.columns = std::move(columns);
  return table;
}

ReportTable Summary(Session& session, const ReportRequest& request, Party party) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  CaselessMap<Money> totals;  // of every name that some row of the period bears
  // A debit raises what a vendor costs and lowers what a customer brings; the debit is asked first.
  const Sum_Of what{Counted_Rows(request.basis), "CASE WHEN Debit <> 0 THEN Debit ELSE -Credit END"};
  Sum_Names(db, request.days(), what, [&](std::string_view name, std::string_view CatID, Money sum) {
    Money& total = totals[std::string(name)];
    const Category* category = tree.find(CatID);
    if (category && Is_Result_Type(category->AccountType)) total += party == Party::Vendor ? sum : -sum;
  });
  const std::string period = Period_Text(request.from, request.to);
  ReportTable table = Begin(
      session, request,
      {{.kind = Kind::Margin}, {}, {.caption = period, .kind = Kind::Money, .name = "Period"}, {.kind = Kind::Margin}});
  for (const std::string& name : Names_Of(db, party))
    if (auto total = totals.find(name); total != totals.end()) table.add_row().skip().text(name).money(total->second);
  return table;
}

std::vector<ReportColumn> Detail_Columns() {
  return {{.kind = Kind::Margin},
          {.caption = "Type"},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Memo"},
          {.caption = "Category"},
          {.caption = "Break Down"},
          {.caption = "Amount", .kind = Kind::Money},
          {.kind = Kind::Margin}};
}

/// Adds the rows that count to a listing by name.
class Details {
 public:
  enum Column { Place, TransNum, Type, Day, Number, Memo, Account, Category, Amount, Debit, Credit, Paid };
  static constexpr std::string_view fields =
      "name.key, TransNum, Transactions.Type, Date, Number, Memo, Account, Category, Amount, Debit, Credit, Paid";

  Details(ReportTable& table, Listing& listing, const CategoryTree& tree, Party party, Basis basis)
      : table_(table), listing_(listing), tree_(tree), party_(party), basis_(basis) {}

  void add(const store::Row& row) {
    listing_.go_to(static_cast<size_t>(row.integer(Place)));
    const auto* category = tree_.find(row.text(Account));
    const bool counts = Is_Counted(basis_, row.text(Type), row.flag(Paid));
    if (!counts || !category || !Is_Result_Type(category->AccountType)) return;
    const bool is_debit = !row.money(Debit).is_zero();
    const bool lowers = is_debit == (party_ == Party::Customer);
    const Money change = is_debit ? row.money(Debit) : row.money(Credit);
    listing_.sum(lowers ? -change : change);
    auto line = table_.add_row(Role::Detail, {.number = row.integer(TransNum)});
    line.skip().text("     " + std::string(row.text(Type))).value(row.date(Day));
    line.text(row.text(Number)).text(row.text(Memo));
    line.text(category->AccountName).text(Category_Name(tree_, row.text(Category)));
    line.money(lowers ? -row.money(Amount) : row.money(Amount));
  }

 private:
  ReportTable& table_;
  Listing& listing_;
  const CategoryTree& tree_;
  Party party_;
  Basis basis_;
};

ReportTable Detail(Session& session, const ReportRequest& request, Party party) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  const std::vector<std::string> names = Names_Of(db, party);
  ReportTable table = Begin(session, request, Detail_Columns());
  Listing listing(table, names, Listing::Idle::Left_Out, table.find_column("Amount"));
  Details details(table, listing, tree, party, request.basis);
  db.each("SELECT " + std::string(Details::fields) +
              " FROM json_each(?3) AS name CROSS JOIN Transactions INDEXED BY Transactions_Name"
              " WHERE Name = name.value AND Date >= ?1 AND Date <= ?2"
              " ORDER BY name.key, TransNum, Item, Transactions.RowKey",
          {request.from, request.to, Id_List(names)}, [&](const store::Row& row) { details.add(row); });
  listing.finish();
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
