#include "reports/frame/row_groups.h"

#include <algorithm>
#include <limits>

#include "reports/frame/table_parts.h"

namespace tallymere {
namespace {

bool Is_Zero(const store::Value& value) {
  const auto& content = value.content();
  if (auto amount = std::get_if<Money>(&content)) return amount->is_zero();
  if (auto number = std::get_if<double>(&content)) return *number == 0;
  if (auto number = std::get_if<int64_t>(&content)) return *number == 0;
  return false;
}

/// Which rows show something, worked out from the last row up: a row indented less than one that stays below
/// it is what that one belongs to.
class Empty_Groups {
 public:
  explicit Empty_Groups(const ReportTable& table)
      : table_(table),
        heads_(Heads_Over(table)),
        is_kept_(static_cast<size_t>(table.rows())),
        is_filled_(static_cast<size_t>(table.rows())) {}

  std::vector<bool> kept_rows() {
    for (int row = table_.rows() - 1; row >= 0; --row) look_at(row);
    for (int row = 0; row < table_.rows(); ++row)
      if (const int head = heads_[at(row)]; table_.is_total(row) && is_own_head(row, head))
        is_kept_[at(row)] = is_kept_[at(head)];
    drop_spacers();
    return is_kept_;
  }

 private:
  static size_t at(int row) { return static_cast<size_t>(row); }
  bool is_own_head(int row, int head) const {
    return head >= 0 && table_.role(row) != Role::Grand_Total && table_.level(row) == table_.level(head);
  }

  void look_at(int row) {
    const int head = heads_[at(row)];
    switch (table_.role(row)) {
      case Role::Spacer:
        is_kept_[at(row)] = true;
        return;
      case Role::Head:
        is_kept_[at(row)] = is_filled_[at(row)];
        next_level_ = std::numeric_limits<int>::min();
        break;
      case Role::Group:
        settle(row, is_filled_[at(row)]);
        break;
      case Role::Detail:
        settle(row, shows_something(row));
        break;
      default:
        is_kept_[at(row)] = true;
        if (table_.role(row) == Role::Subtotal && shows_something(row) && head >= 0) is_filled_[at(head)] = true;
        if (table_.role(row) != Role::Subtotal) next_level_ = std::numeric_limits<int>::min();
        return;
    }
    if (head >= 0 && is_kept_[at(row)]) is_filled_[at(head)] = true;
  }

  void settle(int row, bool filled) {
    const bool kept = filled || next_level_ > table_.level(row);
    is_kept_[at(row)] = kept;
    if (kept) next_level_ = table_.level(row);
  }

  bool shows_something(int row) const {
    if (table_.key(row).number != 0) return true;
    bool figures = false;
    for (int column = table_.label_column() + 1; column < static_cast<int>(table_.columns.size()); ++column) {
      const store::Value value = table_.value(row, column);
      if (value.blank()) continue;
      if (!Is_Zero(value)) return true;
      figures = true;
    }
    return !figures;
  }

  /// A blank row that follows nothing, or another blank one, goes too.
  void drop_spacers() {
    bool after_row = false;
    for (int row = 0; row < table_.rows(); ++row) {
      if (!is_kept_[at(row)]) continue;
      if (table_.is_spacer(row) && !after_row) is_kept_[at(row)] = false;
      if (is_kept_[at(row)]) after_row = !table_.is_spacer(row);
    }
  }

  const ReportTable& table_;
  const std::vector<int> heads_;
  std::vector<bool> is_kept_, is_filled_;
  int next_level_ = std::numeric_limits<int>::min();  ///< of the row below that stays
};

std::vector<bool> Kept_Columns(const ReportTable& table) {
  std::vector<bool> kept;
  for (size_t column = 0; column < table.columns.size(); ++column) {
    bool shows = !table.columns[column].may_go;
    for (int row = 0; row < table.rows() && !shows; ++row) {
      const store::Value value = table.value(row, static_cast<int>(column));
      shows = !value.blank() && !Is_Zero(value);
    }
    kept.push_back(shows);
  }
  return kept;
}

}  // namespace

std::vector<int> Heads_Over(const ReportTable& table) {
  std::vector<int> over(static_cast<size_t>(table.rows()), -1), open;
  const auto close_down_to = [&](int level) {
    while (!open.empty() && table.level(open.back()) >= level) open.pop_back();
  };
  for (int row = 0; row < table.rows(); ++row) {
    if (table.role(row) == Role::Grand_Total) open.clear();
    if (table.is_head(row)) close_down_to(table.level(row));
    if (table.is_total(row)) close_down_to(table.level(row) + 1);
    if (!open.empty()) over[static_cast<size_t>(row)] = open.back();
    if (table.is_head(row)) open.push_back(row);
    if (table.is_total(row)) close_down_to(table.level(row));
  }
  return over;
}

ReportTable Without_Empty_Groups(const ReportTable& table) {
  return Part_Of(table, Kept_Columns(table), Empty_Groups(table).kept_rows());
}

bool Has_Empty_Groups(const ReportTable& table) {
  const auto leaves_out = [](const std::vector<bool>& kept) {
    return std::find(kept.begin(), kept.end(), false) != kept.end();
  };
  return leaves_out(Empty_Groups(table).kept_rows()) || leaves_out(Kept_Columns(table));
}

}  // namespace tallymere
