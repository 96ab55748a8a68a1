#include "reports/frame/field_columns.h"

#include <algorithm>

#include "core/company/field_captions.h"
#include "core/company/schema.h"
#include "core/store/sql.h"
#include "core/values/format.h"
#include "reports/frame/names.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;
using store::FieldType;

Kind Kind_Of(const store::Field& field) {
  if (field.name == "TransNum") return Kind::Text;  // a number that only names something
  switch (field.type) {
    case FieldType::Money:
      return Kind::Money;
    case FieldType::Long:
    case FieldType::Integer:
    case FieldType::Double:
      return Kind::Number;
    case FieldType::Date:
      return Kind::Date;
    case FieldType::Flag:
      return Kind::Flag;
    default:
      return Kind::Text;
  }
}

/// Whether a field points at a category.
bool Is_Category(std::string_view table, std::string_view field) {
  return std::ranges::any_of(references(), [&](const Reference& link) {
    return link.from_table == table && link.from_field == field && link.to_table == "Accounts";
  });
}

}  // namespace

ReportColumn Column_Of(const store::Field& field) {
  const bool is_price = field.name == "SalePrice" || field.name == "PriceRate";
  return {.caption = Field_Caption(field.name),
          .kind = Kind_Of(field),
          .mask = std::string(is_price ? price_mask : ""),
          .name = field.name};
}

store::Value Field_Value(const store::Row& row, int column, FieldType type) {
  if (row.is_null(column)) return {};
  switch (type) {
    case FieldType::Money:
      return row.money(column);
    case FieldType::Long:
    case FieldType::Integer:
      return row.integer(column);
    case FieldType::Double:
      return row.number(column);
    case FieldType::Date:
      return row.date(column);
    case FieldType::Flag:
      return row.flag(column);
    default:
      return row.text(column);
  }
}

void Add_Records(store::Database& db, ReportTable& table, std::string_view table_name,
                 const std::vector<Record_Column>& fields) {
  const CategoryTree tree = CategoryTree::Load(db);
  const auto name_of = [&tree](std::string_view CatID) { return Category_Name(tree, CatID); };
  std::vector<Record_Column> columns = fields;
  std::vector<FieldType> types;
  std::string names;
  table.columns = {{.kind = Kind::Margin}};
  for (Record_Column& column : columns) {
    const store::Field& field = *db.find_table(table_name)->find(column.field);
    table.columns.push_back(Column_Of(field));
    if (!column.caption.empty()) table.columns.back().caption = column.caption;
    if (Is_Category(table_name, field.name)) column.shown = name_of;
    types.push_back(field.type);
    names += store::Quoted(field.name) + ", ";
  }
  db.each("SELECT " + names + "RowKey FROM " + store::Quoted(table_name) + " ORDER BY 1, RowKey", {},
          [&](const store::Row& row) {
            auto line = table.add_row();
            line.skip();
            for (int at = 0; const Record_Column& column : columns) {
              if (column.shown)
                line.text(column.shown(row.text(at)));
              else
                line.value(Field_Value(row, at, types[static_cast<size_t>(at)]));
              ++at;
            }
          });
}

}  // namespace tallymere
