#include "app/drive/books.h"

#include <cmath>
#include <regex>

#include "app/drive/failed.h"
#include "core/company/folder.h"
#include "core/store/database.h"
#include "core/store/sql.h"
#include "core/values/text.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive::books {

namespace {

using store::Database;
using store::FieldType;
using store::Statement;
using store::Value;

std::unique_ptr<Database> Open(const std::filesystem::path& company) {
  if (company.empty()) throw Failed{"no company is open"};
  return Open_Current(company, store::FileKind::Company);
}

/// Lets queries on this connection see amounts as decimals: a view of the same name stands before each table.
void Show_Decimals(Database& db) {
  for (const store::TableDef& table : db.TableDefs()) {
    std::string columns(store::hidden_key);
    for (const store::Field& field : table.fields) {
      const std::string name = store::Quoted(field.name);
      columns += ", " + name + (field.type == FieldType::Money ? " / 10000.0 AS " + name : "");
    }
    const std::string name = store::Quoted(table.name);
    db.connection().execute("CREATE TEMP VIEW " + name + " AS SELECT " + columns + " FROM main." + name);
  }
}

/// What a script writes as a parameter; a text that reads as a date is one.
Value Param(const QJSValue& param) {
  if (param.isNull() || param.isUndefined()) return {};
  if (param.isBool()) return param.toBool();
  if (param.isNumber()) {
    const double number = param.toNumber();
    const bool whole = std::trunc(number) == number && std::abs(number) < 1e15;
    return whole ? Value(static_cast<int64_t>(number)) : Value(number);
  }
  const std::string text = utf8(param.toString());
  if (const auto day = Date::parse(text)) return *day;
  return text;
}

Database::Params Params(const std::vector<QJSValue>& params) {
  Database::Params values;
  for (const QJSValue& param : params) values.push_back(Param(param));
  return values;
}

/// Sums of decimals carry the dust of binary fractions; amounts end at the fourth decimal.
double Without_Dust(double sum) { return std::round(sum * 1e6) / 1e6; }

struct To_Script {
  QJSEngine& engine;
  QJSValue operator()(std::monostate) const { return QJSValue(QJSValue::NullValue); }
  QJSValue operator()(const std::string& text) const { return qt(text); }
  QJSValue operator()(int64_t number) const { return static_cast<double>(number); }
  QJSValue operator()(double number) const { return number; }
  QJSValue operator()(Money amount) const { return amount.to_double(); }
  QJSValue operator()(Date day) const { return qt(day.to_text()); }
  QJSValue operator()(bool flag) const { return flag; }
};

Value Cell(const Statement& row, int column) {
  const Value raw = row.raw(column);
  const std::string declared = row.declared_type(column);
  if (!declared.empty()) return store::Typed(raw, store::Type_Of_Declaration(declared));
  const double* number = std::get_if<double>(&raw.content());
  return number ? Value(Without_Dust(*number)) : raw;
}

QJSValue Row(QJSEngine& engine, const Statement& statement, bool with_empty) {
  QJSValue row = engine.newObject();
  for (int column = 0; column < statement.columns(); ++column) {
    const std::string name = statement.column_name(column);
    if (name == store::hidden_key) continue;
    const Value value = Cell(statement, column);
    if (with_empty || !value.is_null()) row.setProperty(qt(name), std::visit(To_Script{engine}, value.content()));
  }
  return row;
}

QJSValue Read(QJSEngine& engine, const std::filesystem::path& company, const std::string& sql,
              const Database::Params& params, bool with_empty) {
  const std::unique_ptr<Database> db = Open(company);
  Show_Decimals(*db);
  QJSValue rows = engine.newArray();
  Statement statement = db->query(sql, params);
  for (quint32 count = 0; statement.step(); ++count) rows.setProperty(count, Row(engine, statement, with_empty));
  return rows;
}

/// The column each `?` of an action statement stands for: the one it is set to or compared with, or its place
/// in an INSERT's list. Empty where there is none.
std::vector<std::string> Columns_Of_Params(const std::string& sql) {
  static const std::regex marks(R"((\w+)\s*(?:=|<>|<=|>=|<|>|\bIS\b|\bLIKE\b)\s*\?|\?)", std::regex::icase);
  static const std::regex insert(R"(\bINTO\s+\w+\s*\(([^)]*)\))", std::regex::icase);
  std::vector<std::string> columns;
  if (std::smatch list; std::regex_search(sql, list, insert)) {
    for (const std::string& name : split(list[1].str(), ",")) columns.push_back(trim(name));
    return columns;
  }
  for (std::sregex_iterator at(sql.begin(), sql.end(), marks), end; at != end; ++at) columns.push_back((*at)[1].str());
  return columns;
}

const store::TableDef* Table_Of(const Database& db, const std::string& sql) {
  static const std::regex target(R"(\b(?:UPDATE|INTO|FROM)\s+(\w+))", std::regex::icase);
  std::smatch name;
  return std::regex_search(sql, name, target) ? db.find_table(name[1].str()) : nullptr;
}

}  // namespace

QJSValue Rows(QJSEngine& engine, const std::filesystem::path& company, const std::string& sql,
              const std::vector<QJSValue>& params) {
  return Read(engine, company, sql, Params(params), true);
}

int Change(const std::filesystem::path& company, const std::string& sql, const std::vector<QJSValue>& params) {
  const std::unique_ptr<Database> db = Open(company);
  Database::Params values = Params(params);
  const std::vector<std::string> columns = Columns_Of_Params(sql);
  const store::TableDef* table = Table_Of(*db, sql);
  for (size_t at = 0; table && at < std::min(values.size(), columns.size()); ++at) {
    const store::Field* field = table->find(columns[at]);
    if (field) values[at] = values[at].as(field->type);
  }
  store::Transaction tx(*db, "Another user");
  const int64_t changed = db->Execute(sql, values);
  tx.commit();
  return static_cast<int>(changed);
}

QJSValue Ledger(QJSEngine& engine, const std::filesystem::path& company, const QJSValue& number) {
  return Read(engine, company, "SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {Param(number)}, false);
}

}  // namespace tallymere::drive::books
