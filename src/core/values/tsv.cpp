#include "core/values/tsv.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

namespace tallymere {
namespace {

// Cuts the text up to the separator off `rest`; the last piece is what remains.
std::string_view take(std::string_view& rest, char separator) {
  const std::size_t end = std::min(rest.find(separator), rest.size());
  const std::string_view piece = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return piece;
}

constexpr std::pair<char, char> escapes[] = {{'\t', 't'}, {'\n', 'n'}, {'\r', 'r'}, {'\\', '\\'}};

std::string cell_of(std::string_view raw, std::string_view source, std::size_t line) {
  auto cell = Unescaped_Cell(raw);
  if (!cell) throw Tsv_Error(source, line, "a backslash without t, n, r or backslash behind it");
  return std::move(*cell);
}

std::vector<std::string> cells_of(std::string_view text, std::string_view source, std::size_t line) {
  if (text.ends_with('\r')) text.remove_suffix(1);
  std::vector<std::string> cells;
  const auto tabs = std::ranges::count(text, '\t');
  for (std::ptrdiff_t i = 0; i <= tabs; ++i) cells.push_back(cell_of(take(text, '\t'), source, line));
  return cells;
}

void check_fields(const std::vector<std::string>& fields, std::string_view source) {
  for (auto field = fields.begin(); field != fields.end(); ++field) {
    if (field->empty()) throw Tsv_Error(source, 1, "a field without a name");
    if (std::find(fields.begin(), field, *field) != field) {
      throw Tsv_Error(source, 1, "field " + *field + " stands twice");
    }
  }
}

}  // namespace

std::string Escaped_Cell(std::string_view text) {
  std::string cell;
  for (const char c : text) {
    const auto escape = std::ranges::find(escapes, c, &std::pair<char, char>::first);
    if (escape == std::end(escapes))
      cell += c;
    else
      cell += {'\\', escape->second};
  }
  return cell;
}

std::optional<std::string> Unescaped_Cell(std::string_view cell) {
  std::string text;
  for (std::size_t at = 0; at < cell.size(); ++at) {
    if (cell[at] != '\\') {
      text += cell[at];
      continue;
    }
    if (++at == cell.size()) return std::nullopt;
    const auto escape = std::ranges::find(escapes, cell[at], &std::pair<char, char>::second);
    if (escape == std::end(escapes)) return std::nullopt;
    text += escape->first;
  }
  return text;
}

Tsv_Error::Tsv_Error(std::string_view source, std::size_t line, std::string_view what)
    : std::runtime_error(std::string(source) + ", line " + std::to_string(line) + ": " + std::string(what)) {}

Tsv Parse_Tsv(std::string_view text, std::string_view source) {
  Tsv table{cells_of(take(text, '\n'), source, 1), {}};
  check_fields(table.fields, source);
  for (std::size_t line = 2; !text.empty(); ++line) {
    auto cells = cells_of(take(text, '\n'), source, line);
    if (cells.size() != table.fields.size()) {
      throw Tsv_Error(source, line,
                      std::to_string(cells.size()) + " cells, not " + std::to_string(table.fields.size()));
    }
    table.rows.push_back(std::move(cells));
  }
  return table;
}

Tsv Read_Tsv(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  if (!in) throw Tsv_Error(file.filename().string(), 0, "cannot be read");
  return Parse_Tsv(text, file.filename().string());
}

}  // namespace tallymere
