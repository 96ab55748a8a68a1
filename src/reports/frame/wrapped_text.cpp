#include "reports/frame/wrapped_text.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::string_view and_so_on = "…";
constexpr size_t longest_line = 4096;  ///< no page is wider, and texts may be endless

/// Where the character after the one at `at` begins.
size_t Next_Character(std::string_view text, size_t at) {
  do ++at;
  while (at < text.size() && (text[at] & 0xC0) == 0x80);
  return at;
}

/// The lines of a text, as they fill up.
class Lines {
 public:
  Lines(double room, size_t most, const Text_Width& width_of) : room_(room), most_(most), width_of_(width_of) {}

  bool is_full() const { return lines_.size() >= most_; }
  /// All lines of a paragraph are indented as its first one is.
  void add_paragraph(std::string_view text) {
    indent_ = text.substr(0, std::min(text.find_first_not_of(' '), text.size()));
    if (width_of_(indent_) > room_ / 2) indent_.clear();
    line_.clear();
    for (std::string_view word : Words(text)) add_word(word);
    close();
  }

  /// `all`: the text went in to its end.
  std::vector<std::string> take(bool all) {
    if (all && !cut_) return std::move(lines_);
    std::string& last = lines_.back();
    while (!last.empty() && width_of_(last + std::string(and_so_on)) > room_) {
      while (last.size() > 1 && (last.back() & 0xC0) == 0x80) last.pop_back();
      last.pop_back();
    }
    last += and_so_on;
    return std::move(lines_);
  }

 private:
  bool fits(const std::string& line) const { return line.size() <= longest_line && width_of_(indent_ + line) <= room_; }

  void add_word(std::string_view word) {
    if (std::string longer = line_.empty() ? std::string(word) : line_ + " " + std::string(word); fits(longer)) {
      line_ = std::move(longer);
      return;
    }
    if (!line_.empty()) close();
    while (!is_full() && !fits(std::string(word))) {
      const size_t end = fitting(word);
      line_ = word.substr(0, end);
      word.remove_prefix(end);
      close();
    }
    line_ = word;
  }

  /// How much of a word goes into one line: one character at least.
  size_t fitting(std::string_view word) const {
    size_t end = Next_Character(word, 0);
    for (size_t next = end; next < word.size(); end = next) {
      next = Next_Character(word, next);
      if (!fits(std::string(word.substr(0, next)))) break;
    }
    return end;
  }

  void close() {
    if (is_full())
      cut_ = true;
    else
      lines_.push_back(line_.empty() ? line_ : indent_ + line_);
    line_.clear();
  }

  double room_;
  size_t most_;
  const Text_Width& width_of_;
  std::vector<std::string> lines_;
  std::string indent_, line_;
  bool cut_ = false;
};

}  // namespace

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  constexpr std::string_view blanks = " \t\r\n";
  for (size_t at = text.find_first_not_of(blanks); at != text.npos; at = text.find_first_not_of(blanks, at)) {
    const size_t whole = text.substr(at).starts_with(break_down) ? break_down.size() : 0;
    const size_t end = std::min(text.find_first_of(blanks, at + whole), text.size());
    words.push_back(text.substr(at, end - at));
    at = end;
  }
  return words;
}

std::vector<std::string> Wrapped(std::string_view text, double room, size_t most, const Text_Width& width_of) {
  Lines lines(room, most, width_of);
  const std::vector<std::string> paragraphs = split(replace_all(text, "\r\n", "\n"), "\n");
  bool all = true;
  for (const std::string& paragraph : paragraphs) {
    all = !lines.is_full();
    if (!all) break;
    lines.add_paragraph(paragraph);
  }
  return lines.take(all);
}

}  // namespace tallymere
