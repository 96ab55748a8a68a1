#include "reports/lists/list_reports.h"

#include "core/store/sql.h"
#include "reports/frame/field_columns.h"

namespace tallymere {
namespace {

/// A row for each record of a table, in the order of the first of these fields.
ReportTable Build_List(Session& session, const ReportRequest& request, std::string_view table_name,
                       const std::vector<std::string>& fields) {
  store::Database& db = *session.dbCompany;
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = ReportColumn::Kind::Margin}};
  std::string names;
  std::vector<store::FieldType> types;
  for (const std::string& name : fields) {
    const store::Field& field = *db.find_table(table_name)->find(name);
    table.columns.push_back(Column_Of(field));
    types.push_back(field.type);
    names += (names.empty() ? "" : ", ") + store::Quoted(field.name);
  }
  db.each("SELECT " + names + " FROM " + store::Quoted(table_name) + " ORDER BY " + store::Quoted(fields.front()) +
              ", RowKey",
          {}, [&](const store::Row& row) {
            auto line = table.add_row();
            line.skip();
            for (size_t at = 0; at < types.size(); ++at)
              line.value(Field_Value(row, static_cast<int>(at), types[at]));
          });
  return table;
}

}  // namespace

ReportTable Build_Category_List(Session& session, const ReportRequest& request) {
  return Build_List(session, request, "Accounts", {"AccountName", "AccountType", "AccountNum", "Balance"});
}

}  // namespace tallymere
