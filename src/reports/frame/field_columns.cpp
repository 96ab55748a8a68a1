#include "reports/frame/field_columns.h"

#include "core/company/field_captions.h"
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

}  // namespace tallymere
