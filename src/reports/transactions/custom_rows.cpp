#include "reports/transactions/custom_rows.h"

#include "core/ledger/ledger.h"
#include "core/store/sql.h"
#include "reports/sums/ledger_sums.h"
#include "reports/transactions/transaction_reports.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;
using store::FieldType;

// What every query reads first.
enum Fixed { group_column, TransNum_column, Type_column, Credit_column, first_field };

Kind Kind_Of(FieldType type) {
  switch (type) {
    case FieldType::Money:
      return Kind::Money;
    case FieldType::Long:
    case FieldType::Integer:
    case FieldType::Double:
      return Kind::Number;
    case FieldType::Date:
      return Kind::Date;
    case FieldType::Flag:
      return Kind::Flag;
    default:
      return Kind::Text;
  }
}

bool Is_Right(std::string_view caption) {
  constexpr std::array<std::string_view, 6> right = {"Amount", "Credit",         "Sale Price",
                                                     "Debit",  "AmountReceived", "Balance"};
  return std::find(right.begin(), right.end(), caption) != right.end();
}

store::Value Content(const store::Row& row, int column, FieldType type) {
  if (row.is_null(column)) return {};
  switch (type) {
    case FieldType::Money:
      return row.money(column);
    case FieldType::Long:
    case FieldType::Integer:
      return row.integer(column);
    case FieldType::Double:
      return row.number(column);
    case FieldType::Date:
      return row.date(column);
    case FieldType::Flag:
      return row.flag(column);
    default:
      return row.text(column);
  }
}

}  // namespace

Custom_Rows::Custom_Rows(store::Database& db, ReportTable& table, const ReportRequest& request)
    : db_(db), table_(table), request_(request), tree_(CategoryTree::Load(db)) {
  table_.go_to = ReportTable::GoTo::Transaction;
  read_columns(request.option(report_option::fields));
}

void Custom_Rows::read_columns(const std::string& list) {
  table_.columns = {{.kind = Kind::Margin, .width = 1}};
  for (const std::string& name : Column_Names(list)) add_column(name);
  if (!columns_.empty()) return;
  for (const std::string& name : Pickable_Fields(db_)) add_column(name);
}

/// Nothing for a name the ledger has not: a saved list may come from another version.
void Custom_Rows::add_column(const std::string& name) {
  const bool is_balance = name == "Balance";
  const store::Field* field = db_.find_table("Transactions")->find(name);
  if (!field && !is_balance) return;
  const std::string caption(Caption_Of_Field(name));
  const bool is_category = name == "Account" || name == "Category";
  table_.columns.push_back(
      {.caption = caption, .kind = is_balance ? Kind::Money : Kind_Of(field->type), .right = Is_Right(caption)});
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

void Custom_Rows::add_head(std::string_view name) { table_.add_row("Bold").skip().text(name); }

std::string Custom_Rows::select(std::string_view group) const {
  return "SELECT " + std::string(group) + ", Transactions.TransNum, Transactions.Type, Credit" + fields_ + " FROM ";
}

void Custom_Rows::Fill_Rows(std::string_view condition, const store::Database::Params& params, std::string_view order) {
  store::Database::Params all = {request_.from, request_.to};
  all.insert(all.end(), params.begin(), params.end());
  db_.each(select("0") + "Transactions WHERE Date >= ?1 AND Date <= ?2" + std::string(condition) + " ORDER BY " +
               std::string(order) + ", Transactions.RowKey",
           all, [&](const store::Row& row) { add_row(row); });
}

void Custom_Rows::Fill_Groups(std::string_view field, const std::vector<std::string>& names) {
  size_t next = 0;
  auto heads_up_to = [&](size_t end) {
    while (next < end) add_head(names[next++]);
  };
  const std::string column = store::Quoted(field);
  db_.each(select("name.key") + "json_each(?3) AS name CROSS JOIN Transactions WHERE " + column +
               " = name.value AND Date >= ?1 AND Date <= ?2"
               " ORDER BY name.key, Date, TransNum, Debit, Transactions.RowKey",
           {request_.from, request_.to, Id_List(names)}, [&](const store::Row& row) {
             heads_up_to(static_cast<size_t>(row.integer(group_column)) + 1);
             add_row(row);
           });
  heads_up_to(names.size());
}

void Custom_Rows::add_row(const store::Row& row) {
  auto line = table_.add_row("Small", {row.text(Type_column), row.integer(TransNum_column)});
  line.skip();
  for (const Column& column : columns_) add_cell(line, column, row);
}

void Custom_Rows::add_cell(ReportTable::Line& line, const Column& column, const store::Row& row) {
  switch (column.shows) {
    case Shows::Balance:
      line.money(total_);
      return;
    case Shows::Amount: {
      Money amount = Signed_Amount(row.money(column.at), row.money(Credit_column));
      total_ += amount;
      line.money(amount);
      return;
    }
    case Shows::CategoryName:
      line.text(row.text(column.at) == break_down ? std::string(break_down) : tree_.name(row.text(column.at)));
      return;
    case Shows::Field:
      line.value(Content(row, column.at, column.type));
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
  table_.add_row();
  auto line = table_.add_row("Bold");
  line.skip();
  if (amount > 1) line.text("TOTAL").skip(amount - 2);
  if (any)
    line.money(sum);
  else
    line.text("$0.00");
}

}  // namespace tallymere
