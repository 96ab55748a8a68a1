#include "reports/frame/widest_texts.h"

#include <algorithm>
#include <array>

#include "core/values/text.h"
#include "reports/frame/wrapped_text.h"

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
  std::string_view style;
  std::string text = {}, word = {};
  int text_width = 0, word_width = 0;
  int largest = -1, smallest = -1;  ///< rows
  Money most = {}, least = {};
};

class Search {
 public:
  explicit Search(const ReportTable& table)
      : table_(table), label_column_(table.label_column()), found_(table.columns.size()) {}

  void look_at(int row) {
    for (int column = 0; column < static_cast<int>(found_.size()); ++column) {
      const store::Value value = table_.value(row, column);
      if (value.is_null() || (column == label_column_ && Label_Span(table_, row) > 1)) continue;
      Widest& widest = of_look(static_cast<size_t>(column), table_.style(row, column));
      if (const Money* amount = std::get_if<Money>(&value.content()))
        take(widest, row, *amount);
      else
        take(widest, table_.for_the_eye(row, column));
    }
  }

  std::vector<std::vector<StyledText>> texts() const {
    std::vector<std::vector<StyledText>> all(found_.size());
    for (size_t column = 0; column < found_.size(); ++column)
      for (const Widest& widest : found_[column]) {
        const std::string style(widest.style);
        if (!widest.text.empty()) all[column].push_back({widest.text, style, widest.word});
        for (int row : {widest.largest, widest.smallest})
          if (row >= 0) all[column].push_back({table_.for_the_eye(row, static_cast<int>(column)), style});
      }
    return all;
  }

 private:
  Widest& of_look(size_t column, std::string_view style) {
    std::vector<Widest>& looks = found_[column];
    auto found = std::find_if(looks.begin(), looks.end(), [&](const Widest& look) { return look.style == style; });
    return found != looks.end() ? *found : looks.emplace_back(Widest{.style = style});
  }
  static void take(Widest& widest, int row, Money amount) {
    if (widest.largest < 0 || amount > widest.most) widest.most = amount, widest.largest = row;
    if (widest.smallest < 0 || amount < widest.least) widest.least = amount, widest.smallest = row;
  }
  /// A text of several lines is as wide as the widest of them.
  static void take(Widest& widest, const std::string& text) {
    for (const std::string& line : split(text, "\n")) take_line(widest, line);
  }
  static void take_line(Widest& widest, const std::string& line) {
    const int width = Rough_Width(line);
    if (width > widest.word_width) take_words(widest, line);
    if (width <= widest.text_width) return;
    widest.text = line;
    widest.text_width = width;
  }
  static void take_words(Widest& widest, std::string_view text) {
    for (std::string_view word : Words(text))
      if (const int width = Rough_Width(word); width > widest.word_width) {
        widest.word = word;
        widest.word_width = width;
      }
  }

  const ReportTable& table_;
  int label_column_;
  std::vector<std::vector<Widest>> found_;
};

}  // namespace

int Label_Span(const ReportTable& table, int row) {
  const int label = table.label_column();
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

}  // namespace tallymere
