#include "reports/frame/report_file.h"

#include <array>
#include <charconv>
#include <istream>
#include <ostream>

#include "core/store/error.h"
#include "core/values/text.h"
#include "core/values/tsv.h"

namespace tallymere {
namespace {

constexpr std::string_view first_line = "tallymere-report 2";
constexpr std::string_view last_line = "end";

using Kind = ReportColumn::Kind;
constexpr std::array<std::pair<std::string_view, Kind>, 6> kinds = {{{"text", Kind::Text},
                                                                     {"money", Kind::Money},
                                                                     {"number", Kind::Number},
                                                                     {"date", Kind::Date},
                                                                     {"flag", Kind::Flag},
                                                                     {"margin", Kind::Margin}}};
constexpr std::array<std::pair<std::string_view, Role>, 7> roles = {{{"detail", Role::Detail},
                                                                     {"head", Role::Head},
                                                                     {"group", Role::Group},
                                                                     {"subtotal", Role::Subtotal},
                                                                     {"total", Role::Total},
                                                                     {"grand", Role::Grand_Total},
                                                                     {"spacer", Role::Spacer}}};
constexpr std::array<std::pair<std::string_view, Looks>, 2> looks = {
    {{"statement", Looks::Statement}, {"list", Looks::List}}};

[[noreturn]] void Not_A_Report() {
  throw store::Error(store::errors::not_a_database, "This is no report, or one cut short.");
}

std::string Unescaped(std::string_view text) {
  auto plain = Unescaped_Cell(text);
  if (!plain) Not_A_Report();
  return std::move(*plain);
}

template <typename Number>
std::string Number_Text(Number number) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

template <typename Number>
Number Read_Number(std::string_view text) {
  Number number{};
  auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || end != text.data() + text.size()) Not_A_Report();
  return number;
}

std::string Cell_Text(const store::Value& value) {
  struct Writer {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(const std::string& text) const { return "t" + Escaped_Cell(text); }
    std::string operator()(int64_t number) const { return "i" + Number_Text(number); }
    std::string operator()(double number) const { return "d" + Number_Text(number); }
    std::string operator()(Money amount) const { return "m" + Number_Text(amount.units()); }
    std::string operator()(Date day) const { return "y" + day.to_iso(); }
    std::string operator()(bool flag) const { return flag ? "f1" : "f0"; }
  };
  return std::visit(Writer{}, value.content());
}

store::Value Read_Cell(std::string_view text) {
  if (text.empty()) return {};
  std::string_view content = text.substr(1);
  switch (text[0]) {
    case 't':
      return Unescaped(content);
    case 'i':
      return Read_Number<int64_t>(content);
    case 'd':
      return Read_Number<double>(content);
    case 'm':
      return Money::from_units(Read_Number<int64_t>(content));
    case 'f':
      return content == "1";
    case 'y':
      if (auto day = Date::from_iso(content)) return *day;
  }
  Not_A_Report();
}

/// The fields of one line, asked for in turn.
class Fields {
 public:
  explicit Fields(const std::string& line) : fields_(split(line, "\t")) {}
  bool more() const { return next_ < fields_.size(); }
  const std::string& raw() {
    if (!more()) Not_A_Report();
    return fields_[next_++];
  }
  std::string text() { return Unescaped(raw()); }
  int number() { return Read_Number<int>(raw()); }

 private:
  std::vector<std::string> fields_;
  size_t next_ = 0;
};

template <typename Words>
auto Named(const Words& words, std::string_view name) {
  for (const auto& [known, meaning] : words)
    if (known == name) return meaning;
  Not_A_Report();
}

template <typename Words, typename Meaning>
std::string_view Name_Of(const Words& words, Meaning wanted) {
  for (const auto& [name, meaning] : words)
    if (meaning == wanted) return name;
  return {};
}

ReportColumn Read_Column(Fields& fields) {
  ReportColumn column;
  column.kind = Named(kinds, fields.raw());
  column.mask = fields.text();
  column.caption = fields.text();
  return column;
}

void Read_Row(Fields& fields, ReportTable& table) {
  auto line = table.add_row(Named(roles, fields.raw()));
  while (fields.more()) line.value(Read_Cell(fields.raw()));
}

void Read_Cell_Style(Fields& fields, ReportTable& table) {
  int row = fields.number(), column = fields.number();
  table.set_cell_style(row, column, fields.text());
}

void Read_Line(const std::string& line, ReportTable& table) {
  Fields fields(line);
  const std::string& what = fields.raw();
  if (what == "heading") {
    table.heading.title = fields.text();
    table.heading.company = fields.text();
    table.heading.period = fields.text();
    table.heading.basis = fields.text();
    table.heading.note = fields.text();
  } else if (what == "looks") {
    table.looks = Named(looks, fields.raw());
  } else if (what == "column") {
    table.columns.push_back(Read_Column(fields));
  } else if (what == "group") {
    int first = fields.number(), count = fields.number();
    table.groups.push_back({fields.text(), first, count});
  } else if (what == "row") {
    Read_Row(fields, table);
  } else if (what == "cell") {
    Read_Cell_Style(fields, table);
  } else {
    Not_A_Report();
  }
}

void Write_Rows(const ReportTable& table, std::ostream& out) {
  const int columns = static_cast<int>(table.columns.size());
  for (int row = 0; row < table.rows(); ++row) {
    out << "row\t" << Name_Of(roles, table.role(row));
    std::string empty_cells;
    for (int column = 0; column < columns; ++column) {
      std::string cell = Cell_Text(table.value(row, column));
      empty_cells += '\t';
      if (cell.empty()) continue;
      out << empty_cells << cell;
      empty_cells.clear();
    }
    out << '\n';
    for (const auto& [column, style] : table.own_styles(row))
      out << "cell\t" << row << '\t' << column << '\t' << Escaped_Cell(style) << '\n';
  }
}

}  // namespace

void Write_Report_File(const ReportTable& table, std::ostream& out) {
  const ReportHeading& heading = table.heading;
  out << first_line << "\nheading\t" << Escaped_Cell(heading.title) << '\t' << Escaped_Cell(heading.company) << '\t'
      << Escaped_Cell(heading.period) << '\t' << Escaped_Cell(heading.basis) << '\t' << Escaped_Cell(heading.note)
      << '\n'
      << "looks\t" << Name_Of(looks, table.looks) << '\n';
  for (const ReportColumn& column : table.columns)
    out << "column\t" << Name_Of(kinds, column.kind) << '\t' << Escaped_Cell(column.mask) << '\t'
        << Escaped_Cell(column.caption) << '\n';
  for (const ReportGroup& group : table.groups)
    out << "group\t" << group.first << '\t' << group.count << '\t' << Escaped_Cell(group.caption) << '\n';
  Write_Rows(table, out);
  out << last_line << '\n';
}

ReportTable Read_Report_File(std::istream& in) {
  std::string line;
  if (!std::getline(in, line) || line != first_line) Not_A_Report();
  ReportTable table;
  while (std::getline(in, line)) {
    if (line == last_line) return table;
    Read_Line(line, table);
  }
  Not_A_Report();
}

}  // namespace tallymere
