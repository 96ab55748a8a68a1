#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Tables of rows as text: a first line of field names, then one line per row, tab between cells, UTF-8. An
// empty cell is null; tab, line ends and backslash stand in a cell as \t, \n, \r and \\. No quoting.
namespace tallymere {

// A text as a cell of a line, and back; nothing where a backslash stands before anything else.
std::string Escaped_Cell(std::string_view text);
std::optional<std::string> Unescaped_Cell(std::string_view cell);

struct Tsv {
  std::vector<std::string> fields;
  std::vector<std::vector<std::string>> rows;  // each as wide as fields; row i stands on line i + 2
};

// what() is "source, line 3: what is wrong", fit for a person who edits the file.
struct Tsv_Error : std::runtime_error {
  Tsv_Error(std::string_view source, std::size_t line, std::string_view what);
};

// Throws Tsv_Error for a missing or doubled field name, a row of another width or an unknown escape. `source`
// names the text in errors.
Tsv Parse_Tsv(std::string_view text, std::string_view source);

// As above, from a file; a file that cannot be read is an error on line 0.
Tsv Read_Tsv(const std::filesystem::path& file);

}  // namespace tallymere
