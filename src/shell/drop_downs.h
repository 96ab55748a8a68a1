#pragma once

#include <QObject>
#include <map>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "lists/small_lists.h"
#include "shell/widgets/grid/SSDBDropDown.h"

namespace tallymere {

/// The lists that the combos and grids of an entry window choose from, read from the company. They follow its changes.
class DropDowns : public QObject {
 public:
  DropDowns(Session& session, QObject* parent);

  void fill();                             ///< all of them
  void changed(const std::string& table);  ///< those that show rows of this table

  SSDBDropDown* const drpExpenseList;  ///< categories: AccountName, Type; the id is the CatID
  SSDBDropDown* const drpItems;        ///< items: ItemName, Description, PriceRate
  SSDBDropDown* const drpCustomers;    ///< payees and customers: VENandCustList
  SSDBDropDown* const drpClass;

  /// A small list, or the names of one table alone. Only what a window asks for is read.
  SSDBDropDown* small_list(const SmallList& list);
  SSDBDropDown* Customers() { return small_list({"Customers", "Name"}); }
  SSDBDropDown* Vendors() { return small_list({"Vendors", "Name"}); }
  SSDBDropDown* Employees() { return small_list({"Employees", "Name"}); }

 private:
  struct Small {
    SmallList list;
    SSDBDropDown* rows;
  };
  void fill_categories();
  void fill_items();
  void fill_payees();
  void fill(const Small& small);

  Session& session_;
  std::map<std::string_view, Small> small_;  ///< by table: those that were asked for
};

}  // namespace tallymere
