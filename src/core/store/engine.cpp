#include "core/store/engine.h"

#include <sqlite3.h>

#include <algorithm>
#include <random>
#include <thread>
#include <utility>

#include "core/store/error.h"
#include "core/values/letters.h"

namespace tallymere::store {
namespace {

constexpr size_t most_statements = 400;

int Number_Of(int code) {
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return errors::locked;
    case SQLITE_NOTADB:
      return errors::not_a_database;
    case SQLITE_CORRUPT:
      return errors::file_damaged;
    case SQLITE_CANTOPEN:
      return errors::cannot_open;
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return errors::read_only;
    case SQLITE_FULL:
      return errors::disk_full;
    case SQLITE_IOERR:
      return errors::disk_or_network;
    case SQLITE_CONSTRAINT:
      return errors::duplicate_key;
    case SQLITE_TOOBIG:
      return errors::too_long;
    default:
      return errors::bad_statement;
  }
}

std::string Words_Of(int number, const std::string& engine_words, const std::string& doing) {
  switch (number) {
    case errors::locked:
      return "Could not update; currently locked.";
    case errors::not_a_database:
      return "Unrecognized database format '" + doing + "'.";
    case errors::file_damaged:
      return "The database file is damaged: " + engine_words + ".";
    case errors::disk_or_network:
      return "Disk or network error: " + engine_words + ".";
    case errors::disk_full:
      return "The disk is full.";
    case errors::too_long:
      return "A text is too long.";
    case errors::read_only:
      return "Cannot update. Database or object is read-only.";
    default:
      return doing.empty() ? engine_words : engine_words + " (" + doing + ")";
  }
}

void Bind(sqlite3_stmt* handle, int position, const Value& value) {
  struct Binder {
    sqlite3_stmt* handle;
    int at;
    void operator()(std::monostate) const { sqlite3_bind_null(handle, at); }
    void operator()(const std::string& text) const { bind_text(text); }
    void operator()(int64_t number) const { sqlite3_bind_int64(handle, at, number); }
    void operator()(double number) const { sqlite3_bind_double(handle, at, number); }
    void operator()(Money amount) const { sqlite3_bind_int64(handle, at, amount.units()); }
    void operator()(Date day) const { bind_text(day.to_iso()); }
    void operator()(bool flag) const { sqlite3_bind_int64(handle, at, flag ? -1 : 0); }
    void bind_text(const std::string& text) const {
      sqlite3_bind_text64(handle, at, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
  };
  std::visit(Binder{handle, position}, value.content());
}

}  // namespace

// --- texts: one order and one LIKE for the store and all that is written in C++ ---------------------------------

namespace {

std::string_view Text_Of(sqlite3_value* value) {
  auto text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text ? std::string_view(text, static_cast<size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

int Compare_Texts(void*, int size, const void* one, int other_size, const void* other) {
  return compare_same_text({static_cast<const char*>(one), static_cast<size_t>(size)},
                           {static_cast<const char*>(other), static_cast<size_t>(other_size)});
}

/// like(pattern, text[, escape]): an empty field is an empty text, null or not.
void Like(sqlite3_context* context, int count, sqlite3_value** arguments) {
  Letters escape(count == 3 ? Text_Of(arguments[2]) : std::string_view());
  const char32_t sign = escape.at_end() ? 0 : escape.next();
  sqlite3_result_int(context, like_text(Text_Of(arguments[0]), Text_Of(arguments[1]), sign));
}

/// Under the names that files were made with. A program that knows only the engine's own NOCASE reads them as well.
int Teach_Letters(sqlite3* handle) {
  int code = sqlite3_create_collation(handle, "NOCASE", SQLITE_UTF8, nullptr, Compare_Texts);
  for (int arguments : {2, 3}) {
    constexpr int kind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    if (code == SQLITE_OK)
      code = sqlite3_create_function(handle, "like", arguments, kind, nullptr, Like, nullptr, nullptr);
  }
  return code;
}

}  // namespace

// --- Statement ----------------------------------------------------------------------------------------------

Statement::Statement(Statement&& other) noexcept
    : slot_(std::exchange(other.slot_, nullptr)), connection_(other.connection_) {}

Statement::~Statement() {
  if (!slot_) return;
  sqlite3_reset(slot_->handle);
  sqlite3_clear_bindings(slot_->handle);
  slot_->on_loan = false;
}

Statement& Statement::bind(int position, const Value& value) {
  Bind(slot_->handle, position, value);
  return *this;
}

Statement& Statement::bind_all(const std::vector<Value>& values) {
  int position = 0;
  for (const Value& value : values) bind(++position, value);
  return *this;
}

Statement& Statement::bind_bytes(int position, std::string_view bytes) {
  sqlite3_bind_blob64(slot_->handle, position, bytes.data(), bytes.size(), SQLITE_TRANSIENT);
  return *this;
}

Statement& Statement::again() {
  sqlite3_reset(slot_->handle);
  return *this;
}

bool Statement::step() {
  int code = sqlite3_step(slot_->handle);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  // The engine has taken back what the failed statement wrote.
  if (connection_->recorder_) connection_->recorder_->forget_since(slot_->changes_before);
  connection_->check(code, sqlite3_sql(slot_->handle));
  return false;
}

int64_t Statement::run() {
  while (step()) {
  }
  return sqlite3_changes64(connection_->handle_);
}

int Statement::parameter_count() const { return sqlite3_bind_parameter_count(slot_->handle); }
int Statement::columns() const { return sqlite3_column_count(slot_->handle); }
std::string Statement::column_name(int column) const { return sqlite3_column_name(slot_->handle, column); }

std::string Statement::declared_type(int column) const {
  const char* declared = sqlite3_column_decltype(slot_->handle, column);
  return declared ? declared : "";
}

bool Statement::is_null(int column) const { return sqlite3_column_type(slot_->handle, column) == SQLITE_NULL; }

bool Statement::is_text(int column) const { return sqlite3_column_type(slot_->handle, column) == SQLITE_TEXT; }

int64_t Statement::integer(int column) const { return sqlite3_column_int64(slot_->handle, column); }
double Statement::number(int column) const { return sqlite3_column_double(slot_->handle, column); }

std::string_view Statement::text(int column) const {
  // as bytes, a number too: asked for text, the engine would copy it to end it with a zero
  auto data = static_cast<const char*>(sqlite3_column_blob(slot_->handle, column));
  return data ? std::string_view(data, static_cast<size_t>(sqlite3_column_bytes(slot_->handle, column)))
              : std::string_view();
}

std::string Statement::bytes(int column) const {
  auto data = static_cast<const char*>(sqlite3_column_blob(slot_->handle, column));
  return data ? std::string(data, static_cast<size_t>(sqlite3_column_bytes(slot_->handle, column))) : std::string();
}

Value Statement::raw(int column) const {
  switch (sqlite3_column_type(slot_->handle, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return integer(column);
    case SQLITE_FLOAT:
      return number(column);
    default:
      return text(column);
  }
}

namespace {

/// Whatever a file says: no triggers, no changes of its definitions behind the engine's back, nothing attached, no text
/// that would fill the memory, and a name in quotes is a name and never a text.
void Set_Bounds(sqlite3* handle) {
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, static_cast<int>(Connection::longest_text + (1 << 20)));
  sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
  sqlite3_limit(handle, SQLITE_LIMIT_TRIGGER_DEPTH, 1);
}

}  // namespace

// --- Connection ---------------------------------------------------------------------------------------------

Connection::Connection(const std::filesystem::path& path, Mode mode) {
  int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX;
  if (mode == Mode::Create) flags |= SQLITE_OPEN_CREATE;
  int code = sqlite3_open_v2(path.string().c_str(), &handle_, flags, nullptr);
  try {
    check(code, path.string());
    Set_Bounds(handle_);
    check(Teach_Letters(handle_), path.string());
    sqlite3_busy_handler(handle_, wait_for_lock, this);
    // One file at rest, no shared memory: what a folder on a file server can carry. EXTRA, for a save is told only when
    // its journal is gone for good: a journal that came back after a power cut would take the save back.
    constexpr auto manners =
        "PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA; PRAGMA foreign_keys = OFF;"
        "PRAGMA cache_size = -16000; PRAGMA temp_store = MEMORY; PRAGMA trusted_schema = OFF;"
        "PRAGMA cell_size_check = ON;";
    check(sqlite3_exec(handle_, manners, nullptr, nullptr, nullptr), path.string());
  } catch (...) {
    sqlite3_close_v2(std::exchange(handle_, nullptr));
    throw;
  }
}

/// Short waits of any length. The engine's own grow, so that who waits longest asks most seldom and never gets a turn
/// among those who save without pause.
int Connection::wait_for_lock(void* self, int waits_before) {
  const auto now = std::chrono::steady_clock::now();
  auto& since = static_cast<Connection*>(self)->waiting_since_;
  if (waits_before == 0) since = now;
  if (now - since >= lock_patience) return 0;
  static thread_local std::minstd_rand random{std::random_device{}()};
  std::this_thread::sleep_for(std::chrono::microseconds(300 + random() % 4000));
  return 1;
}

Connection::~Connection() {
  drop_changes();
  for (auto& [sql, slots] : statements_)
    for (auto& slot : slots) sqlite3_finalize(slot->handle);
  sqlite3_close_v2(handle_);
}

void Connection::check(int code, const std::string& doing) {
  if (code == SQLITE_OK || code == SQLITE_DONE || code == SQLITE_ROW) return;
  int number = Number_Of(code);
  throw Error(number, Words_Of(number, handle_ ? sqlite3_errmsg(handle_) : sqlite3_errstr(code), doing));
}

Statement Connection::prepare(std::string_view sql) {
  if (statements_.size() > most_statements) {
    std::erase_if(statements_, [](auto& entry) {
      if (std::any_of(entry.second.begin(), entry.second.end(), [](auto& slot) { return slot->on_loan; })) return false;
      for (auto& slot : entry.second) sqlite3_finalize(slot->handle);
      return true;
    });
  }
  auto& slots = statements_[std::string(sql)];
  for (auto& slot : slots) {
    if (slot->on_loan) continue;
    slot->on_loan = true;
    slot->changes_before = recorder_ ? recorder_->mark() : 0;
    return Statement(slot.get(), this);
  }
  auto slot = std::make_unique<Statement::Slot>(Statement::Slot{nullptr, true, recorder_ ? recorder_->mark() : 0});
  check(sqlite3_prepare_v3(handle_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &slot->handle,
                           nullptr),
        std::string(sql));
  if (!slot->handle) throw Error(errors::bad_statement, "An empty statement.");
  slots.push_back(std::move(slot));
  return Statement(slots.back().get(), this);
}

void Connection::execute(const std::string& sql) {
  check(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr), sql);
}

int64_t Connection::last_key() const { return sqlite3_last_insert_rowid(handle_); }
int64_t Connection::changes() const { return sqlite3_changes64(handle_); }

ChangeStamp Connection::change_stamp() {
  auto others = prepare("PRAGMA data_version");
  return {others.step() ? others.integer(0) : -1, sqlite3_total_changes64(handle_)};
}

bool Connection::in_transaction() const { return !sqlite3_get_autocommit(handle_); }

void Connection::begin() { prepare("BEGIN IMMEDIATE").run(); }
void Connection::begin_reading() { prepare("BEGIN DEFERRED").run(); }
void Connection::end_reading() { sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr); }
void Connection::commit() { prepare("COMMIT").run(); }
void Connection::rollback() {
  if (in_transaction()) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void Connection::savepoint(const std::string& name) {
  prepare("SAVEPOINT " + name).run();
  savepoint_marks_[name] = recorder_ ? recorder_->mark() : 0;
}

void Connection::release(const std::string& name) { prepare("RELEASE " + name).run(); }

void Connection::rollback_to(const std::string& name) {
  if (recorder_) recorder_->forget_since(savepoint_marks_[name]);
  sqlite3_exec(handle_, ("ROLLBACK TO " + name + "; RELEASE " + name).c_str(), nullptr, nullptr, nullptr);
}

// --- changesets ---------------------------------------------------------------------------------------------

void Connection::record_changes(bool (*leave_out)(std::string_view table)) {
  recorder_.emplace(handle_);
  recorder_->start(leave_out);
}

std::string Connection::take_changes(const CacheColumn& is_cache) {
  std::string changes = recorder_ ? recorder_->changeset(is_cache) : std::string();
  drop_changes();
  return changes;
}

std::vector<std::string> Connection::integrity_faults() {
  std::vector<std::string> faults;
  auto rows = prepare("PRAGMA integrity_check(20)");
  while (rows.step())
    if (rows.text(0) != "ok") faults.emplace_back(rows.text(0));
  return faults;
}

void Connection::copy_to(const std::filesystem::path& destination) {
  sqlite3* copy = nullptr;
  int code = sqlite3_open_v2(destination.string().c_str(), &copy, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  sqlite3_backup* backup = code == SQLITE_OK ? sqlite3_backup_init(copy, "main", handle_, "main") : nullptr;
  if (backup) {
    sqlite3_busy_timeout(copy, static_cast<int>(lock_patience.count()));
    code = sqlite3_backup_step(backup, -1);  // all pages in one step: one read lock, one moment
    const int finished = sqlite3_backup_finish(backup);
    if (code != SQLITE_BUSY) code = finished;
  } else if (copy) {
    code = sqlite3_errcode(copy);
  }
  sqlite3_close_v2(copy);
  if (code == SQLITE_OK) return;
  const int number = Number_Of(code);
  throw Error(number, Words_Of(number, sqlite3_errstr(code), destination.string()));
}

}  // namespace tallymere::store
