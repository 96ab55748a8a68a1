#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/prompts.h"
#include "core/company/session.h"
#include "core/ledger/category_list.h"
#include "lists/list_row.h"

/// The list of categories and the form that makes or changes one.
namespace tallymere {

/// One row of grdAccounts.
struct AccountRow {
  std::string Name;  ///< indented by its level
  std::string Type;
  Money Balance;
  std::string CatID;
};
/// The tree of categories, grouped by type; dormant ones and all below them only on request.
std::vector<AccountRow> Make_List(Session& session, bool show_dormant);

/// The CatID of the category with this name; "" when there is none. Lists may lack it: another user made it, or what it
/// stood below is gone.
std::string Category_Named(Session& session, const std::string& AccountName);

/// Which commands of mnuAccount a row allows; those not named here always are.
struct AccountCommands {
  bool mnuRegister = false;
  bool mnuReconcile = false;
  bool mnuDelete = false;
};
AccountCommands Account_Commands(const AccountRow& row);
/// Whether a double click on a row of this type opens its register.
bool Opens_Register(std::string_view AccountType);

/// mnuDelete: asks, then deletes a category that nothing is posted to and nothing else names. The list is to
/// be rebuilt whatever came of it.
bool Delete_Category(Session& session, const AccountRow& row);

/// Why frmModAccount was opened.
enum class AccountMode { New = 1, Edit = 2, FromCheck = 3, FromRegister = 4 };

/// What frmModAccount shows.
struct CategoryForm {
  AccountMode mode = AccountMode::New;
  std::string CatID = {};  ///< of the row in mode Edit; after saving, of the new one
  std::string txtName = {};
  std::string cmbType = {};
  bool Check1 = false;           ///< Sub Category of
  std::string cmbSubCat = {};    ///< the parent's name
  std::string lblParentID = {};  ///< the parent's CatID
  std::string txtAcctNum = {};
  std::string txtDescripiton = {};
  bool chkDormant = false;
};

/// A blank form; `name` is what was typed into an entry window's grid.
CategoryForm New_Category(AccountMode mode = AccountMode::New, const std::string& name = "");
/// The form on a category.
CategoryForm Edit_Category(Session& session, ListRow& row);

/// The types that cmbType offers.
std::vector<std::string> Account_Types(Session& session);

struct ParentChoice {
  std::string AccountName;
  std::string CatID;
};
/// What cmbSubCat offers: categories of the form's type, without the category itself and what stands below
/// it.
std::vector<ParentChoice> Parent_Choices(Session& session, const CategoryForm& form);
/// Ticking Check1 needs a type first.
std::optional<Fault> Check_Sub_Category(const CategoryForm& form);

/// Saves the form, or answers with the first mistake. A new category gets a number that none ever
/// had, followed by "SS".
RowSave Save_Category(Session& session, ListRow& row, CategoryForm& form);

}  // namespace tallymere
