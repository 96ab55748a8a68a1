#include "core/store/database.h"

#include <sodium.h>

#include <algorithm>

#include "core/store/recordset.h"
#include "core/store/shape.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

namespace fs = std::filesystem;

struct Declaration {
  FieldType type;
  std::string_view text;
};
/// The second word gives the engine's affinity, the first tells the program what the column means.
constexpr std::array<Declaration, 8> declarations = {{{FieldType::Text, "TEXT"},
                                                      {FieldType::Memo, "MEMO TEXT"},
                                                      {FieldType::Long, "LONG INTEGER"},
                                                      {FieldType::Integer, "SHORT INTEGER"},
                                                      {FieldType::Money, "MONEY INTEGER"},
                                                      {FieldType::Double, "DOUBLE"},
                                                      {FieldType::Date, "DATE TEXT"},
                                                      {FieldType::Flag, "FLAG INTEGER"}}};

std::string Column_Definition(const Field& field) {
  bool is_text = field.type == FieldType::Text || field.type == FieldType::Memo;
  // A flag that nobody set is false, so that "Dormant = False" finds it.
  std::string_view more = is_text ? " COLLATE NOCASE" : field.type == FieldType::Flag ? " DEFAULT 0" : "";
  return Quoted(field.name) + " " + std::string(Declaration_Of_Type(field.type)) + std::string(more);
}

std::string Decimal_View(const TableDef& table) {
  std::string columns;
  for (const Field& field : table.fields) {
    std::string name = Quoted(field.name);
    columns += columns.empty() ? "" : ", ";
    columns += field.type == FieldType::Money ? name + " / 10000.0 AS " + name : name;
  }
  return "CREATE VIEW " + Quoted(table.name + "_decimal") + " AS SELECT " + columns + " FROM " + Quoted(table.name);
}

/// A slow hash is not needed here: this password is the program's own, the same in every file.
std::string Salted_Hash(std::string_view password, std::string_view salt) {
  std::array<unsigned char, crypto_generichash_BYTES> hash{};
  std::string salted = std::string(salt) + std::string(password);
  crypto_generichash(hash.data(), hash.size(), reinterpret_cast<const unsigned char*>(salted.data()), salted.size(),
                     nullptr, 0);
  std::string hex(hash.size() * 2 + 1, '\0');
  sodium_bin2hex(hex.data(), hex.size(), hash.data(), hash.size());
  hex.pop_back();
  return hex;
}

std::string New_Salt() {
  std::array<unsigned char, 16> bytes{};
  randombytes_buf(bytes.data(), bytes.size());
  std::string hex(33, '\0');
  sodium_bin2hex(hex.data(), hex.size(), bytes.data(), bytes.size());
  hex.pop_back();
  return hex;
}

bool Password_Fits(Connection& connection, std::string_view password) {
  auto row = connection.prepare("SELECT Salt, Hash FROM StorePassword");
  if (!row.step()) return password.empty();
  return Salted_Hash(password, row.text(0)) == row.text(1);
}

std::string Password_Of(std::string_view connect) {
  for (const std::string& part : split(connect, ";"))
    if (starts_with_same_text(part, "pwd=")) return part.substr(4);
  return {};
}

int64_t Pragma(Connection& connection, const std::string& name) {
  auto row = connection.prepare("PRAGMA " + name);
  return row.step() ? row.integer(0) : 0;
}

/// A pipe would wait for somebody to write into it; a link may lead back to itself.
void Require_File(const fs::path& path) {
  std::error_code ignored;
  const auto type = fs::status(path, ignored).type();
  if (type == fs::file_type::regular) return;
  if (type == fs::file_type::not_found || type == fs::file_type::none)
    throw Error(errors::file_not_found, "Could not find file '" + path.string() + "'.");
  throw Error(errors::cannot_open, "'" + path.string() + "' is no file that can be opened.");
}

void Check_Kind(Connection& connection, FileKind kind, const fs::path& path, int newest) {
  if (Pragma(connection, "application_id") != static_cast<int64_t>(kind))
    throw Error(errors::not_a_database, "Unrecognized database format '" + path.string() + "'.");
  if (Pragma(connection, "user_version") > newest)
    throw Error(errors::newer_file,
                "'" + path.filename().string() + "' was written by a newer version of this program.");
}

}  // namespace

FieldType Type_Of_Declaration(std::string_view declared) {
  for (const auto& declaration : declarations)
    if (declaration.text == declared) return declaration.type;
  return FieldType::Text;
}

std::string_view Declaration_Of_Type(FieldType type) {
  auto found = std::find_if(declarations.begin(), declarations.end(), [&](auto& d) { return d.type == type; });
  return found->text;
}

