#pragma once

#include "core/ledger/category_tree.h"
#include "reports/reports.h"

namespace tallymere {

/// Fills a transaction report: the columns of the user's list, the rows, the running total, the total row.
class Custom_Rows {
 public:
  Custom_Rows(store::Database& db, ReportTable& table, const ReportRequest& request);

  /// On: a credit is positive. Off, as at first: a debit is.
  void set_credit_positive(bool on) { credit_positive_ = on; }
  void set_running_total(Money amount) { total_ = amount; }
  const CategoryTree& categories() const { return tree_; }

  /// A first row with the running total as it stands; nothing where that is not shown.
  void Add_Opening_Balance();
  /// Rows of the period that meet a condition on Transactions, in this order.
  void Fill_Rows(std::string_view condition, const store::Database::Params& params,
                 std::string_view order = "Date, TransNum, Debit");
  /// The rows of each of these names in `field`, under a head row each, in one reading.
  void Fill_Groups(std::string_view field, const std::vector<std::string>& names);
  void Add_Total();

  Money Signed_Amount(Money Amount, Money Credit) const;

 private:
  /// What a column shows: a field of the ledger, or the running total.
  enum class Shows { Field, Amount, CategoryName, Balance };
  struct Column {
    Shows shows;
    int at;  ///< in the query
    store::FieldType type;
  };
  void read_columns();  ///< the request's; without a known one: all fields
  void offer_columns();
  void add_column(const std::string& name);
  void add_row(const store::Row& row);
  void add_cell(ReportTable::Line& line, const Column& column, const store::Row& row, Money amount);
  std::string select(std::string_view first_columns) const;

  store::Database& db_;
  ReportTable& table_;
  const ReportRequest& request_;
  CategoryTree tree_;
  std::vector<Column> columns_;
  std::string fields_;  ///< the query's columns after the fixed ones
  bool credit_positive_ = false;
  Money total_;
};

}  // namespace tallymere
