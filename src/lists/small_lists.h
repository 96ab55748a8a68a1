#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/session.h"

/// The one-column lists that feed the entry windows, and whether a typed payee is known.
namespace tallymere {

/// A list of names. Terms, PaymentMethod, VIA and RepNames grow by typing a new value in an entry window;
/// Class and OtherNames have windows too.
struct SmallList {
  std::string_view table;
  std::string_view field;
};
inline constexpr SmallList Class_List = {"Class", "Class"};
inline constexpr SmallList OtherNames_List = {"OtherNames", "Name"};
inline constexpr SmallList Terms_List = {"Terms", "Term"};
inline constexpr SmallList PaymentMethod_List = {"PaymentMethod", "Method"};
inline constexpr SmallList VIA_List = {"VIA", "Method"};
inline constexpr SmallList RepNames_List = {"RepNames", "Name"};
inline constexpr SmallList CustomerMessages_List = {"CustomerMessages", "Message"};

/// A row of such a list, for the grid that edits it in place.
struct SmallListRow {
  int64_t key = 0;  ///< hidden key; 0: the new line
  std::string text;
};
std::vector<SmallListRow> Small_List_Rows(Session& session, const SmallList& list);
/// Whether a value is in the list, case aside.
bool In_Small_List(Session& session, const SmallList& list, const std::string& text);
/// Writes a row as it was typed; a row without a key is added and gets one. Empty text adds nothing.
void Update_Small_List(Session& session, const SmallList& list, SmallListRow& row);
void Delete_From_Small_List(Session& session, const SmallList& list, const SmallListRow& row);
/// Adds a value that an entry window met, unless it is empty or there.
void Add_If_New(Session& session, const SmallList& list, const std::string& text);

/// Payees: vendors, customers, employees and other names, in one list by name.
std::vector<std::string> VENandCustList(Session& session);
/// Whether a payee is known; if not, frmNewPayee asks for its type and Add_Payee adds it.
bool Check_New_Payee(Session& session, const std::string& name);

enum class PayeeType { Customer = 0, Vendor = 1 };
void Add_Payee(Session& session, const std::string& name, PayeeType type);

/// A category that was typed into a register and does not exist: frmModAccount is to make it.
struct NewCategory {
  std::string AccountName;
  int row = 0;
};
/// The register's form, for the category typed in a row of its grid; nothing when it is known or broken down.
std::optional<NewCategory> Check_New_Payee(Session& session, const std::string& category, int row);

}  // namespace tallymere
