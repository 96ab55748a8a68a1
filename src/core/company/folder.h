#pragma once

#include <filesystem>
#include <span>
#include <string_view>

#include "core/company/schema.h"
#include "core/store/database.h"

/// The program's folder: the databases beside the program, and how files of an older schema come up to date.
namespace tallymere {

inline constexpr std::string_view connect_text = "MS Access;pwd=xar72kt;";
inline constexpr std::string_view database_password = "xar72kt";

/// A table as the schema describes it; one that is made on demand under the name it gets ("Time20260104").
store::TableDef Definition(const TableDef& table, std::string_view name = {});

/// First start: builds Model.mdb and Accounts.mdb from the rows in `data` (model/*.tsv, accounts/*.tsv) where they are
/// missing; brings older ones up to date. A file appears whole or not at all.
void Prepare_Folder(const std::filesystem::path& folder, const std::filesystem::path& data);

/// Opens a file of this program, looks at its shape and brings an older one up to date, in one transaction of this author.
std::unique_ptr<store::Database> Open_Current(const std::filesystem::path& path, store::FileKind kind,
                                              const store::Author& author = {});

/// A numbered step from the schema before to `to`, for companies unless `shared` says for all files. It finds every
/// table, field and index of the newest schema in place.
struct UpgradeStep {
  int to;
  void (*run)(store::Database&);
  bool shared = false;
};
void Upgrade(store::Database& db, store::FileKind kind, std::span<const UpgradeStep> steps, int newest);

/// The indexes that only make reading fast, and the stored queries, for a company file.
void Create_Reading_Indexes(store::Database& db);

}  // namespace tallymere
