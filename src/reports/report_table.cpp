#include "reports/report_table.h"

#include <algorithm>

#include "core/format.h"

namespace tallymere {
namespace {

constexpr std::string_view money_mask = "#,##0.00##";

std::string Masked(const store::Value& value, std::string_view mask) {
  if (auto amount = std::get_if<Money>(&value.content()))
    return Format(*amount, mask.empty() ? money_mask : mask);
  if (mask.empty()) return value.text();
  if (auto day = std::get_if<Date>(&value.content())) return Format(*day, mask);
  if (std::holds_alternative<int64_t>(value.content()) || std::holds_alternative<double>(value.content()))
    return Format(value.number(), mask);
  return value.text();
}

}  // namespace

// --- writing
// ------------------------------------------------------------------------------------------------

const std::string* ReportTable::keep(std::string_view text) {
  auto found = texts_->find(text);
  return found != texts_->end() ? &*found : &*texts_->emplace(text).first;
}

ReportTable::Line ReportTable::add_row(std::string_view style, RowKey key) {
  const size_t start = rows_.empty() ? 0 : rows_.back().first_cell;
  while (cells_.size() > start && std::holds_alternative<std::monostate>(cells_.back())) cells_.pop_back();
  rows_.push_back({cells_.size(), keep(style), keep(key.text), key.number});
  return Line(*this);
}

void ReportTable::set_cell_style(int row, int column, std::string_view style) {
  cell_styles_[{row, column}] = keep(style);
}

ReportTable::Line& ReportTable::Line::skip(int cells) {
  table_.cells_.resize(table_.cells_.size() + static_cast<size_t>(cells));
  return *this;
}

ReportTable::Line& ReportTable::Line::text(std::string_view text) {
  if (text.empty()) return skip();
  table_.cells_.emplace_back(table_.keep(text));
  return *this;
}

ReportTable::Line& ReportTable::Line::money(Money amount) {
  table_.cells_.emplace_back(amount);
  return *this;
}

ReportTable::Line& ReportTable::Line::value(const store::Value& value) {
  std::visit(
      [this](const auto& content) {
        if constexpr (std::is_same_v<std::decay_t<decltype(content)>, std::string>)
          text(content);
        else
          table_.cells_.emplace_back(content);
      },
      value.content());
  return *this;
}

// --- reading
// ------------------------------------------------------------------------------------------------

const ReportTable::Cell& ReportTable::cell(int row, int column) const {
  static const Cell nothing;
  const size_t at = static_cast<size_t>(row);
  const size_t end = at + 1 < rows_.size() ? rows_[at + 1].first_cell : cells_.size();
  const size_t wanted = rows_[at].first_cell + static_cast<size_t>(column);
  return wanted < end ? cells_[wanted] : nothing;
}

store::Value ReportTable::value(int row, int column) const {
  return std::visit(
      [](const auto& content) -> store::Value {
        using Content = std::decay_t<decltype(content)>;
        if constexpr (std::is_same_v<Content, std::monostate>)
          return {};
        else if constexpr (std::is_same_v<Content, const std::string*>)
          return *content;
        else
          return content;
      },
      cell(row, column));
}

std::string ReportTable::text(int row, int column) const {
  const Cell& content = cell(row, column);
  if (auto text = std::get_if<const std::string*>(&content)) return **text;
  return value(row, column).text();
}

std::string ReportTable::for_the_eye(int row, int column) const {
  return Masked(value(row, column), columns[static_cast<size_t>(column)].mask);
}

std::string_view ReportTable::style(int row, int column) const {
  auto own = cell_styles_.find({row, column});
  return own == cell_styles_.end() ? style(row) : *own->second;
}

RowKey ReportTable::key(int row) const {
  const Row& found = rows_[static_cast<size_t>(row)];
  return {*found.key, found.number};
}

bool ReportTable::is_spacer(int row) const {
  for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
    const Cell& found = cell(row, column);
    if (auto text = std::get_if<const std::string*>(&found);
        text && (*text)->find_first_not_of(' ') == std::string::npos)
      continue;
    if (!std::holds_alternative<std::monostate>(found)) return false;
  }
  return true;
}

int ReportTable::find_column(std::string_view caption) const {
  auto found =
      std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.caption == caption; });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

}  // namespace tallymere
