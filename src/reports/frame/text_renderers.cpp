#include <algorithm>
#include <ostream>

#include "core/values/text.h"
#include "reports/frame/renderers.h"
#include "reports/frame/wrapped_text.h"

namespace tallymere {
namespace {

/// What a renderer without a page shows: every column but the margins.
std::vector<int> Shown_Columns(const ReportTable& table) {
  std::vector<int> shown;
  for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
    if (table.columns[static_cast<size_t>(column)].kind != ReportColumn::Kind::Margin) shown.push_back(column);
  return shown;
}

std::string Full_Caption(const ReportTable& table, int column) {
  const std::string& own = table.columns[static_cast<size_t>(column)].caption;
  for (const ReportGroup& group : table.groups)
    if (column >= group.first && column < group.first + group.count) return trim(group.caption + " " + own);
  return own;
}

std::string On_One_Line(std::string text) {
  for (char& c : text)
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  return text;
}

/// Characters on the screen, not bytes.
size_t Width(std::string_view text) {
  return static_cast<size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

constexpr size_t widest = 40;  ///< longer texts go on in lines below

/// Lines up the cells of a table: measures first, then writes.
class Aligned {
 public:
  Aligned(const ReportTable& table, std::ostream& out)
      : table_(table), out_(out), shown_(Shown_Columns(table)), widths_(shown_.size()) {
    for (size_t at = 0; at < shown_.size(); ++at) {
      widths_[at] = Width(Full_Caption(table_, shown_[at]));
      for (int row = 0; row < table_.rows(); ++row)
        widths_[at] = std::max(widths_[at], std::min(Width(cell(row, at)), widest));
    }
  }

  void write() {
    write_row([&](size_t at) { return Full_Caption(table_, shown_[at]); });
    for (int row = 0; row < table_.rows(); ++row) write_row([&](size_t at) { return cell(row, at); });
  }

 private:
  std::string cell(int row, size_t at) const { return On_One_Line(table_.for_the_eye(row, shown_[at])); }

  template <typename Text>
  void write_row(Text&& text_at) {
    std::vector<std::vector<std::string>> cells;
    size_t lines = 1;
    for (size_t at = 0; at < shown_.size(); ++at) {
      cells.push_back(lines_of(text_at(at), widths_[at]));
      lines = std::max(lines, cells.back().size());
    }
    for (size_t line = 0; line < lines; ++line) write_line(cells, line);
  }

  static std::vector<std::string> lines_of(const std::string& text, size_t room) {
    if (Width(text) <= room) return {text};
    return Wrapped(text, static_cast<double>(room), text.size(),
                   [](std::string_view part) { return static_cast<double>(Width(part)); });
  }

  void write_line(const std::vector<std::vector<std::string>>& cells, size_t number) {
    std::string line;
    for (size_t at = 0; at < shown_.size(); ++at) {
      const std::string text = number < cells[at].size() ? cells[at][number] : "";
      const std::string blanks(widths_[at] - Width(text), ' ');
      const bool right = table_.columns[static_cast<size_t>(shown_[at])].is_right();
      if (at > 0) line += "  ";
      line += right ? blanks + text : text + blanks;
    }
    out_ << line.substr(0, line.find_last_not_of(' ') + 1) << "\n";
  }

  const ReportTable& table_;
  std::ostream& out_;
  std::vector<int> shown_;
  std::vector<size_t> widths_;
};

/// A spreadsheet would compute what begins so; behind an apostrophe it stays the text it is.
std::string As_Text(const std::string& text) {
  const std::string start = trim(text);
  const bool is_formula = !start.empty() && contains("=+-@", start.substr(0, 1));
  const bool is_percent = is_formula && start.back() == '%' && is_numeric(start.substr(0, start.size() - 1));
  return is_formula && !is_percent && !is_numeric(start) ? "'" + text : text;
}

std::string Csv_Field(const std::string& cell) {
  const std::string text = As_Text(cell);
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  return "\"" + replace_all(text, "\"", "\"\"") + "\"";
}

}  // namespace

void Write_Text(const ReportTable& table, std::ostream& out) {
  const ReportHeading& heading = table.heading;
  out << heading.title << "\n" << heading.company << "\n" << heading.period << "\n";
  if (!heading.basis.empty()) out << heading.basis << "\n";
  out << "\n";
  Aligned(table, out).write();
  if (!heading.note.empty()) out << "\n" << heading.note << "\n";
}

void Write_Csv(const ReportTable& table, std::ostream& out) {
  const std::vector<int> shown = Shown_Columns(table);
  auto write_line = [&](auto&& text_at) {
    for (size_t at = 0; at < shown.size(); ++at) out << (at > 0 ? "," : "") << Csv_Field(text_at(shown[at]));
    out << "\r\n";
  };
  write_line([&](int column) { return Full_Caption(table, column); });
  for (int row = 0; row < table.rows(); ++row) write_line([&](int column) { return table.text(row, column); });
}

std::string Tab_Separated(const ReportTable& table, const std::vector<int>& rows) {
  const std::vector<int> shown = Shown_Columns(table);
  std::string text;
  auto add_line = [&](auto&& text_at) {
    for (size_t at = 0; at < shown.size(); ++at) {
      if (at > 0) text += '\t';
      text += As_Text(On_One_Line(text_at(shown[at])));
    }
    text += "\r\n";
  };
  auto add_row = [&](int row) { add_line([&](int column) { return table.text(row, column); }); };
  if (!rows.empty()) {
    for (int row : rows) add_row(row);
    return text;
  }
  add_line([&](int column) { return Full_Caption(table, column); });
  for (int row = 0; row < table.rows(); ++row) add_row(row);
  return text;
}

}  // namespace tallymere
