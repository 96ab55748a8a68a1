#pragma once

#include <string>
#include <string_view>

namespace tallymere {

/// The letter that a letter is compared as, whatever its case: 'É' as 'é', in all scripts, one letter for one letter.
char32_t folded(char32_t letter);

/// Walks over the letters of a UTF-8 text. A byte that is part of none is a letter by itself, beyond all of Unicode, so
/// that texts of any bytes have an order.
class Letters {
 public:
  explicit Letters(std::string_view text) : text_(text) {}
  bool at_end() const { return at_ == text_.size(); }
  size_t position() const { return at_; }  ///< in bytes
  char32_t next() {
    const auto byte = static_cast<unsigned char>(text_[at_]);
    return byte < 0x80 ? ++at_, byte : next_long();
  }
  char32_t next_folded() {
    const char32_t letter = next();
    return letter < 0x80 ? (letter - 'A' < 26 ? letter + ('a' - 'A') : letter) : folded(letter);
  }

 private:
  char32_t next_long();
  std::string_view text_;
  size_t at_ = 0;
};

void append_letter(std::string& text, char32_t letter);

/// Less than, equal to or more than 0: the order of texts in which case does not count. Texts of ASCII stand as the
/// engine's own NOCASE has them.
int compare_same_text(std::string_view a, std::string_view b);

/// A pattern of LIKE: '%' stands for any text, '_' for a letter; behind `escape`, unless 0, each stands for itself.
bool like_text(std::string_view pattern, std::string_view text, char32_t escape);

}  // namespace tallymere
