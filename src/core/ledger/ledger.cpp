#include "core/ledger/ledger.h"

#include <algorithm>
#include <array>

#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

const std::string other_mark = " - Other";

std::string Make_Other_Child(Session& session, const std::string& parent_id) {
  store::Database& db = *session.dbCompany;
  auto parent = db.OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {parent_id});
  std::string name = parent["AccountName"].text() + other_mark;
  store::Transaction tx(db, "New category " + name);
  std::string id = Unused_CatID(db);
  auto accounts = db.OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {id});
  accounts.AddNew();
  accounts["CatID"] = id;
  accounts["AccountName"] = name;
  accounts["AccountType"] = parent["AccountType"].value();
  accounts["ParentAccount"] = parent_id;
  accounts["OpeningDate"] = session.today();
  accounts["Dormant"] = false;
  accounts["LastYearEndBal"] = Money();
  accounts.Update();
  Note_CatID(db, id);
  tx.commit();
  return id;
}

}  // namespace

std::string SubAccount_Clause(const CategoryTree& tree, std::string_view parent) {
  std::string clause;
  for (const Category* child : tree.descendants(parent))
    clause += " OR Account = '" + doubled_quotes(child->CatID) + "'";
  return clause;
}

std::string SubAccount_Clause(Session& session, std::string_view parent) {
  return SubAccount_Clause(CategoryTree::Load(*session.dbCompany), parent);
}

std::string Category_Name(Session& session, const std::string& id) {
  if (id == break_down) return id;
  return session.dbCompany->value("SELECT AccountName FROM Accounts WHERE CatID = ?", {id}).text();
}

std::string Get_Postable_Category(Session& session, const std::string& id) {
  if (id.empty() || id == break_down) return id;
  bool has_children = false;
  std::string other;
  session.dbCompany->each("SELECT CatID, AccountName FROM Accounts WHERE ParentAccount = ? ORDER BY RowKey", {id},
                          [&](const store::Row& child) {
                            has_children = true;
                            if (other.empty() && contains(child.text(1), other_mark)) other = child.text(0);
                          });
  if (!has_children) return id;
  return other.empty() ? Make_Other_Child(session, id) : other;
}

bool Is_Credit_Normal(std::string_view type) {
  return type == "Equity" || type == "Credit Card" || type == "Accounts Payable" || contains(type, "Liability");
}

bool Is_Profit_And_Loss(std::string_view type) {
  // The blank before "Other Expense" stays: a category of type "Other Expense" does keep a balance.
  constexpr std::array<std::string_view, 5> types = {"Income", "Expense", " Other Expense", "Other Income",
                                                     "Cost of Goods Sold"};
  return std::find(types.begin(), types.end(), type) != types.end();
}

int Count_Text_Lines(std::string_view text) {
  int lines = 1;
  for (size_t at = 0; at < text.size(); ++at) {
    bool second_half = text[at] == '\n' && at > 0 && text[at - 1] == '\r';
    if ((text[at] == '\r' || text[at] == '\n') && !second_half) ++lines;
  }
  return lines;
}

}  // namespace tallymere
