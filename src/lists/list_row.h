#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"
#include "core/store/recordset.h"

/// A row of a list while its form is open: a category, a customer, a vendor, an item, an employee.
namespace tallymere {

/// A list whose rows have a form: its table, the field that tells rows apart, and the word for one row.
struct RowList {
  std::string_view table;
  std::string_view key;
  std::string_view word;
};
inline constexpr RowList Category_Rows = {"Accounts", "CatID", "category"};
inline constexpr RowList Customer_Rows = {"Customers", "Name", "customer"};
inline constexpr RowList Vendor_Rows = {"Vendors", "Name", "vendor"};
inline constexpr RowList Item_Rows = {"Items", "ItemName", "item"};

/// The row as it was read. Saving finds out whether another user changed or deleted it since.
class ListRow {
 public:
  ListRow(Session& session, const RowList& list);  ///< a new one
  /// Error 3021 when there is no such row (any more).
  ListRow(Session& session, const RowList& list, const std::string& key);

  const RowList& list() const { return list_; }
  bool is_new() const { return key_.empty(); }
  const std::string& key() const { return key_; }  ///< as it was read; "" of a new one
  store::FieldRef operator[](std::string_view field) { return fields_[field]; }
  /// Sets a text; an empty one leaves a field without any as it is.
  void set_text(std::string_view field, const std::string& text);
  void set_flag(std::string_view field, bool flag);  ///< likewise: unset is off

 private:
  friend struct RowSaving;
  RowList list_;
  std::string key_;
  store::Recordset fields_;
};

bool Row_Exists(Session& session, const RowList& list, const std::string& key);

/// How a save ended: written, the user's mistake, or another user's work. Only a save without both wrote anything.
struct RowSave {
  std::optional<Fault> fault = {};
  std::optional<Conflict> conflict = {};
  bool stayed = false;  ///< the user was asked, and goes on with the form

  bool ok() const { return !fault && !conflict && !stayed; }
};

/// Saves a row in one store transaction: `write` sets its fields, and what else it writes belongs to the same commit. A
/// fault that it answers with leaves everything as it was.
using WriteRow = std::function<std::optional<Fault>(ListRow& row)>;
RowSave Save_Row(Session& session, ListRow& row, const std::string& what, const WriteRow& write);

/// Removes the row instead, in the same way; `write` does what goes with it.
RowSave Remove_Row(Session& session, ListRow& row, const std::string& what, const WriteRow& write);

}  // namespace tallymere
