#include "reports/frame/widest_texts.h"

#include <algorithm>
#include <array>
#include <map>

namespace tallymere {
namespace {

constexpr int last_rows = 60;

/// In tenths of a capital's height, for each byte: about what common sans-serif faces have.
constexpr auto letter_widths = [] {
  std::array<unsigned char, 256> widths{};
  for (size_t byte = 0; byte < 256; ++byte)
    widths[byte] = byte < 0x80 || (byte >= 0xC0 && byte < 0xE0) ? 6 : byte < 0xC0 ? 0 : 10;
  auto set = [&](std::string_view letters, unsigned char width) {
    for (char letter : letters) widths[static_cast<unsigned char>(letter)] = width;
  };
  set("ABCDEFGHKLNOPQRSTUVXYZ&", 7);
  set("mwMW@%", 9);
  set(" ijlIJ.,:;'!|/\\", 3);
  set("frt()[]{}-\"", 4);
  return widths;
}();

/// Which of two texts is the wider one cannot be told from how many letters they have.
int Rough_Width(std::string_view text) {
  int width = 0;
  for (char byte : text) width += letter_widths[static_cast<unsigned char>(byte)];
  return width;
}

/// What is widest in one column and one look so far. Amounts are compared by size and formatted at the end.
struct Widest {
  std::string text, word;
  int text_width = 0, word_width = 0;
  int largest = -1, smallest = -1;  ///< rows
  Money most, least;
};

class Search {
 public:
  explicit Search(const ReportTable& table)
      : table_(table), label_column_(Label_Column(table)), found_(table.columns.size()) {}

  void look_at(int row) {
    for (int column = 0; column < static_cast<int>(found_.size()); ++column) {
      const store::Value value = table_.value(row, column);
      if (value.is_null() || (column == label_column_ && Label_Span(table_, row) > 1)) continue;
      Widest& widest = found_[static_cast<size_t>(column)][std::string(table_.style(row, column))];
      if (const Money* amount = std::get_if<Money>(&value.content()))
        take(widest, row, *amount);
      else
        take(widest, table_.for_the_eye(row, column));
    }
  }

  std::vector<std::vector<StyledText>> texts() const {
    std::vector<std::vector<StyledText>> all(found_.size());
    for (size_t column = 0; column < found_.size(); ++column)
      for (const auto& [style, widest] : found_[column]) {
        if (!widest.text.empty()) all[column].push_back({widest.text, style, widest.word});
        for (int row : {widest.largest, widest.smallest})
          if (row >= 0) all[column].push_back({table_.for_the_eye(row, static_cast<int>(column)), style});
      }
    return all;
  }

 private:
  static void take(Widest& widest, int row, Money amount) {
    if (widest.largest < 0 || amount > widest.most) widest.most = amount, widest.largest = row;
    if (widest.smallest < 0 || amount < widest.least) widest.least = amount, widest.smallest = row;
  }
  static void take(Widest& widest, std::string text) {
    const int width = Rough_Width(text);
    if (width > widest.word_width) take_words(widest, text);
    if (width <= widest.text_width) return;
    widest.text = std::move(text);
    widest.text_width = width;
  }
  static void take_words(Widest& widest, std::string_view text) {
    while (!text.empty()) {
      const size_t end = std::min(text.find_first_of(" \r\n"), text.size());
      if (const int width = Rough_Width(text.substr(0, end)); width > widest.word_width) {
        widest.word = text.substr(0, end);
        widest.word_width = width;
      }
      text.remove_prefix(std::min(end + 1, text.size()));
    }
  }

  const ReportTable& table_;
  int label_column_;
  std::vector<std::map<std::string, Widest>> found_;
};

void Copy_Row(const ReportTable& from, int row, const std::vector<bool>& keep, ReportTable& to) {
  auto line = to.add_row(from.style(row), from.key(row));
  int skipped = 0;
  for (size_t column = 0; column < keep.size(); ++column) {
    if (!keep[column]) continue;
    const store::Value value = from.value(row, static_cast<int>(column));
    if (value.is_null()) {
      ++skipped;
      continue;
    }
    line.skip(skipped).value(value);
    skipped = 0;
  }
}

void Copy_Cell_Styles(const ReportTable& from, int row, const std::vector<bool>& keep, ReportTable& to) {
  int place = 0;
  for (size_t column = 0; column < keep.size(); ++column) {
    if (!keep[column]) continue;
    if (const auto style = from.style(row, static_cast<int>(column)); style != from.style(row))
      to.set_cell_style(row, place, style);
    ++place;
  }
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

int Decimals(Money amount) {
  const auto fraction = std::abs(amount.units() % 10000);
  return fraction % 100 == 0 ? 2 : fraction % 10 == 0 ? 3 : 4;
}

std::vector<int> Most_Decimals(const ReportTable& table) {
  std::vector<int> most(table.columns.size(), 2);
  for (size_t column = 0; column < most.size(); ++column) {
    if (table.columns[column].kind != ReportColumn::Kind::Money || !table.columns[column].mask.empty()) continue;
    for (int row = 0; row < table.rows() && most[column] < 4; ++row)
      most[column] = std::max(most[column], Decimals(table.value(row, static_cast<int>(column)).money()));
  }
  return most;
}

int Label_Column(const ReportTable& table) {
  const auto label = std::find_if(table.columns.begin(), table.columns.end(),
                                  [](const ReportColumn& column) { return column.kind != ReportColumn::Kind::Margin; });
  return label == table.columns.end() ? -1 : static_cast<int>(label - table.columns.begin());
}

int Label_Span(const ReportTable& table, int row) {
  const int label = Label_Column(table);
  if (label < 0 || !std::holds_alternative<std::string>(table.value(row, label).content())) return 1;
  int next = label + 1;
  while (next < static_cast<int>(table.columns.size()) && table.value(row, next).is_null()) ++next;
  return next - label;
}

std::vector<std::vector<StyledText>> Widest_Texts(const ReportTable& table, int rows_looked_at) {
  Search search(table);
  const int rows = table.rows();
  const int step = rows_looked_at > 0 ? std::max(rows / rows_looked_at, 1) : 1;
  for (int row = 0; row < rows; row += step) search.look_at(row);
  for (int row = std::max(rows - last_rows, 0); step > 1 && row < rows; ++row) search.look_at(row);
  return search.texts();
}

ReportTable Pick_Columns(const ReportTable& table, const std::vector<bool>& wanted) {
  std::vector<bool> keep(table.columns.size());
  for (size_t column = 0; column < keep.size(); ++column)
    keep[column] =
        table.columns[column].kind == ReportColumn::Kind::Margin || (column < wanted.size() && wanted[column]);
  ReportTable picked;
  picked.heading = table.heading;
  picked.go_to = table.go_to;
  picked.go_to_report = table.go_to_report;
  picked.notice = table.notice;
  for (size_t column = 0; column < keep.size(); ++column)
    if (keep[column]) picked.columns.push_back(table.columns[column]);
  Copy_Groups(table, keep, picked);
  for (int row = 0; row < table.rows(); ++row) {
    Copy_Row(table, row, keep, picked);
    Copy_Cell_Styles(table, row, keep, picked);
  }
  return picked;
}

}  // namespace tallymere
