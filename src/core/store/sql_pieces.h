#pragma once

#include <cctype>
#include <string>
#include <string_view>

#include "core/store/error.h"

namespace tallymere::store {

inline bool Is_Word_Character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || (c & 0x80); }

/// Walks a statement word by word; texts, quoted names and comments come as one piece each.
class Pieces {
 public:
  explicit Pieces(std::string_view sql) : sql_(sql) {}

  bool next() {
    start_ = end_;
    if (start_ >= sql_.size()) return false;
    end_ = end_of_piece();
    return true;
  }
  std::string_view text() const { return sql_.substr(start_, end_ - start_); }
  size_t start() const { return start_; }
  size_t end() const { return end_; }
  char first() const { return sql_[start_]; }
  bool is_word() const { return Is_Word_Character(first()); }
  bool is_parameter() const { return first() == '?'; }
  bool is_blank() const { return std::isspace(static_cast<unsigned char>(first())); }

 private:
  size_t end_of_piece() const {
    char c = sql_[start_];
    if (c == '\'' || c == '"' || c == '#' || c == '`') return closing(c);
    if (c == '[') return closing(']');
    size_t at = start_ + 1;
    if (Is_Word_Character(c) || c == '?')  // ?3 is one piece
      while (at < sql_.size() && Is_Word_Character(sql_[at])) ++at;
    return at;
  }
  size_t closing(char mark) const {
    size_t at = sql_.find(mark, start_ + 1);
    while (at != std::string_view::npos && mark == '\'' && at + 1 < sql_.size() && sql_[at + 1] == '\'')
      at = sql_.find(mark, at + 2);
    if (at == std::string_view::npos)
      throw Error(errors::bad_statement, "Syntax error in query: unclosed " + std::string(1, mark) + ".");
    return at + 1;
  }
  std::string_view sql_;
  size_t start_ = 0, end_ = 0;
};

}  // namespace tallymere::store
