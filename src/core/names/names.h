#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

/// Names that stand by value in other rows: of customers, vendors, items, employees. One table of links says where;
/// whoever adds a field that holds such a name adds a row there.
namespace tallymere {

enum class NameList { Customers, Vendors, Items, Employees, OtherNames };

/// Where a name stands: how many rows, and what one calls them ("3 jobs").
struct NameUse {
  std::string word;  ///< for one: "job"
  int64_t count = 0;
};
/// Who names it, each place once. What belongs to the row itself, as the lines of a group do, is no use.
std::vector<NameUse> Used_In(Session& session, NameList list, const std::string& name);
/// "12 transactions, 3 jobs and 1 estimate".
std::string Spoken(const std::vector<NameUse>& uses);

/// Whether a list has such a name, case aside, in another row than the one called `own`.
bool Is_Taken(Session& session, NameList list, const std::string& name, const std::string& own = "");

/// What a rename carries the new name to.
enum class Carry {
  Everywhere,  ///< transactions, papers and time sheets of before as well
  Lists        ///< only what hangs on the row by its name: jobs, sub-items, groups, whom an item is bought from
};
/// Puts the new name in the place of the old one, inside a store transaction; the row itself is its owner's. Error 3022
/// when the new name is another row's, unless `merge` says that the two become one.
void Rename(Session& session, NameList list, const std::string& from, const std::string& to,
            Carry carry = Carry::Everywhere, bool merge = false);

/// Deletes the row and what belongs to it, or says in words why it must stay: "it is used in 12 transactions".
std::optional<std::string> Delete_Or_Why_Not(Session& session, NameList list, const std::string& name);

/// Whether a row would hang below itself with this parent: customers below customers, items below items.
bool Is_Below_Itself(Session& session, NameList list, const std::string& name, const std::string& parent);

}  // namespace tallymere
