#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/names/names.h"
#include "payroll/items/pay_item_form.h"

/// The ticks that say which tax counts which pay or deduction, and what else names a payroll item.
namespace tallymere {

/// The grids on the frame of a type, in order.
std::vector<TickGrid> Tick_Grids_Of(ItemType type);

/// Ticks of a new item, from the set tables.
void Offer_Ticks(store::Database& company, PayItemForm& form);
/// Ticks of an item; those of a tax that has none yet, as the set tables offer them. Nothing is written.
void Read_Ticks(store::Database& company, PayItemForm& form);

// These write inside the caller's Transaction.

/// Those that were changed. Error 3197 when another user changed some of them.
void Save_Ticks(store::Database& company, const PayItemForm& form);
/// All of a new item's, and what it gets in the set tables and in the ticks of all others.
void Write_New_Ticks(store::Database& company, const PayItemForm& form, const std::string& name);
void Delete_Ticks(store::Database& company, const std::string& name);

/// Who names the item: transactions, lines of employees and of time sheets.
std::vector<NameUse> Pay_Item_Uses(store::Database& company, const std::string& name);

}  // namespace tallymere
