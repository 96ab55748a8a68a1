#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/names/names.h"
#include "lists/list_row.h"

/// The list of customers and their jobs, and the form that makes or changes one.
namespace tallymere {

/// One row of grdCustomers.
struct CustomerRow {
  std::string Name;
  std::string ParentName;
  Money Balance;
  bool Dormant = false;
  int level = 0;  ///< below the customer it is a job of

  const std::string& key() const { return Name; }
  const std::string& parent() const { return ParentName; }
};
/// Customers by name, and below each its jobs by name. Without `show_dormant` a dormant customer at the top is left out
/// with its jobs; a dormant job shows.
std::vector<CustomerRow> Make_Customer_List(Session& session, bool show_dormant);

/// What frmModCustomer shows.
struct CustomerForm {
  std::string Name = {};
  std::string Contact = {};
  std::string Phone = {};
  std::string AltPhone = {};
  std::string AltContact = {};
  std::string FaxPhone = {};
  std::string EmailAddress = {};
  std::string AccountNum = {};
  std::string RepName = {};
  std::string BillingAddress = {};
  std::string ShippingAddress = {};
  std::string Notes = {};
  bool chkSubJob = false;
  std::string ParentName = {};
  bool Dormant = false;
  Carry carry = Carry::Everywhere;  ///< a new name
};
CustomerForm Customer_Form(ListRow& row);

/// What cmbCustomers offers: all customers but the one called `name` and its jobs.
std::vector<std::string> Customers_To_Be_Job_Of(Session& session, const std::string& name);

/// Saves the form, or answers with the first mistake.
RowSave Save_Customer(Session& session, ListRow& row, const CustomerForm& form);

}  // namespace tallymere
