#include "reports/frame/table_parts.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {
namespace {

void Copy_Row(const ReportTable& from, int row, const std::vector<bool>& keep, ReportTable& to) {
  auto line = to.add_row(from.role(row), from.key(row));
  for (size_t column = 0; column < keep.size(); ++column)
    if (keep[column]) line.value(from.value(row, static_cast<int>(column)));
  for (const auto& [column, style] : from.own_styles(row))
    if (keep[static_cast<size_t>(column)])
      to.set_cell_style(to.rows() - 1, static_cast<int>(std::count(keep.begin(), keep.begin() + column, true)), style);
}

void Copy_Groups(const ReportTable& from, const std::vector<bool>& keep, ReportTable& to) {
  for (const ReportGroup& group : from.groups) {
    const auto first = keep.begin() + group.first;
    const int before = static_cast<int>(std::count(keep.begin(), first, true));
    const int kept = static_cast<int>(std::count(first, first + group.count, true));
    if (kept > 0) to.groups.push_back({group.caption, before, kept});
  }
}

}  // namespace

ReportTable Part_Of(const ReportTable& table, const std::vector<bool>& columns, const std::vector<bool>& rows) {
  ReportTable part;
  part.heading = table.heading;
  part.looks = table.looks;
  part.offered = table.offered;
  part.notice = table.notice;
  for (size_t column = 0; column < columns.size(); ++column)
    if (columns[column]) part.columns.push_back(table.columns[column]);
  Copy_Groups(table, columns, part);
  for (int row = 0; row < table.rows(); ++row)
    if (rows.empty() || rows[static_cast<size_t>(row)]) Copy_Row(table, row, columns, part);
  return part;
}

void Add_Rows(const ReportTable& from, int first, int count, ReportTable& to) {
  const std::vector<bool> all(to.columns.size(), true);
  for (int row = first; row < first + count; ++row) Copy_Row(from, row, all, to);
}

std::vector<std::string> Column_Names(std::string_view list) {
  std::vector<std::string> names(1);
  for (size_t at = 0; at < list.size(); ++at) {
    if (list[at] == ',')
      names.emplace_back();
    else if (list[at] == '\\' && at + 1 < list.size() && (list[at + 1] == ',' || list[at + 1] == '\\'))
      names.back() += list[++at];
    else
      names.back() += list[at];
  }
  for (std::string& name : names) name = trim(name);
  std::erase(names, "");
  return names;
}

std::string Column_List(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += replace_all(replace_all(name, "\\", "\\\\"), ",", "\\,") + ",";
  return list;
}

ReportTable Pick_Columns(ReportTable table, std::string_view list) {
  const std::vector<std::string> names = Column_Names(list);
  std::vector<bool> keep;
  bool any = false;
  for (int at = 0; at < static_cast<int>(table.columns.size()); ++at) {
    const ReportColumn& column = table.columns[static_cast<size_t>(at)];
    const bool stays = column.kind == ReportColumn::Kind::Margin || at == table.label_column();
    const bool named = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
      return name == column.id() || name == column.caption;
    });
    if (!stays && !column.id().empty()) table.offered.push_back(column);
    any = any || (named && !stays);
    keep.push_back(stays || named);
  }
  return any && std::find(keep.begin(), keep.end(), false) != keep.end() ? Part_Of(table, keep) : std::move(table);
}

}  // namespace tallymere
