#include "entry/document/ItemGrid.h"

#include "shell/drop_downs.h"

namespace tallymere {

ItemGrid::ItemGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window, const Layout& layout)
    : LineGrid(window, shell_of_frame, lists_of_window) {
  std::vector<Field> fields = {Field::Item, Field::Description, Field::Quantity, Field::Cost, Field::Amount};
  fields.insert(fields.end(), layout.more.begin(), layout.more.end());
  fields.push_back(Field::Kept);
  columns_.fill(-1);
  std::vector<GridColumn> columns;
  for (size_t at = 0; at < fields.size(); ++at) {
    columns_[static_cast<size_t>(fields[at])] = static_cast<int>(at);
    columns.push_back(column_of(fields[at], layout));
  }
  grid = form.line_grid(layout.name, std::move(columns), layout.hint);
  grid->setAccessibleName(QStringLiteral("Items"));
  on(&SSDBGrid::AfterColUpdate, "grdItems_AfterColUpdate", [this](int row, int column) { updated(row, column); });
  on(&SSDBGrid::AfterDelete, "grdItems_AfterDelete", [this] { tell(); });
}

GridColumn ItemGrid::column_of(Field field, const Layout& layout) const {
  switch (field) {
    case Field::Item:
      return choice("Item", lists.drpItems);
    case Field::Description:
      return text("Description");
    case Field::Quantity:
      return {.name = QString::fromLatin1(layout.Quantity), .kind = Kind::number, .width = 10};
    case Field::Cost:
      return price(layout.Cost, 12);
    case Field::Amount:
      return amount("Amount", 15);
    case Field::Customer:
      return choice("Customer", lists.drpCustomers);
    case Field::Class:
      return choice("Class", lists.drpClass);
    case Field::Tax:
      return {.name = QStringLiteral("Tax"), .kind = Kind::check, .width = 5};
    case Field::CatID:
      return hidden("CatID");
    case Field::Kept:
      return hidden("Kept");
  }
  return {};
}

void ItemGrid::show(const std::vector<ItemLine>& lines) {
  forget();
  grid->RemoveAll();
  for (const ItemLine& line : lines) set_line(grid->rows(), line);
  grid->set_cell(0, column(Field::Item));
  tell();
}

void ItemGrid::set_line(int row, const ItemLine& line) {
  const store::Value values[] = {line.Item,     line.Description, line.Quantity, line.Cost,  line.Amount,
                                 line.Customer, line.Class,       line.Tax,      line.CatID, keep(line.kept)};
  if (row >= grid->rows()) grid->AddItem("");
  for (size_t field = 0; field < columns_.size(); ++field)
    if (columns_[field] >= 0) grid->set_value(row, columns_[field], values[field]);
}

ItemLine ItemGrid::read(int row) const {
  const KeptRow row_before = kept(grid->text(row, column(Field::Kept)));
  const LedgerRow before = row_before ? *row_before : LedgerRow{};
  // What the window has no column for stays as it was.
  const auto text = [&](Field field, const std::string& unseen = {}) {
    return column(field) < 0 ? unseen : grid->text(row, column(field));
  };
  return {.Item = text(Field::Item),
          .Description = text(Field::Description),
          .Quantity = Number_At(*grid, row, column(Field::Quantity)),
          .Cost = Money_At(*grid, row, column(Field::Cost)),
          .Amount = Money_At(*grid, row, column(Field::Amount)),
          .Customer = text(Field::Customer, before.SourceName),
          .Class = text(Field::Class, before.Class),
          .Tax = column(Field::Tax) < 0 ? before.Taxable : grid->checked(row, column(Field::Tax)),
          .CatID = text(Field::CatID, before.Account),
          .kept = row_before};
}

std::vector<ItemLine> ItemGrid::read() const {
  std::vector<ItemLine> lines;
  for (int row = 0; row < grid->rows(); ++row) lines.push_back(read(row));
  return lines;
}

void ItemGrid::updated(int row, int at) {
  if (at == column(Field::Item) || at == column(Field::Class)) form.set_Valid(grid->Valid());
  if (at == column(Field::Item) || at == column(Field::Quantity) || at == column(Field::Cost)) {
    const ItemFacts item = Item_Facts(session, grid->text(row, column(Field::Item)));
    if (at != column(Field::Item)) {
      grid->set_value(row, column(Field::Amount), Item_Amount(read(row), item.ItemType));
    } else {
      if (column(Field::CatID) >= 0) grid->set_text(row, column(Field::CatID), item.posts_to());
      if (chosen_) chosen_(row, item);
    }
  }
  tell();
}

}  // namespace tallymere