Value Typed(const Value& raw, FieldType type) {
  auto number = std::get_if<int64_t>(&raw.content());
  if (raw.is_null()) return {};
  if (type == FieldType::Money && number) return Money::from_units(*number);
  if (type == FieldType::Flag && number) return *number != 0;
  if (type == FieldType::Date) return Date::from_iso(raw.text());
  if (type == FieldType::Double) return raw.number();
  return raw;
}

TableDef& TableDef::CreateField(std::string field, FieldType type) {
  fields.push_back({std::move(field), type});
  return *this;
}

TableDef& TableDef::CreateIndex(std::string index, std::string field) {
  indexes.push_back({std::move(index), std::move(field)});
  return *this;
}

const Field* TableDef::find(std::string_view field) const {
  auto found = std::find_if(fields.begin(), fields.end(), [&](auto& f) { return same_text(f.name, field); });
  return found == fields.end() ? nullptr : &*found;
}

// --- opening ------------------------------------------------------------------------------------------------

Database::Database(const fs::path& path, Connection::Mode mode) : path_(path), connection_(path, mode) {}
Database::~Database() = default;

std::unique_ptr<Database> Database::CreateDatabase(const fs::path& path, FileKind kind) {
  const bool reserved = fs::is_regular_file(path) && fs::file_size(path) == 0;  // made for it, exclusively
  if (!reserved && fs::exists(path)) throw Error(errors::database_exists, "Database already exists.");
  if (!fs::is_directory(fs::absolute(path).parent_path()))
    throw Error(errors::bad_path, "'" + path.string() + "' isn't a valid path.");
  std::unique_ptr<Database> db(new Database(path, Connection::Mode::Create));
  db->connection_.execute("PRAGMA application_id = " + std::to_string(static_cast<int32_t>(kind)));
  db->connection_.execute(
      "BEGIN IMMEDIATE; CREATE TABLE StorePassword (Salt TEXT NOT NULL, Hash TEXT NOT NULL);"
      "CREATE TABLE History (RowKey INTEGER PRIMARY KEY AUTOINCREMENT, At TEXT NOT NULL, User TEXT NOT NULL,"
      " What TEXT NOT NULL, Undoes INTEGER, Changes BLOB); COMMIT");
  db->keeps_history_ = kind == FileKind::Company;
  return db;
}

std::unique_ptr<Database> Database::OpenDatabase(const fs::path& path, FileKind kind, std::string_view connect,
                                                 int newest) {
  Require_File(path);
  std::unique_ptr<Database> db(new Database(path, Connection::Mode::ReadWrite));
  Check_Kind(db->connection_, kind, path, newest);
  Refuse_What_Acts(db->connection_);
  Require_Own_Tables(db->connection_);
  if (!Password_Fits(db->connection_, Password_Of(connect)))
    throw Error(errors::wrong_password, "Not a valid password.");
  db->keeps_history_ = kind == FileKind::Company;
  return db;
}

void Database::NewPassword(std::string_view old_password, std::string_view new_password) {
  if (!Password_Fits(connection_, old_password)) throw Error(errors::wrong_password, "Not a valid password.");
  std::string salt = New_Salt();
  Transaction change(*this, "Database password");
  connection_.prepare("DELETE FROM StorePassword").run();
  connection_.prepare("INSERT INTO StorePassword VALUES (?, ?)")
      .bind(1, salt)
      .bind(2, Salted_Hash(new_password, salt))
      .run();
  change.commit();
}

int Database::version() const { return static_cast<int>(Pragma(connection_, "user_version")); }

void Database::set_version(int version) {
  require_transaction();
  connection_.execute("PRAGMA user_version = " + std::to_string(version));
}

// --- definitions --------------------------------------------------------------------------------------------

void Database::read_definitions() const {
  definitions_read_at_ = Pragma(connection_, "schema_version");
  tables_.emplace();
  auto names = connection_.prepare("SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY rowid");
  while (names.step()) {
    if (Is_Own_Table(names.text(0))) continue;
    TableDef& table = tables_->emplace_back();
    table.name = names.text(0);
    auto fields = connection_.prepare("SELECT name, type FROM pragma_table_info(?)");
    fields.bind(1, table.name);
    while (fields.step())
      if (fields.text(0) != hidden_key)
        table.CreateField(std::string(fields.text(0)), Type_Of_Declaration(fields.text(1)));
    auto indexes = connection_.prepare(
        "SELECT l.name, i.name FROM pragma_index_list(?) AS l, pragma_index_info(l.name) AS i"
        " WHERE l.name LIKE '%.%' AND i.seqno = 0 ORDER BY l.seq DESC");
    indexes.bind(1, table.name);
    while (indexes.step()) {
      auto name = indexes.text(0);
      table.CreateIndex(std::string(name.substr(name.find('.') + 1)), std::string(indexes.text(1)));
    }
  }
}

