#include "core/company/folder.h"

#include "core/backup/whole_file.h"
#include "core/company/shape.h"
#include "core/ledger/numbers.h"
#include "core/ledger/settlement.h"
#include "core/store/recordset.h"
#include "core/values/tsv.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using store::Database;
using store::FileKind;

/// Rows of before may stand signed; what is negative belongs on the other side.
void Take_Signs_Off(Database& db) {
  db.Execute("UPDATE Transactions SET Credit = IFNULL(Credit, 0) - Debit, Debit = 0 WHERE Debit < 0");
  db.Execute("UPDATE Transactions SET Debit = IFNULL(Debit, 0) - Credit, Credit = 0 WHERE Credit < 0");
  db.Execute("UPDATE Transactions SET Amount = -Amount WHERE Amount < 0");
}

/// Sub-items of before name their parent without its full stops.
void Find_Parents_With_Stops(Database& db) {
  const std::string above = "FROM Items AS Above WHERE REPLACE(Above.ItemName, '.', '') = Items.ParentItem";
  db.Execute("UPDATE Items SET ParentItem = (SELECT Above.ItemName " + above + " ORDER BY Above.RowKey)" +
             " WHERE ParentItem <> '' AND ParentItem NOT IN (SELECT ItemName FROM Items) AND EXISTS (SELECT 1 " +
             above + ")");
}

/// What has to be done to files written before a change of the schema that new tables, fields and indexes alone don't
/// bring. The next change adds a row here and raises schema_version.
constexpr UpgradeStep upgrade_steps[] = {
    // texts stood in the order of ASCII's case alone
    {.to = 3, .run = [](Database& db) { db.rebuild_indexes(); }, .shared = true},
    {.to = 4,
     .run =
         [](Database& db) {
           Take_Signs_Off(db);
           Fill_Applied(db);
           Note_All_Numbers(db);
         }},
    // the index of items has grown
    {.to = 6,
     .run =
         [](Database& db) {
           db.connection().execute("DROP INDEX IF EXISTS Transactions_Item");
           Create_Reading_Indexes(db);
         }},
    {.to = 6, .run = Find_Parents_With_Stops},
};

std::span<const TableDef> Tables_Of(FileKind kind) {
  return kind == FileKind::Shared ? accounts_tables() : company_tables();
}

void Create_Stored_Queries(Database& db) {
  auto there = db.QueryDefs();
  for (const StoredQuery& query : stored_queries()) {
    bool missing = std::none_of(there.begin(), there.end(), [&](auto& q) { return q.name == query.name; });
    if (missing) db.CreateQueryDef({std::string(query.name), std::string(query.sql)});
  }
}

void Complete_Table(Database& db, const TableDef& table) {
  const store::TableDef* there = db.find_table(table.name);
  if (!there) {
    if (!table.on_demand) db.CreateTableDef(Definition(table));
    return;
  }
  std::vector<store::Field> missing;
  for (const FieldDef& field : table.fields)
    if (!there->find(field.name)) missing.push_back({std::string(field.name), field.type});
  for (const auto& field : missing) db.add_field(std::string(table.name), field);
}

void Complete(Database& db, FileKind kind) {
  for (const TableDef& table : Tables_Of(kind)) Complete_Table(db, table);
  if (kind == FileKind::Shared) return;
  Create_Stored_Queries(db);
  if (kind == FileKind::Company) Create_Reading_Indexes(db);
}

void Load_Rows(Database& db, const TableDef& table, const fs::path& file) {
  if (!fs::exists(file)) return;
  Tsv rows = Read_Tsv(file);
  auto set = db.OpenTable(table.name);
  for (const auto& row : rows.rows) {
    set->AddNew();
    for (size_t at = 0; at < row.size(); ++at)
      if (!row[at].empty()) (*set)[rows.fields[at]] = row[at];
    set->Update();
  }
}

void Build(const fs::path& path, FileKind kind, const fs::path& rows) {
  if (!fs::is_directory(rows))
    throw store::Error(store::errors::bad_path, "The rows that ship with the program are missing: " + rows.string());
  FileAside aside(Folder_Of(path), FileMode::Usual);
  {
    auto db = Database::CreateDatabase(aside.path(), kind);
    db->NewPassword("", database_password);
    store::Transaction build(*db, "Build " + path.filename().string());
    Complete(*db, kind);
    for (const TableDef& table : Tables_Of(kind)) Load_Rows(*db, table, rows / (std::string(table.name) + ".tsv"));
    db->set_version(schema_version);
    build.commit();
  }
  aside.take_free(path);  // unless another program was first
}

void Build_Or_Upgrade(const fs::path& path, FileKind kind, const fs::path& rows) {
  if (fs::exists(path))
    Open_Current(path, kind);
  else
    Build(path, kind, rows);
}

}  // namespace

store::TableDef Definition(const TableDef& table, std::string_view name) {
  store::TableDef definition{std::string(name.empty() ? table.name : name), {}, {}};
  for (const FieldDef& field : table.fields) definition.CreateField(std::string(field.name), field.type);
  for (const IndexDef& index : table.indexes) definition.CreateIndex(std::string(index.name), std::string(index.field));
  return definition;
}

void Prepare_Folder(const fs::path& folder, const fs::path& data) {
  fs::create_directories(folder);
  Build_Or_Upgrade(folder / "Model.mdb", FileKind::Model, data / "model");
  Build_Or_Upgrade(folder / "Accounts.mdb", FileKind::Shared, data / "accounts");
}

std::unique_ptr<Database> Open_Current(const fs::path& path, FileKind kind, const store::Author& author) {
  auto db = Database::OpenDatabase(path, kind, connect_text, schema_version);
  db->set_author(author);
  if (db->version() < schema_version) {
    Check_Shape(*db, kind, true);
    Upgrade(*db, kind, upgrade_steps, schema_version);
  }
  Check_Shape(*db, kind, false);
  return db;
}

void Upgrade(Database& db, FileKind kind, std::span<const UpgradeStep> steps, int newest) {
  store::Transaction upgrade(db, "Upgrade to version " + std::to_string(newest), store::Transaction::History::Summary);
  if (db.version() >= newest) return;  // another program did it while this one waited
  Complete(db, kind);
  for (const UpgradeStep& step : steps)
    if (step.to > db.version() && step.to <= newest && (kind == FileKind::Company || step.shared)) step.run(db);
  db.set_version(newest);
  upgrade.commit();
}

void Create_Reading_Indexes(Database& db) {
  for (const ReadingIndex& index : reading_indexes())
    db.create_reading_index(std::string(index.name), std::string(index.table), std::string(index.columns),
                            std::string(index.where));
}

}  // namespace tallymere
