#include "lists/items/item_groups.h"

#include "core/store/error.h"
#include "core/values/caseless.h"
#include "core/values/text.h"

namespace tallymere {

std::vector<GroupLine> Group_Lines(Session& session, const std::string& GroupName) {
  std::vector<GroupLine> lines;
  session.dbCompany->each("SELECT Item, Description, Qty FROM ItemGroups WHERE GroupName = ? ORDER BY RowKey",
                          {GroupName}, [&](const store::Row& row) {
                            lines.push_back({std::string(row.text(0)), std::string(row.text(1)),
                                             row.is_null(2) ? std::nullopt : std::optional(row.number(2))});
                          });
  return lines;
}

GroupLine Proposed_Line(Session& session, const std::string& item) {
  GroupLine line{.Item = item};
  session.dbCompany->each("SELECT Description, ItemType FROM Items WHERE ItemName = ?", {item},
                          [&](const store::Row& row) {
                            line.Description = row.text(0);
                            if (row.text(1) != "Subtotal") line.Qty = 1;
                          });
  return line;
}

bool Holds(Session& session, const std::string& GroupName, const std::string& item) {
  std::vector<std::string> to_look_at{GroupName};
  CaselessMap<bool> met{{GroupName, true}};
  while (!to_look_at.empty()) {
    const std::string group = to_look_at.back();
    to_look_at.pop_back();
    for (const GroupLine& line : Group_Lines(session, group)) {
      if (same_text(line.Item, item)) return true;
      if (met.emplace(line.Item, true).second) to_look_at.push_back(line.Item);
    }
  }
  return false;
}

std::optional<Fault> Group_Fault(Session& session, const std::string& GroupName, const std::vector<GroupLine>& lines) {
  const auto fault = [](const std::string& text) { return Fault{{text, "No Item", Icon::Information}, "grdGroup"}; };
  for (const GroupLine& line : lines) {
    if (!Row_Exists(session, Item_Rows, line.Item)) return fault("There is no item named \"" + line.Item + "\".");
    if (!GroupName.empty() && (same_text(line.Item, GroupName) || Holds(session, line.Item, GroupName)))
      return fault("\"" + line.Item + "\" holds this group itself.");
  }
  return std::nullopt;
}

void Write_Group(Session& session, const std::string& GroupName, const std::vector<GroupLine>& before,
                 const std::vector<GroupLine>& lines) {
  if (lines == before) return;
  if (Group_Lines(session, GroupName) != before)
    throw store::Error(store::errors::data_changed, "Another user changed the lines of \"" + GroupName + "\".");
  store::Database& db = *session.dbCompany;
  db.Execute("DELETE FROM ItemGroups WHERE GroupName = ?", {GroupName});
  for (const GroupLine& line : lines)
    db.Execute("INSERT INTO ItemGroups (GroupName, Item, Description, Qty) VALUES (?, ?, ?, ?)",
               {GroupName, line.Item, line.Description, line.Qty});
}

}  // namespace tallymere
