#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/store/engine.h"

/// What a file really holds, asked before anything in it is believed: it may come from anywhere.
namespace tallymere::store {

struct FoundColumn {
  std::string name, declared;
  bool is_computed = false;
};
struct FoundTable {
  std::string name;
  bool is_plain = false;  ///< a table of rows with keys; no query or module that only looks like one
  std::vector<FoundColumn> columns;
};

/// Every table and query of the file but the engine's own.
std::vector<FoundTable> Found_Tables(Connection& connection);

/// Error 3049, in one plain line: "This is no sound file of Tallymere: it holds a trigger."
[[noreturn]] void Refuse_Shape(const std::string& what);

/// Refuses what would act when the file is read or written, and texts that are not UTF-8. Reads nothing but definitions.
void Refuse_What_Acts(Connection& connection);

/// Of the store or the engine, not of the company.
bool Is_Own_Table(std::string_view name);

/// Refuses a file without the store's own tables.
void Require_Own_Tables(Connection& connection);

}  // namespace tallymere::store
