#pragma once

#include <QObject>
#include <string>

#include "core/company/session.h"
#include "shell/widgets/grid/SSDBDropDown.h"

namespace tallymere {

/// The lists that the combos and grids of an entry window choose from, read from the company.
class DropDowns : public QObject {
 public:
  DropDowns(Session& session, QObject* parent);

  void fill();                             ///< all of them
  void changed(const std::string& table);  ///< those that show rows of this table

  SSDBDropDown* const drpExpenseList;  ///< categories: AccountName, Type; the id is the CatID
  SSDBDropDown* const drpItems;        ///< items: ItemName, Description, PriceRate
  SSDBDropDown* const drpCustomers;    ///< payees and customers: VENandCustList
  SSDBDropDown* const drpClass;

 private:
  void fill_categories();
  void fill_items();
  void fill_payees();
  void fill_classes();

  Session& session_;
};

}  // namespace tallymere
