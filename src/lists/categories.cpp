#include "lists/categories.h"

#include <algorithm>

#include "core/ledger/category_tree.h"
#include "core/ledger/ledger.h"
#include "core/ledger/links.h"
#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

/// What the commands of a row go by. "..." in front of a type: any type that contains it.
constexpr std::string_view reconciled_types[] = {"Bank", "Credit Card"};
constexpr std::string_view register_types[] = {
    "Bank",    "Credit Card", "Current Liability", "Long Term Liability", "Accounts Receivable", "Accounts Payable",
    "...Asset"};
constexpr std::string_view double_click_types[] = {"Accounts Payable",    "Credit Card",  "Bank",
                                                   "Accounts Receivable", "...Liability", "...Asset"};
constexpr std::string_view kept_ids[] = {"RE1", "OE1"};
constexpr std::string_view kept_names[] = {"Undeposited Funds", "Accounts Receivable", "Accounts Payable"};

template <typename List>
bool Names(const List& list, std::string_view type) {
  return std::ranges::any_of(list, [&](std::string_view named) {
    return named.starts_with("...") ? contains(type, named.substr(3)) : named == type;
  });
}

Fault Mistake(const char* text, const char* title, const char* control) {
  return {{text, title, Icon::Information}, control};
}

std::optional<Fault> Form_Fault(Session& session, const CategoryForm& form) {
  if (form.txtName.empty()) return Mistake("Please enter a name for this Category", "No Name", "txtName");
  const auto types = Account_Types(session);
  // A category of a type that is none would show in no list.
  if (std::ranges::find(types, form.cmbType) == types.end())
    return Mistake("Please select a type for this Category", "No Type", "cmbType");
  return std::nullopt;
}

/// A parent of another type would carry the category to where its type does not belong.
std::optional<Fault> Parent_Fault(Session& session, const CategoryForm& form) {
  if (!form.Check1 || form.lblParentID.empty()) return std::nullopt;
  for (const ParentChoice& choice : Parent_Choices(session, form))
    if (same_text(choice.CatID, form.lblParentID)) return std::nullopt;
  return Mistake("Please select a Parent Category of the same type.", "No Parent", "cmbSubCat");
}

void Begin_Category(Session& session, ListRow& row, CategoryForm& form) {
  if (!row.is_new()) return;
  form.CatID = Unused_CatID(*session.dbCompany);
  Note_CatID(*session.dbCompany, form.CatID);
  row["CatID"] = form.CatID;
  row["OpeningDate"] = session.today();
  row["LastYearEndBal"] = Money();
}

std::optional<Reference> Delete_Unless_Used(store::Database& db, const std::string& CatID, const std::string& name) {
  store::Transaction tx(db, "Deleted category " + name);
  if (auto use = In_Use(db, "Accounts", "CatID", CatID)) return use;
  Note_CatID(db, CatID);
  db.Execute("DELETE FROM Accounts WHERE CatID = ?", {CatID});
  tx.commit();
  return std::nullopt;
}

}  // namespace

// --- frmAccounts -----------------------------------------------------------------------------------------

std::vector<AccountRow> Make_List(Session& session, bool show_dormant) {
  std::vector<AccountRow> rows;
  for (const CategoryRow& row : Make_Category_List(*session.dbCompany, show_dormant))
    rows.push_back({Indented(row.AccountName, row.level), row.AccountType, row.Balance, row.CatID});
  return rows;
}

std::string Category_Named(Session& session, const std::string& AccountName) {
  return session.dbCompany->value("SELECT CatID FROM Accounts WHERE AccountName = ? ORDER BY RowKey", {AccountName})
      .text();
}

AccountCommands Account_Commands(const AccountRow& row) {
  return {.mnuRegister = Names(register_types, row.Type),
          .mnuReconcile = Names(reconciled_types, row.Type),
          .mnuDelete = !Names(kept_ids, row.CatID) && !Names(kept_names, ltrim(row.Name))};
}

bool Opens_Register(std::string_view AccountType) { return Names(double_click_types, AccountType); }

bool Delete_Category(Session& session, const AccountRow& row) {
  const std::string name = ltrim(row.Name);
  const Box question{"Are you sure you want to delete \"" + name + "\"", "Confirm Delete", Icon::Critical};
  if (!session.prompts.ask(question, Buttons::YesNoDefaultNo)) return false;

  const auto use = Delete_Unless_Used(*session.dbCompany, row.CatID, name);
  if (use) session.prompts.box({"Category in use cannot Delete", "No Deletion", Icon::Information, Use_In_Words(*use)});
  return !use;
}

// --- frmModAccount ---------------------------------------------------------------------------------------

CategoryForm New_Category(AccountMode mode, const std::string& name) { return {.mode = mode, .txtName = name}; }

CategoryForm Edit_Category(Session& session, ListRow& row) {
  CategoryForm form{.mode = AccountMode::Edit,
                    .CatID = row.key(),
                    .txtName = row["AccountName"].text(),
                    .cmbType = row["AccountType"].text(),
                    .txtAcctNum = row["AccountNum"].text(),
                    .txtDescripiton = row["Description"].text(),
                    .chkDormant = row["Dormant"].flag()};
  const std::string parent = row["ParentAccount"].text();
  if (parent.empty()) return form;
  form.Check1 = true;
  form.cmbSubCat = Category_Name(session, parent);
  if (!form.cmbSubCat.empty()) form.lblParentID = parent;
  return form;
}

std::vector<std::string> Account_Types(Session& session) {
  std::vector<std::string> types;
  session.dbAccounts->each("SELECT Type FROM AccountTypes ORDER BY RowKey", {},
                           [&](const store::Row& row) { types.emplace_back(row.text(0)); });
  return types;
}

std::vector<ParentChoice> Parent_Choices(Session& session, const CategoryForm& form) {
  const CategoryTree tree = CategoryTree::Load(*session.dbCompany);
  auto left_out = tree.descendants(form.CatID);
  left_out.push_back(tree.find(form.CatID));
  std::vector<ParentChoice> choices;
  for (const Category& category : tree.all())
    if (same_text(category.AccountType, form.cmbType) && std::ranges::find(left_out, &category) == left_out.end())
      choices.push_back({category.AccountName, category.CatID});
  return choices;
}

std::optional<Fault> Check_Sub_Category(const CategoryForm& form) {
  if (!form.cmbType.empty()) return std::nullopt;
  return Mistake("Please select a Parent Category before selecting a Sub Category.", "No Parent", "cmbType");
}

RowSave Save_Category(Session& session, ListRow& row, CategoryForm& form) {
  if (auto fault = Form_Fault(session, form)) return {.fault = fault};
  return Save_Row(session, row, "Category " + form.txtName, [&](ListRow& fields) {
    if (auto fault = Parent_Fault(session, form)) return fault;
    Begin_Category(session, fields, form);
    fields.set_text("AccountName", form.txtName);
    fields.set_text("AccountType", form.cmbType);
    fields.set_text("AccountNum", form.txtAcctNum);
    fields.set_text("Description", form.txtDescripiton);
    fields.set_text("ParentAccount", form.Check1 ? form.lblParentID : "");
    fields.set_flag("Dormant", form.chkDormant);
    return std::optional<Fault>();
  });
}

}  // namespace tallymere
