#pragma once

#include <array>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/category_list.h"
#include "core/ledger/probe.h"
#include "lists/list_row.h"
#include "payroll/pay_items.h"

/// The form that makes or changes a payroll item: a frame of fields for each type, and which tax counts what.
namespace tallymere {

inline constexpr RowList PayItem_Rows = {"PayrollItems", "Name", "payroll item"};

/// A field on the frame of a type, and the control it stands in.
struct PayItemField {
  enum class Is { Text, Rate, Limit, Fraction, Tick, Expense, Liability, Agency, Tracking, State, FedRates, Options };
  ItemType type;
  std::string_view field, control, label;
  Is is = Is::Text;
  std::string_view label_control = {};  ///< the label's own name, where a rule hides it
};
std::span<const PayItemField> PayItem_Fields();

/// An option button: its caption, and the text that is stored for it.
struct PayItemOption {
  std::string_view control, caption, stored;
};
std::span<const PayItemOption> PayItem_Options();

/// A grid of ticks on the frame of a type.
struct TickGrid {
  ItemType type;
  std::string_view control_new, control_edit, caption;
  std::string_view table, other;   ///< where the ticks of an item are kept, and the field that names what is ticked
  std::string_view set, set_name;  ///< where a new item gets them from
};
std::span<const TickGrid> Tick_Grids();

struct TickRow {
  int64_t key = 0;  ///< of the row it was read from; 0: a new one
  std::string name = {};
  bool selected = false;
  friend bool operator==(const TickRow&, const TickRow&) = default;
};

/// What frmModPayItem shows: texts as they are typed, a tick as "1" or "0", a category by its CatID.
struct PayItemForm {
  std::string Name = {}, Type = {};
  std::map<std::string, std::string, std::less<>> fields = {};  ///< of the type's frame, by field
  std::vector<std::vector<TickRow>> ticks = {};                 ///< of the type's grids, in their order
  std::vector<std::vector<TickRow>> ticks_as_read = {};
  std::vector<Probe> probes = {};
  std::string TaxPaid = {};  ///< of a federal tax

  ItemType type() const { return Item_Type_Of(Type); }
  const std::string& at(std::string_view field) const;  ///< "" when the frame has no such field
};
/// A new item of a type, with the ticks that the set tables offer it.
PayItemForm New_Pay_Item(Session& session, const std::string& Type);
PayItemForm Pay_Item_Form(Session& session, ListRow& row);

/// Which fields of its frame an item has no use for: their controls are hidden.
bool Has_Use_For(const PayItemForm& form, std::string_view field);
/// What the category pickers offer: those of this type at the top, and below each its sub-categories; and the one that
/// stands in the item, whatever it is.
std::vector<CategoryRow> Pay_Item_Categories(Session& session, std::string_view type, const std::string& keep);
/// What the law gives a new state unemployment item: rate, limit and fee; nothing for a state we know nothing of.
void Prefill_Unemployment(PayItemForm& form);
/// Sets the ticks of an addition or deduction as its tracking type wants them.
void Tick_By_Tracking_Type(Session& session, PayItemForm& form);

/// Saves the form, or answers with the first mistake. With a new item its ticks in the other tables are written.
RowSave Save_Pay_Item(Session& session, ListRow& row, const PayItemForm& form);

/// One row of grdPayItems, in the order of the types.
struct PayItemListRow {
  std::string Name, Type;
};
std::vector<PayItemListRow> Make_Pay_Item_List(Session& session);
/// mnuDeletePayroll: asks, naming what uses the item, then deletes it with its ticks. true: the list has changed.
bool Delete_Pay_Item(Session& session, const std::string& name);

}  // namespace tallymere
