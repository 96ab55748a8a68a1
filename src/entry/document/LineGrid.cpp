#include "entry/document/LineGrid.h"

#include "core/values/format.h"
#include "core/values/text.h"
#include "lists/categories.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"

namespace tallymere {

LineGrid::LineGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window)
    : QObject(&window), form(window), shell(shell_of_frame), session(shell_of_frame.session), lists(lists_of_window) {}

GridColumn LineGrid::amount(const char* caption, int width) {
  return {.name = QString::fromLatin1(caption), .kind = Kind::money, .width = width};
}

GridColumn LineGrid::price(const char* caption, int width) {
  GridColumn column = amount(caption, width);
  column.mask = price_mask;
  return column;
}

GridColumn LineGrid::choice(const char* caption, SSDBDropDown* list, int id_column) {
  return {.name = QString::fromLatin1(caption), .list = list, .id_column = id_column};
}

GridColumn LineGrid::hidden(const char* caption) {
  return {.name = QString::fromLatin1(caption), .kind = Kind::hidden};
}

std::string LineGrid::category_or_new(const std::string& name) {
  const std::string id = Category_Named(session, name);
  if (id.empty())
    return shell
        .Ask_Window({.window = "frmModAccount", .key = name, .number = static_cast<int64_t>(AccountMode::FromCheck)})
        .value_or("");
  lists.changed("Accounts");  // which had not heard of it
  return id;
}

std::string LineGrid::keep(const KeptRow& row) {
  if (!row) return "";
  kept_.push_back(row);
  return std::to_string(kept_.size());
}

KeptRow LineGrid::kept(const std::string& cell) const {
  return cell.empty() ? nullptr : kept_[static_cast<size_t>(std::stoul(cell)) - 1];
}

void LineGrid::add_new_classes(int class_column) {
  on(&SSDBGrid::AfterUpdate, "Grid_AfterUpdate", [this, class_column](int row) {
    const std::string name = trim(grid->text(row, class_column));
    if (name.empty() || In_Small_List(session, Class_List, name)) return;
    Add_If_New(session, Class_List, name);
    shell.changed("Class");
  });
}

}  // namespace tallymere
