#include "lists/named_rows.h"

#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

std::string In_Quotes(const std::string& name) { return "\"" + name + "\""; }

Fault Taken(const ListRow& row, const NamedRow& named, const std::string& name) {
  return {{"There is already a " + std::string(row.list().word) + " named " + In_Quotes(name) + ".", "Name in Use",
           Icon::Information},
          named.control};
}

bool Wants_Merge(Session& session, const ListRow& row, const std::string& name) {
  const std::string word(row.list().word);
  return session.prompts.ask(
      {"There is already a " + word + " named " + In_Quotes(name) + ". Do you want to make the two one?", "Merge Names",
       Icon::Question,
       "All entries of " + In_Quotes(row.key()) + " become entries of " + In_Quotes(name) + ", which stays as it is."},
      Buttons::YesNoDefaultNo);
}

std::string As_Listed(Session& session, const RowList& list, const std::string& name) {
  const std::string key = store::Quoted(list.key);
  return session.dbCompany
      ->value("SELECT " + key + " FROM " + store::Quoted(list.table) + " WHERE " + key + " = ?", {name})
      .text();
}

RowSave Merge(Session& session, ListRow& row, const NamedRow& named, const std::string& name, const WriteRow& merge) {
  if (Is_Below_Itself(session, named.list, row.key(), name))
    return {.fault = Fault{{In_Quotes(name) + " stands below " + In_Quotes(row.key()) +
                                ". Give it another place before the two become one.",
                            "Merge Names", Icon::Information},
                           named.control}};
  const std::string what = "Merged " + std::string(row.list().word) + " " + row.key() + " with " + name;
  return Remove_Row(session, row, what, [&](ListRow& gone) {
    if (merge)
      if (auto fault = merge(gone)) return fault;
    Rename(session, named.list, gone.key(), name, Carry::Everywhere, true);
    return std::optional<Fault>();
  });
}

void Make_Dormant(Session& session, const RowList& rows, const std::string& name) {
  store::Transaction tx(*session.dbCompany, "Dormant " + std::string(rows.word) + " " + name);
  session.dbCompany->Execute(
      "UPDATE " + store::Quoted(rows.table) + " SET Dormant = True WHERE " + store::Quoted(rows.key) + " = ?", {name});
  tx.commit();
}

bool Offer_Dormant(Session& session, const RowList& rows, const std::string& name, const std::string& why) {
  const std::string text = In_Quotes(name) + " cannot be deleted, for " + why + ".";
  const bool dormant =
      session.dbCompany
          ->value("SELECT Dormant FROM " + store::Quoted(rows.table) + " WHERE " + store::Quoted(rows.key) + " = ?",
                  {name})
          .flag();
  if (dormant) {
    session.prompts.box({text, "No Deletion", Icon::Information});
    return false;
  }
  if (!session.prompts.ask({text + " Do you want to make it dormant?", "No Deletion", Icon::Question,
                            "A dormant " + std::string(rows.word) + " is hidden from the lists and keeps its entries."},
                           Buttons::YesNoDefaultNo))
    return false;
  Make_Dormant(session, rows, name);
  return true;
}

}  // namespace

RowSave Save_Named_Row(Session& session, ListRow& row, const NamedRow& named, const WriteRow& write,
                       const WriteRow& merge) {
  const std::string name = trim(named.name), before = row.key();
  if (name.empty()) return {.fault = Fault{{"Please enter a Name", "No Name", Icon::Information}, named.control}};
  if (Is_Taken(session, named.list, name, before)) {
    if (row.is_new()) return {.fault = Taken(row, named, name)};
    const std::string other = As_Listed(session, row.list(), name);
    return Wants_Merge(session, row, other) ? Merge(session, row, named, other, merge) : RowSave{.stayed = true};
  }
  return Save_Row(session, row, std::string(row.list().word) + " " + name, [&](ListRow& fields) {
    if (Is_Taken(session, named.list, name, before)) return std::optional(Taken(fields, named, name));
    fields.set_text(fields.list().key, name);
    auto fault = write(fields);
    if (!fault) Rename(session, named.list, before, name, named.carry);
    return fault;
  });
}

bool Delete_Named_Row(Session& session, const RowList& rows, NameList list, const std::string& name) {
  const Box question{"Are you sure you want to delete " + In_Quotes(name), "Confirm Delete", Icon::Critical};
  if (!session.prompts.ask(question, Buttons::YesNoDefaultNo)) return false;
  const auto why = Delete_Or_Why_Not(session, list, name);
  return !why || Offer_Dormant(session, rows, name, *why);
}

}  // namespace tallymere
