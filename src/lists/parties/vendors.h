#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/names/names.h"
#include "lists/list_row.h"
#include "lists/parties/boxes_1099.h"

/// The list of vendors, and the form that makes or changes one.
namespace tallymere {

/// One row of the grid of frmVendors.
struct VendorRow {
  std::string Name;
  Money Balance;
  bool Dormant = false;
};
/// Vendors by name; dormant ones only on request.
std::vector<VendorRow> Make_Vendor_List(Session& session, bool show_dormant);

/// What frmModVendor shows.
struct VendorForm {
  std::string Name = {};
  std::string Contact = {};
  std::string Phone = {};
  std::string AltPhone = {};
  std::string FaxPhone = {};
  std::string EmailAddress = {};
  std::string AccountNum = {};
  std::string CheckPrint = {};  ///< the payee's name on checks
  std::string Terms = {};
  std::string ShippingAddress = {};  ///< a vendor's one address stands in this field
  std::string Notes = {};
  std::string TaxID = {};
  bool chk1099 = false;
  std::string lblCat = {};  ///< CatID of 1099Cat
  Form1099 form = Form1099::MISC;
  std::vector<std::string> boxes = {};  ///< the selected rows of lstBoxes
  bool Dormant = false;
  Carry carry = Carry::Everywhere;  ///< a new name
};
VendorForm Vendor_Form(ListRow& row);

/// Saves the form, or answers with the first mistake. Without chk1099 the category and boxes stay as they were.
RowSave Save_Vendor(Session& session, ListRow& row, const VendorForm& form);

}  // namespace tallymere
