#include "reports/frame/field_columns.h"

#include "core/company/field_captions.h"
#include "core/store/sql.h"
#include "core/values/format.h"

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
                 const std::vector<std::string>& fields) {
  table.columns = {{.kind = Kind::Margin}};
  std::vector<FieldType> types;
  std::string names;
  for (const std::string& name : fields) {
    const store::Field& field = *db.find_table(table_name)->find(name);
    table.columns.push_back(Column_Of(field));
    types.push_back(field.type);
    names += store::Quoted(field.name) + ", ";
  }
  db.each("SELECT " + names + "RowKey FROM " + store::Quoted(table_name) + " ORDER BY " +
              store::Quoted(fields.front()) + ", RowKey",
          {}, [&](const store::Row& row) {
            auto line = table.add_row();
            line.skip();
            for (size_t at = 0; at < types.size(); ++at) line.value(Field_Value(row, static_cast<int>(at), types[at]));
          });
}

}  // namespace tallymere
