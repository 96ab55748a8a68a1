#pragma once

#include "lists/items/items.h"

/// What the items of type "Group" stand for.
namespace tallymere {

/// In the order in which they were entered.
std::vector<GroupLine> Group_Lines(Session& session, const std::string& GroupName);

/// A line whose item was chosen: its description and one piece, but no quantity of a subtotal.
GroupLine Proposed_Line(Session& session, const std::string& item);

/// The first line that cannot be: an item nobody knows, or the group itself, at whatever depth.
std::optional<Fault> Group_Fault(Session& session, const std::string& GroupName, const std::vector<GroupLine>& lines);
/// Whether an item is a group's line, or a line of a group that is one.
bool Holds(Session& session, const std::string& GroupName, const std::string& item);

/// Writes the lines where they differ from those that were read. Error 3197 when another user changed them meanwhile.
void Write_Group(Session& session, const std::string& GroupName, const std::vector<GroupLine>& before,
                 const std::vector<GroupLine>& lines);

}  // namespace tallymere
