#include "reports/frame/report_table.h"

#include <algorithm>
#include <bit>

#include "core/ledger/tree_list.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

std::string Masked(const store::Value& value, std::string_view mask) {
  if (auto amount = std::get_if<Money>(&value.content())) return Format(*amount, mask.empty() ? money_mask : mask);
  if (mask.empty()) return value.text();
  if (auto day = std::get_if<Date>(&value.content())) return Format(*day, mask);
  if (std::holds_alternative<int64_t>(value.content()) || std::holds_alternative<double>(value.content()))
    return Format(value.number(), mask);
  return value.text();
}

}  // namespace

// --- writing -------------------------------------------------------------------------------------

const std::string* ReportTable::keep(std::string_view text) {
  auto found = texts_->find(text);
  return found != texts_->end() ? &*found : &*texts_->emplace(text).first;
}

ReportTable::Line ReportTable::add_row(Role role, RowKey key) {
  rows_.push_back({cells_.size(), masks_.size(), keep(key.report), keep(key.text), key.number, role});
  leads_on_ = leads_on_ || key.leads();
  next_column_ = 0;
  return Line(*this);
}

void ReportTable::put(Cell content) {
  const size_t column = next_column_++;
  const size_t word = rows_.back().first_mask + column / 64;
  if (word >= masks_.size()) masks_.resize(word + 1);
  masks_[word] |= uint64_t{1} << column % 64;
  cells_.push_back(content);
}

void ReportTable::set_cell_style(int row, int column, std::string_view style) {
  cell_styles_[{row, column}] = keep(style);
}

ReportTable::Line& ReportTable::Line::skip(int cells) {
  table_.next_column_ += static_cast<size_t>(cells);
  return *this;
}

ReportTable::Line& ReportTable::Line::text(std::string_view text) {
  if (text.empty()) return skip();
  table_.put(table_.keep(text));
  return *this;
}

ReportTable::Line& ReportTable::Line::money(Money amount) {
  table_.put(amount);
  return *this;
}

ReportTable::Line& ReportTable::Line::value(const store::Value& value) {
  std::visit(
      [this](const auto& content) {
        using Content = std::decay_t<decltype(content)>;
        if constexpr (std::is_same_v<Content, std::string>)
          text(content);
        else if constexpr (std::is_same_v<Content, std::monostate>)
          skip();
        else
          table_.put(content);
      },
      value.content());
  return *this;
}

// --- reading -------------------------------------------------------------------------------------

const ReportTable::Cell& ReportTable::cell(int row, int column) const {
  static const Cell nothing;
  const size_t at = static_cast<size_t>(row), wanted = static_cast<size_t>(column);
  const size_t end = at + 1 < rows_.size() ? rows_[at + 1].first_mask : masks_.size();
  const size_t word = rows_[at].first_mask + wanted / 64;
  const uint64_t bit = uint64_t{1} << wanted % 64;
  if (word >= end || !(masks_[word] & bit)) return nothing;
  size_t before = static_cast<size_t>(std::popcount(masks_[word] & (bit - 1)));
  for (size_t earlier = rows_[at].first_mask; earlier < word; ++earlier)
    before += static_cast<size_t>(std::popcount(masks_[earlier]));
  return cells_[rows_[at].first_cell + before];
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

bool ReportTable::is_total(int row) const {
  return role(row) == Role::Subtotal || role(row) == Role::Total || role(row) == Role::Grand_Total;
}

std::string_view ReportTable::style(int row) const {
  const bool list = looks == Looks::List;
  switch (role(row)) {
    case Role::Head:
    case Role::Total:
    case Role::Grand_Total:
      return list ? "Bold" : "sBold";
    case Role::Spacer:
      return "";
    default:
      return list ? "Small" : "";
  }
}

std::string_view ReportTable::style(int row, int column) const {
  auto own = cell_styles_.find({row, column});
  return own == cell_styles_.end() ? style(row) : *own->second;
}

std::vector<std::pair<int, std::string>> ReportTable::own_styles(int row) const {
  std::vector<std::pair<int, std::string>> styles;
  for (auto own = cell_styles_.lower_bound({row, 0}); own != cell_styles_.end() && own->first.first == row; ++own)
    styles.emplace_back(own->first.second, *own->second);
  return styles;
}

RowKey ReportTable::key(int row) const {
  const Row& found = rows_[static_cast<size_t>(row)];
  return {*found.report, *found.text, found.number};
}

int ReportTable::label_column() const {
  const auto label = std::find_if(columns.begin(), columns.end(),
                                  [](const ReportColumn& column) { return column.kind != ReportColumn::Kind::Margin; });
  return label == columns.end() ? -1 : static_cast<int>(label - columns.begin());
}

int ReportTable::level(int row) const {
  const int label = label_column();
  const std::string* const* text = label < 0 ? nullptr : std::get_if<const std::string*>(&cell(row, label));
  if (!text) return 0;
  const size_t blanks = std::min((*text)->find_first_not_of(' '), (*text)->size());
  return static_cast<int>(blanks) / Blanks_Per_Level;
}

int ReportTable::find_column(std::string_view caption) const {
  auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.caption == caption; });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

}  // namespace tallymere
