#include <istream>
#include <ostream>

#include "core/store/error.h"
#include "core/values/base64.h"
#include "core/values/text.h"
#include "core/values/tsv.h"
#include "printing/layout.h"

namespace tallymere {
namespace {

[[noreturn]] void Not_Layouts() {
  throw store::Error(store::errors::not_a_database, "These are no layouts, or some cut short.");
}

void Write_Line(std::ostream& out, std::initializer_list<std::string_view> fields) {
  for (bool first = true; const std::string_view field : fields) {
    out << (first ? "" : "\t") << Escaped_Cell(field);
    first = false;
  }
  out << '\n';
}

std::vector<std::string> Fields_Of(const std::string& line) {
  std::vector<std::string> fields;
  for (const std::string& cell : split(line, "\t")) {
    auto field = Unescaped_Cell(cell);
    if (!field) Not_Layouts();
    fields.push_back(std::move(*field));
  }
  return fields;
}

Layout::Row Row_Of(const std::vector<std::string>& fields) {
  if (fields.size() % 2 == 0) Not_Layouts();
  Layout::Row row;
  for (size_t at = 1; at < fields.size(); at += 2) row[fields[at]] = fields[at + 1];
  return row;
}

void Take_Picture(Layout& layout, const std::string& object, const std::string& text) {
  auto bytes = From_Base64(text);
  if (!bytes) Not_Layouts();
  layout.SetPicture(object, std::move(*bytes));
}

void Take(LayoutFile& file, const std::vector<std::string>& fields) {
  const std::string& kind = fields.front();
  if (kind == "title" && fields.size() == 2)
    file.title = fields[1];
  else if (kind == "places" && fields.size() == 3)
    file.places = {fields[1], fields[2]};
  else if (kind == "layout" && fields.size() == 2)
    file.layouts.emplace_back(fields[1]);
  else if (file.layouts.empty())
    Not_Layouts();
  else if (kind == "text" && fields.size() == 3)
    file.layouts.back().SetText(fields[1], fields[2]);
  else if (kind == "picture" && fields.size() == 3)
    Take_Picture(file.layouts.back(), fields[1], fields[2]);
  else if (kind == "hide" && fields.size() == 2)
    file.layouts.back().Suppress(fields[1]);
  else if (kind == "detail")
    file.layouts.back().add_detail(Row_Of(fields));
  else
    Not_Layouts();
}

void Write_Layout(const Layout& layout, std::ostream& out) {
  Write_Line(out, {"layout", layout.name()});
  for (const auto& [object, text] : layout.texts()) Write_Line(out, {"text", object, text});
  for (const auto& [object, bytes] : layout.pictures()) Write_Line(out, {"picture", object, To_Base64(bytes)});
  for (const std::string& object : layout.hidden()) Write_Line(out, {"hide", object});
  for (const Layout::Row& row : layout.details()) {
    out << "detail";
    for (const auto& [object, text] : row) out << '\t' << Escaped_Cell(object) << '\t' << Escaped_Cell(text);
    out << '\n';
  }
}

}  // namespace

void Write_Layout_File(const LayoutFile& file, std::ostream& out) {
  out << layout_file_mark << '\n';
  Write_Line(out, {"title", file.title});
  Write_Line(out, {"places", file.places.own.string(), file.places.shipped.string()});
  for (const Layout& layout : file.layouts) Write_Layout(layout, out);
  out << "end\n";
}

LayoutFile Read_Layout_File(std::istream& in) {
  LayoutFile file;
  std::string line;
  if (!std::getline(in, line) || line != layout_file_mark) Not_Layouts();
  while (std::getline(in, line)) {
    if (line == "end") return file;
    Take(file, Fields_Of(line));
  }
  Not_Layouts();
}

}  // namespace tallymere