std::vector<TableDef> Database::TableDefs() const {
  if (!tables_) read_definitions();
  return *tables_;
}

const TableDef* Database::find_table(std::string_view name) const {
  if (!tables_) read_definitions();
  if (const TableDef* known = known_table(name)) return known;
  if (Pragma(connection_, "schema_version") == definitions_read_at_) return nullptr;
  read_definitions();  // another program may have made it since
  return known_table(name);
}

const TableDef* Database::known_table(std::string_view name) const {
  auto found = std::find_if(tables_->begin(), tables_->end(), [&](auto& t) { return same_text(t.name, name); });
  return found == tables_->end() ? nullptr : &*found;
}

void Database::CreateTableDef(const TableDef& table) {
  require_transaction();
  std::string columns = "RowKey INTEGER PRIMARY KEY AUTOINCREMENT";
  bool has_money = false;
  for (const Field& field : table.fields) {
    columns += ", " + Column_Definition(field);
    has_money = has_money || field.type == FieldType::Money;
  }
  connection_.execute("CREATE TABLE " + Quoted(table.name) + " (" + columns + ")");
  for (const Index& index : table.indexes)
    connection_.execute("CREATE INDEX " + Quoted(table.name + "." + index.name) + " ON " + Quoted(table.name) + " (" +
                        Quoted(index.field) + ")");
  if (has_money) connection_.execute(Decimal_View(table));
  tables_.reset();
}

void Database::add_field(const std::string& table, const Field& field) {
  require_transaction();
  connection_.execute("ALTER TABLE " + Quoted(table) + " ADD COLUMN " + Column_Definition(field));
  tables_.reset();
  const TableDef* now = find_table(table);
  connection_.execute("DROP VIEW IF EXISTS " + Quoted(table + "_decimal"));
  bool has_money =
      std::any_of(now->fields.begin(), now->fields.end(), [](auto& f) { return f.type == FieldType::Money; });
  if (has_money) connection_.execute(Decimal_View(*now));
}

void Database::create_reading_index(const std::string& name, const std::string& table, const std::string& columns,
                                    const std::string& where) {
  require_transaction();
  connection_.execute("CREATE INDEX IF NOT EXISTS " + Quoted(name) + " ON " + Quoted(table) + " (" + columns + ")" +
                      (where.empty() ? "" : " WHERE " + where));
}

std::vector<std::string> Database::drop_indexes(const std::string& table) {
  require_transaction();
  std::vector<std::string> names, statements;
  {
    auto indexes = connection_.prepare(
        "SELECT name, sql FROM sqlite_schema WHERE type = 'index' AND tbl_name = ? AND sql IS NOT NULL ORDER BY rowid");
    indexes.bind(1, table);
    while (indexes.step()) {
      names.emplace_back(indexes.text(0));
      statements.emplace_back(indexes.text(1));
    }
  }
  for (const std::string& name : names) connection_.execute("DROP INDEX " + Quoted(name));
  return statements;
}

void Database::create_indexes(const std::vector<std::string>& statements) {
  require_transaction();
  for (const std::string& statement : statements) connection_.execute(statement);
}

void Database::rebuild_indexes() {
  require_transaction();
  connection_.execute("REINDEX");
}

bool Database::is_decimal_view(std::string_view name, std::string_view sql) const {
  constexpr std::string_view ending = "_decimal";
  if (!name.ends_with(ending)) return false;
  const TableDef* table = find_table(name.substr(0, name.size() - ending.size()));
  return table && sql == Decimal_View(*table);
}

std::vector<QueryDef> Database::QueryDefs() const {
  std::vector<QueryDef> queries;
  auto views = connection_.prepare("SELECT name, sql FROM sqlite_schema WHERE type = 'view' ORDER BY rowid");
  while (views.step()) {
    auto sql = views.text(1);
    if (is_decimal_view(views.text(0), sql)) continue;
    const size_t as = sql.find(" AS ");
    queries.push_back({std::string(views.text(0)), as == sql.npos ? "" : std::string(sql.substr(as + 4))});
  }
  return queries;
}

void Database::CreateQueryDef(const QueryDef& query) {
  require_transaction();
  connection_.execute("CREATE VIEW " + Quoted(query.name) + " AS " + Translate(query.sql));
}

// --- reading and writing ------------------------------------------------------------------------------------

