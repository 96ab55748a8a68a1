#include "reports/transactions/custom_rows.h"

#include "core/store/sql.h"
#include "reports/frame/field_columns.h"
#include "reports/frame/listing.h"
#include "reports/frame/names.h"
#include "reports/frame/table_parts.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;
using store::FieldType;

// What every query reads first.
enum Fixed { group_column, TransNum_column, Type_column, Credit_column, Amount_column, first_field };

const ReportColumn balance_column = {.caption = "Balance", .kind = Kind::Money, .name = "Balance"};

}  // namespace

Custom_Rows::Custom_Rows(store::Database& db, ReportTable& table, const ReportRequest& request)
    : db_(db), table_(table), request_(request), tree_(CategoryTree::Load(db)) {
  table_.looks = Looks::List;
  offer_columns();
  read_columns();
}

/// The fields of the ledger, and a running balance where it is one category's.
void Custom_Rows::offer_columns() {
  for (const store::Field& field : db_.find_table("Transactions")->fields) table_.offered.push_back(Column_Of(field));
  const ReportDef* report = Find_Report(request_.key);
  if (report && report->subject == report_option::category) table_.offered.push_back(balance_column);
}

void Custom_Rows::read_columns() {
  table_.columns = {{.kind = Kind::Margin}};
  for (const std::string& name : Column_Names(request_.option(report_option::fields))) add_column(name);
  if (!columns_.empty()) return;
  for (const store::Field& field : db_.find_table("Transactions")->fields) add_column(field.name);
}

/// Nothing for a name the ledger has not: a saved list may come from another version.
void Custom_Rows::add_column(const std::string& name) {
  const bool is_balance = name == balance_column.name;
  const store::Field* field = db_.find_table("Transactions")->find(name);
  if (!field && !is_balance) return;
  const bool is_category = name == "Account" || name == "Category";
  table_.columns.push_back(is_balance ? balance_column : Column_Of(*field));
  Shows shows = is_balance         ? Shows::Balance
                : name == "Amount" ? Shows::Amount
                : is_category      ? Shows::CategoryName
                                   : Shows::Field;
  int at = first_field + static_cast<int>(columns_.size());
  columns_.push_back({shows, at, is_balance ? FieldType::Money : field->type});
  fields_ += is_balance ? ", NULL" : ", Transactions." + store::Quoted(field->name);
}

Money Custom_Rows::Signed_Amount(Money Amount, Money Credit) const {
  return Credit.is_zero() != credit_positive_ ? Amount : -Amount;
}

void Custom_Rows::Add_Opening_Balance() {
  const int balance = table_.find_column(balance_column.caption);
  if (balance < 0) return;
  auto line = table_.add_row();
  line.skip();
  if (balance > 1) line.text(table_.columns[1].is_right() ? "" : "Opening Balance").skip(balance - 2);
  line.money(total_);
}

std::string Custom_Rows::select(std::string_view group) const {
  return "SELECT " + std::string(group) + ", Transactions.TransNum, Transactions.Type, Credit, Transactions.Amount" +
         fields_ + " FROM ";
}

void Custom_Rows::Fill_Rows(std::string_view condition, const store::Database::Params& params, std::string_view order) {
  store::Database::Params all = {request_.from, request_.to};
  all.insert(all.end(), params.begin(), params.end());
  db_.each(select("0") + "Transactions WHERE Date >= ?1 AND Date <= ?2" + std::string(condition) + " ORDER BY " +
               std::string(order) + ", Transactions.RowKey",
           all, [&](const store::Row& row) { add_row(row); });
}

void Custom_Rows::Fill_Groups(std::string_view field, const std::vector<std::string>& names) {
  Listing listing(table_, names, Listing::Idle::Shown);
  db_.each(select("name.key") + "json_each(?3) AS name CROSS JOIN Transactions WHERE " + store::Quoted(field) +
               " = name.value AND Date >= ?1 AND Date <= ?2"
               " ORDER BY name.key, Date, TransNum, Debit, Transactions.RowKey",
           {request_.from, request_.to, Id_List(names)}, [&](const store::Row& row) {
             listing.go_to(static_cast<size_t>(row.integer(group_column)));
             add_row(row);
           });
  listing.finish();
}

void Custom_Rows::add_row(const store::Row& row) {
  const Money amount = Signed_Amount(row.money(Amount_column), row.money(Credit_column));
  total_ += amount;
  auto line = table_.add_row(Role::Detail, To_Transaction(row.text(Type_column), row.integer(TransNum_column)));
  line.skip();
  for (const Column& column : columns_) add_cell(line, column, row, amount);
}

void Custom_Rows::add_cell(ReportTable::Line& line, const Column& column, const store::Row& row, Money amount) {
  switch (column.shows) {
    case Shows::Balance:
      line.money(total_);
      return;
    case Shows::Amount:
      line.money(amount);
      return;
    case Shows::CategoryName:
      line.text(Category_Name(tree_, row.text(column.at)));
      return;
    case Shows::Field:
      line.value(Field_Value(row, column.at, column.type));
      return;
  }
}

void Custom_Rows::Add_Total() {
  const int amount = table_.find_column("Amount");
  if (amount < 0) return;
  Money sum;
  bool any = false;
  for (int row = 0; row < table_.rows(); ++row) {
    store::Value cell = table_.value(row, amount);
    if (!std::holds_alternative<Money>(cell.content())) continue;  // a head row
    sum += cell.money();
    any = true;
  }
  table_.add_row(Role::Spacer);
  auto line = table_.add_row(Role::Grand_Total);
  line.skip();
  if (amount > 1) line.text("TOTAL").skip(amount - 2);
  if (any)
    line.money(sum);
  else
    line.text("$0.00");
}

}  // namespace tallymere
