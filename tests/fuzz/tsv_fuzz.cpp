// Tables of text: rows as wide as their fields, or a fault that names the line.

#include <cstdlib>

#include "core/values/tsv.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) try {
  const auto table = tallymere::Parse_Tsv({reinterpret_cast<const char*>(data), size}, "fuzz");
  for (const auto& row : table.rows)
    if (row.size() != table.fields.size()) std::abort();
  return 0;
} catch (const tallymere::Tsv_Error&) {
  return 0;
}
