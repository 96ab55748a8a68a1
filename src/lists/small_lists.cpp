#include "lists/small_lists.h"

#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/store/sql.h"

namespace tallymere {
namespace {

std::string Table(const SmallList& list) { return store::Quoted(list.table); }
std::string Field(const SmallList& list) { return store::Quoted(list.field); }

int64_t Add(Session& session, const SmallList& list, const std::string& text) {
  store::Transaction tx(*session.dbCompany, "New in " + std::string(list.table) + ": " + text);
  auto rows = session.dbCompany->OpenRecordset("SELECT * FROM " + Table(list) + " WHERE 1 = 0");
  rows.AddNew();
  rows[list.field] = text;
  rows.Update();
  tx.commit();
  return rows.last_added();
}

}  // namespace

std::vector<SmallListRow> Small_List_Rows(Session& session, const SmallList& list) {
  std::vector<SmallListRow> rows;
  session.dbCompany->each("SELECT RowKey, " + Field(list) + " FROM " + Table(list) + " ORDER BY 2", {},
                          [&](const store::Row& row) {
                            rows.push_back({row.integer(0), std::string(row.text(1))});
                          });
  return rows;
}

bool In_Small_List(Session& session, const SmallList& list, const std::string& text) {
  const std::string sql = "SELECT RowKey FROM " + Table(list) + " WHERE " + Field(list) + " = ?";
  return !session.dbCompany->value(sql, {text}).is_null();
}

void Update_Small_List(Session& session, const SmallList& list, SmallListRow& row) {
  if (row.key == 0) {
    if (!row.text.empty()) row.key = Add(session, list, row.text);
    return;
  }
  store::Transaction tx(*session.dbCompany, "Changed in " + std::string(list.table) + ": " + row.text);
  const int64_t there = session.dbCompany->Execute(
      "UPDATE " + Table(list) + " SET " + Field(list) + " = ? WHERE RowKey = ?", {row.text, row.key});
  // What was typed is not lost when another user has deleted the row meanwhile.
  if (there == 0 && !row.text.empty()) row.key = Add(session, list, row.text);
  tx.commit();
}

void Delete_From_Small_List(Session& session, const SmallList& list, const SmallListRow& row) {
  store::Transaction tx(*session.dbCompany, "Deleted from " + std::string(list.table) + ": " + row.text);
  session.dbCompany->Execute("DELETE FROM " + Table(list) + " WHERE RowKey = ?", {row.key});
  tx.commit();
}

void Add_If_New(Session& session, const SmallList& list, const std::string& text) {
  if (!text.empty() && !In_Small_List(session, list, text)) Add(session, list, text);
}

std::vector<std::string> VENandCustList(Session& session) {
  std::vector<std::string> names;
  session.dbCompany->each("SELECT Name FROM VENandCustList WHERE Name IS NOT NULL ORDER BY Name", {},
                          [&](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

bool Check_New_Payee(Session& session, const std::string& name) {
  if (name.empty()) return true;
  return !session.dbCompany->value("SELECT Name FROM VENandCustList WHERE Name = ?", {name}).is_null();
}

void Add_Payee(Session& session, const std::string& name, PayeeType type) {
  const std::string table = type == PayeeType::Customer ? "Customers" : "Vendors";
  store::Transaction tx(*session.dbCompany, "New payee " + name);
  auto rows = session.dbCompany->OpenRecordset("SELECT * FROM " + table + " WHERE 1 = 0");
  rows.AddNew();
  rows["Name"] = name;
  rows.Update();
  tx.commit();
}

std::optional<NewCategory> Check_New_Payee(Session& session, const std::string& category, int row) {
  if (category.empty() || category == break_down) return std::nullopt;
  const char* by_name = "SELECT CatID FROM Accounts WHERE AccountName = ?";
  if (!session.dbCompany->value(by_name, {category}).is_null()) return std::nullopt;
  return NewCategory{category, row};
}

}  // namespace tallymere
