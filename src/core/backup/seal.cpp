#include "core/backup/seal.h"

#include <sodium.h>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/store/error.h"
#include "core/store/sql.h"

namespace tallymere {
namespace {

using store::Connection;
using store::Statement;
using store::Value;

/// Before each digest, so that no damage to the seal's definition can hide that there was one.
constexpr std::string_view mark = "tallymere-seal:";
constexpr std::string_view all_definitions = "*definitions", moment = "*made";

/// Rows in turn, each cell with its kind and its length: what differs in any way has another digest.
class Digest {
 public:
  Digest() { crypto_generichash_init(&state_, nullptr, 0, crypto_generichash_BYTES); }

  void add(const std::string& text) {
    crypto_generichash_update(&state_, reinterpret_cast<const unsigned char*>(text.data()), text.size());
  }
  void add(const Statement& row) {
    bytes_.clear();
    for (int column = 0; column < row.columns(); ++column) {
      bytes_ += row.is_text(column) ? 't' : 'o';  // bytes are not text, though they read the same
      add_cell(row.raw(column));
    }
    add(bytes_);
  }
  std::string text() {
    std::array<unsigned char, crypto_generichash_BYTES> hash{};
    crypto_generichash_final(&state_, hash.data(), hash.size());
    std::string hex(2 * hash.size() + 1, '\0');
    sodium_bin2hex(hex.data(), hex.size(), hash.data(), hash.size());
    hex.pop_back();
    return std::string(mark) + hex;
  }

 private:
  void add_cell(const Value& cell) {
    bytes_ += static_cast<char>('0' + cell.content().index());
    if (const auto* whole = std::get_if<int64_t>(&cell.content()))
      add_raw(*whole);
    else if (const auto* number = std::get_if<double>(&cell.content()))
      add_raw(*number);
    else if (const auto* text = std::get_if<std::string>(&cell.content()))
      add_raw(text->size()), bytes_ += *text;
  }
  template <typename T>
  void add_raw(T number) {
    bytes_.append(reinterpret_cast<const char*>(&number), sizeof number);
  }

  crypto_generichash_state state_{};
  std::string bytes_;
};

std::string Digest_Of(Connection& copy, const std::string& sql, const std::string& first = {}) {
  Digest digest;
  digest.add(first);
  for (Statement rows = copy.prepare(sql); rows.step();) digest.add(rows);
  return digest.text();
}

std::vector<std::string> Texts(Connection& copy, const std::string& sql) {
  std::vector<std::string> texts;
  for (Statement rows = copy.prepare(sql); rows.step();) texts.emplace_back(rows.text(0));
  return texts;
}

std::string Pragma(Connection& copy, const std::string& name) { return Texts(copy, "PRAGMA " + name).at(0); }

/// But for the seal itself, and for what only looks like a table and would act when it is read.
std::vector<std::string> Tables_In(Connection& copy) {
  return Texts(copy,
               "SELECT name FROM sqlite_schema WHERE type = 'table' AND name <> 'StoreSeal'"
               " AND sql NOT LIKE 'CREATE VIRTUAL%' ORDER BY name");
}

/// What the copy holds, by table; the seal itself is not part of it.
std::map<std::string, std::string> Digests_Of(Connection& copy, const std::string& made) {
  std::map<std::string, std::string> digests;
  std::string header = made;
  for (const char* name : {"application_id", "user_version", "encoding"}) header += " " + Pragma(copy, name);
  digests[std::string(all_definitions)] = Digest_Of(
      copy, "SELECT type, name, tbl_name, sql FROM sqlite_schema WHERE name <> 'StoreSeal' ORDER BY type, name",
      header);
  for (const std::string& table : Tables_In(copy))
    digests[table] = Digest_Of(copy, "SELECT * FROM " + store::Quoted(table) + " ORDER BY 1");
  return digests;
}

std::map<std::string, std::string> Sealed_Digests(Connection& copy) {
  std::map<std::string, std::string> digests;
  for (Statement rows = copy.prepare("SELECT Name, Digest FROM StoreSeal"); rows.step();)
    digests[std::string(rows.text(0))] = rows.text(1);
  return digests;
}

[[noreturn]] void Not_As_Sealed(const std::string& what) {
  throw store::Error(store::errors::file_damaged, what + " not what was backed up.");
}

void Compare(std::map<std::string, std::string> sealed, const std::map<std::string, std::string>& found) {
  for (const auto& [name, digest] : found)
    if (sealed[name] != digest)
      Not_As_Sealed(name == all_definitions ? "Its tables are" : "The content of " + name + " is");
  if (sealed.size() != found.size()) Not_As_Sealed("Its tables are");
}

/// The mark in some cell of some table, or in a definition, while the seal has no name any more.
bool Was_Sealed(Connection& copy) {
  for (const std::string& table : Tables_In(copy)) {
    Statement rows = copy.prepare("SELECT * FROM " + store::Quoted(table));
    while (rows.step())
      for (int column = 0; column < rows.columns(); ++column)
        if (rows.text(column).starts_with(mark)) return true;
  }
  return false;
}

}  // namespace

void Seal_Copy(Connection& copy, const std::string& made) {
  copy.begin();
  copy.execute("DROP TABLE IF EXISTS StoreSeal");
  auto digests = Digests_Of(copy, made);
  copy.execute("CREATE TABLE StoreSeal (Name TEXT NOT NULL, Digest TEXT NOT NULL)");
  digests[std::string(moment)] = made;
  for (const auto& [name, digest] : digests)
    copy.prepare("INSERT INTO StoreSeal VALUES (?, ?)").bind(1, name).bind(2, digest).run();
  copy.commit();
}

std::optional<std::string> Break_Seal(Connection& copy) {
  if (Texts(copy, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name = 'StoreSeal'").empty()) {
    if (Was_Sealed(copy)) Not_As_Sealed("Its seal is");
    return std::nullopt;
  }
  auto sealed = Sealed_Digests(copy);
  const std::string made = sealed[std::string(moment)];
  sealed.erase(std::string(moment));
  Compare(sealed, Digests_Of(copy, made));
  copy.execute("DROP TABLE StoreSeal");
  return made;
}

}  // namespace tallymere
