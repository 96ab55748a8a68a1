#include "reports/frame/page_breaks.h"

#include "core/values/text.h"
#include "reports/frame/row_groups.h"

namespace tallymere {
namespace {

class Breaks {
 public:
  Breaks(const ReportTable& table, const std::vector<double>& heights, const Page_Room& room)
      : table_(table), heights_(heights), room_(room), heads_(Heads_Over(table)) {}

  std::vector<Page_Start> find() {
    begin_page(0);
    for (int row = 0; row < table_.rows(); ++row) {
      const double height = heights_[static_cast<size_t>(row)];
      if (height <= left_ || row == pages_.back().row) {
        left_ -= height;
        continue;
      }
      const int next = past_spacers(first_of_next(row));
      if (next == table_.rows()) break;
      begin_page(next);
      row = next - 1;
    }
    return std::move(pages_);
  }

 private:
  void begin_page(int row) {
    const std::string continued = row < table_.rows() ? whose_rows(row) : "";
    left_ = (pages_.empty() ? room_.first : room_.next) - (continued.empty() ? 0 : room_.continued);
    pages_.push_back({row, continued});
  }

  /// The heads over a row, those around the others first.
  std::string whose_rows(int row) const {
    std::string text;
    for (int head = heads_[static_cast<size_t>(row)]; head >= 0; head = heads_[static_cast<size_t>(head)])
      text = trim(table_.text(head, table_.label_column())) + (text.empty() ? " (continued)" : ": ") + text;
    return text;
  }

  int past_spacers(int row) const {
    while (row < table_.rows() && table_.is_spacer(row)) ++row;
    return row;
  }

  /// The break before `row`, or as far above it as rows keep together.
  int first_of_next(int row) const {
    const int start = pages_.back().row;
    int first = row;
    while (first > start && keeps_together(first)) --first;
    return first > start ? first : row;
  }

  /// Whether a row keeps to the one above it.
  bool keeps_together(int row) const {
    const int above = row - 1, head = heads_[static_cast<size_t>(row)];
    if (table_.is_head(above)) return head == above;
    if (table_.is_total(row)) return true;
    return table_.is_spacer(row) && row + 1 < table_.rows() && adds_up_above(row + 1);
  }

  bool adds_up_above(int row) const {
    return table_.is_total(row) && (table_.role(row) == Role::Grand_Total || heads_[static_cast<size_t>(row)] >= 0);
  }

  const ReportTable& table_;
  const std::vector<double>& heights_;
  Page_Room room_;
  std::vector<int> heads_;
  std::vector<Page_Start> pages_;
  double left_ = 0;
};

}  // namespace

std::vector<Page_Start> Page_Breaks(const ReportTable& table, const std::vector<double>& heights,
                                    const Page_Room& room) {
  return Breaks(table, heights, room).find();
}

}  // namespace tallymere
