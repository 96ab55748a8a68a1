#pragma once

#include <functional>
#include <string>

#include "core/names/names.h"
#include "lists/list_row.h"

/// Rows that others name by value: customers, vendors, items. Saving one keeps its name its own, and carries a new one.
namespace tallymere {

struct NamedRow {
  NameList list;
  std::string name;  ///< as typed; blanks around it do not count
  Carry carry = Carry::Everywhere;
  std::string control = "txtName";
};

/// Saves the row under its name with all that names it. A new row with a name that is taken is a mistake; an edited one is offered to become
/// one with the row of that name: then `merge` writes what goes over to that row, and the edited one is gone.
RowSave Save_Named_Row(Session& session, ListRow& row, const NamedRow& named, const WriteRow& write,
                       const WriteRow& merge = {});

/// Of a list's Delete command, on the row called `name`: asks, then deletes it, or says why it must stay and offers to make it
/// dormant. true: the list has changed.
bool Delete_Named_Row(Session& session, const RowList& rows, NameList list, const std::string& name);

}  // namespace tallymere
