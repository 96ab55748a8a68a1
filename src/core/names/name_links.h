#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/names/names.h"

/// The tables behind core/names/names.h: what the lists are, and where their names stand.
namespace tallymere {

struct NameTable {
  NameList list;
  std::string_view table, field, word;
  std::string_view parent = {};  ///< the field that names the row above, in lists that are trees
};
const NameTable& Table_Of(NameList list);
std::span<const NameTable> Name_Tables();

/// A field that holds names of a list.
struct NameLink {
  enum Hold {
    Entry,  ///< something that was entered: it may keep a name of before
    List,   ///< something that hangs on the row: it always goes with it
    Owned   ///< a part of the row
  };
  NameList of;
  std::string_view table, field;
  std::string_view word;  ///< for one row that names it
  Hold hold = Entry;
  std::string_view condition = {};  ///< SQL over the table: only these rows
  bool payee = false;               ///< the field holds names of several lists
};
std::span<const NameLink> Name_Links();

/// " AND Type ..." for the transactions that belong to this list where the name stands in several: bills and checks are
/// a vendor's, invoices and payments a customer's, paychecks an employee's. "" where the name is in this list alone.
std::string Payee_Condition(store::Database& db, NameList list, const std::string& name);

}  // namespace tallymere
