#include "lists/list_row.h"

#include "core/store/sql.h"

namespace tallymere {
namespace {

std::string Query(const RowList& list, std::string_view condition) {
  return "SELECT * FROM " + store::Quoted(list.table) + " WHERE " + std::string(condition);
}

Conflict Changed_Meanwhile(const RowList& list) {
  return {
      {"This " + std::string(list.word) +
           " has been modified by another user since you opened it. It will not be updated. Click Ok to see changes.",
       "Data has changed", Icon::Information},
      true};
}

}  // namespace

ListRow::ListRow(Session& session, const RowList& list)
    : list_(list), fields_(session.dbCompany->OpenRecordset(Query(list, "1 = 0"))) {}

ListRow::ListRow(Session& session, const RowList& list, const std::string& key)
    : list_(list), fields_(session.dbCompany->OpenRecordset(Query(list, store::Quoted(list.key) + " = ?"), {key})) {
  key_ = fields_[list_.key].text();  // as it is spelled there
}

void ListRow::set_text(std::string_view field, const std::string& text) {
  if (fields_[field].text() != text) fields_[field] = text;
}

void ListRow::set_flag(std::string_view field, bool flag) {
  if (is_new() || fields_[field].flag() != flag) fields_[field] = flag;
}

bool Row_Exists(Session& session, const RowList& list, const std::string& key) {
  return !session.dbCompany
              ->value("SELECT RowKey FROM " + store::Quoted(list.table) + " WHERE " + store::Quoted(list.key) + " = ?",
                      {key})
              .is_null();
}

struct RowSaving {
  /// Begins the store transaction, lets `act` work in it, and tells a mistake from another user's work.
  static RowSave run(Session& session, ListRow& row, const std::string& what,
                     const std::function<std::optional<Fault>(store::Recordset&)>& act) {
    try {
      store::Transaction tx(*session.dbCompany, what);
      if (auto fault = act(row.fields_)) return {.fault = std::move(fault)};
      tx.commit();
      return {};
    } catch (const store::Error& error) {
      auto conflict = Conflict_Of(error);
      if (!conflict) throw;
      if (conflict->reload) conflict = Changed_Meanwhile(row.list());
      return {.conflict = std::move(conflict)};
    }
  }
};

RowSave Save_Row(Session& session, ListRow& row, const std::string& what, const WriteRow& write) {
  return RowSaving::run(session, row, what, [&](store::Recordset& fields) {
    row.is_new() ? fields.AddNew() : fields.Edit();
    auto fault = write(row);
    fault ? fields.CancelUpdate() : fields.Update();
    return fault;
  });
}

RowSave Remove_Row(Session& session, ListRow& row, const std::string& what, const WriteRow& write) {
  return RowSaving::run(session, row, what, [&](store::Recordset& fields) {
    fields.Delete();
    return write(row);
  });
}

}  // namespace tallymere