std::unique_ptr<Table> Database::OpenTable(std::string_view name) { return std::make_unique<Table>(*this, name); }

Recordset Database::OpenRecordset(std::string_view sql, const Params& params) { return {*this, sql, params}; }

const std::string& Database::translated(std::string_view sql, const Params& params) {
  std::string key(sql);
  for (const Value& value : params) {
    const bool is_text = std::holds_alternative<std::string>(value.content());
    key += !is_text ? '?' : value.blank() ? '0' : '1';  // what a translation depends on
  }
  auto found = translations_.find(key);
  if (found != translations_.end()) return found->second;
  if (translations_.size() > 1000) translations_.clear();
  return translations_.emplace(std::move(key), Translate(sql, params)).first->second;
}

Statement Database::query(std::string_view sql, const Params& params) {
  Statement statement = connection_.prepare(translated(sql, params));
  if (statement.parameter_count() != static_cast<int>(params.size()))
    throw Error(errors::bad_statement,
                "Too few parameters. Expected " + std::to_string(statement.parameter_count()) + ".");
  statement.bind_all(params);
  return statement;
}

int64_t Database::Execute(std::string_view sql, const Params& params) {
  require_transaction();
  return query(sql, params).run();
}

Value Database::value(std::string_view sql, const Params& params) {
  Statement statement = query(sql, params);
  if (!statement.step()) return {};
  return Typed(statement.raw(0), Type_Of_Declaration(statement.declared_type(0)));
}

bool Database::is_cache_column(const std::string& table, int column) const {
  const TableDef* definition = find_table(table);
  if (!definition || column < 1 || column > static_cast<int>(definition->fields.size())) return false;
  return is_cache(table, definition->fields[static_cast<size_t>(column) - 1].name);
}

void Database::require_transaction() const {
  if (depth_ == 0) throw std::logic_error("a database is written only inside a store::Transaction");
  if (!connection_.in_transaction())
    throw Error(errors::no_transaction, "The operation was undone after an earlier failure.");
}

Snapshot::Snapshot(Database& db) : connection_(&db.connection()) {
  if (connection_->in_transaction())
    connection_ = nullptr;
  else
    connection_->begin_reading();
}

Snapshot::~Snapshot() {
  if (connection_) connection_->end_reading();
}

// --- transactions -------------------------------------------------------------------------------------------

Transaction::Transaction(Database& db, std::string what, History history)
    : db_(db), what_(std::move(what)), history_(history), level_(db.depth_), outer_(db.scope_) {
  Connection& connection = db_.connection_;
  if (level_ > 0) {
    db_.require_transaction();
    connection.savepoint("level" + std::to_string(level_));
  } else {
    connection.begin();
    try {
      if (db_.keeps_history_ && history_ == History::Rows) connection.record_changes(Is_Own_Table);
    } catch (...) {
      connection.rollback();
      throw;
    }
  }
  ++db_.depth_;
  db_.scope_ = std::make_shared<WritingScope>(WritingScope{db_.scope_});
}

Transaction::~Transaction() {
  if (!open_) return;
  db_.scope_->undone = true;
  leave();
  db_.tables_.reset();
  if (level_ > 0) {
    db_.connection_.rollback_to("level" + std::to_string(level_));
  } else {
    db_.connection_.drop_changes();
    db_.connection_.rollback();
  }
}

void Transaction::commit() {
  if (level_ > 0) {
    db_.connection_.release("level" + std::to_string(level_));
  } else {
    if (db_.keeps_history_) write_history();
    db_.connection_.commit();
  }
  open_ = false;
  leave();
}

void Transaction::leave() {
  --db_.depth_;
  db_.scope_ = outer_;
}

void Transaction::write_history() {
  std::string changes;
  if (history_ == History::Rows) {
    changes = db_.connection_.take_changes(
        [this](const std::string& table, int column) { return db_.is_cache_column(table, column); });
    if (changes.empty()) return;  // nothing was written that a history could tell
    if (db_.guard_) db_.guard_(db_, changes);
    if (changes.size() > Connection::longest_text) history_ = History::Summary;
  }
  auto row = db_.connection_.prepare("INSERT INTO History (At, User, What, Undoes, Changes) VALUES (?, ?, ?, ?, ?)");
  const Author& author = db_.author_;
  row.bind(1, author.now ? author.now() : "").bind(2, author.user ? author.user() : "").bind(3, what_);
  row.bind(4, undoes_ ? Value(undoes_) : Value());
  if (history_ == History::Rows) row.bind_bytes(5, changes);
  row.run();
}

}  // namespace tallymere::store
