#pragma once

#include <span>
#include <string_view>

/// The tables of every command: the menu bar, the toolbar and the context menus. frmMain and frmMenus walk
/// them; a new report or window is a row here.
namespace tallymere {

inline constexpr std::string_view Separator = "-";

/// A row of the menu bar, below its parent in the order of the table. A row without a window is a submenu, a
/// separator or one of frmMain's own commands, which it knows by name.
struct MenuRow {
  std::string_view parent;  ///< empty: in the bar itself
  std::string_view name;
  std::string_view caption;
  std::string_view window = {};
  std::string_view key = {};  ///< what the window is to be
  const char* shortcut = "";
};
std::span<const MenuRow> Menu_Table();

struct ToolRow {
  std::string_view name;
  std::string_view caption;
  const char* icon;
  std::string_view window = {};  ///< empty: the command of the menu row `command`
  std::string_view command = {};
};
std::span<const ToolRow> Toolbar_Table();

struct ContextRow {
  std::string_view menu;
  std::string_view name;
  std::string_view caption;
};
std::span<const ContextRow> Context_Table();

/// The keys under which frmBills is asked for.
inline constexpr std::string_view Bills_Items = "Items";                ///< with the item tab selected
inline constexpr std::string_view Bills_Item_Receipt = "Item Receipt";  ///< the same, with the item-receipt box set

}  // namespace tallymere
