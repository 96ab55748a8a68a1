#include "core/store/sql_blanks.h"

#include <charconv>

#include "core/values/text.h"

namespace tallymere::store {
namespace {

using Kind = SqlPiece::Kind;
constexpr size_t nowhere = static_cast<size_t>(-1);

/// Walks over the pieces of one statement; blanks are passed over in both directions.
class Blanks {
 public:
  Blanks(std::vector<SqlPiece>& pieces, std::span<const Value> params) : pieces_(pieces), params_(params) {}

  void rewrite() {
    std::vector<size_t> assigning;  // where SET was read, a place for each open bracket
    assigning.push_back(nowhere);
    for (at_ = 0; at_ < pieces_.size(); ++at_) {
      if (is("(")) assigning.push_back(nowhere);
      if (is(")") && assigning.size() > 1) assigning.pop_back();
      if (is("SET")) assigning.back() = at_;
      if (is("WHERE")) assigning.back() = nowhere;
      if (is("IN")) rewrite_list();
      note_parameter();
      if (is_text()) rewrite_comparison(assigning.back() != nowhere);
    }
  }

 private:
  bool is(std::string_view word, size_t at) const {
    return at < pieces_.size() && pieces_[at].kind != Kind::Text && same_text(pieces_[at].text, word);
  }
  bool is(std::string_view word) const { return is(word, at_); }
  size_t before(size_t at) const {
    while (at-- > 0)
      if (pieces_[at].kind != Kind::Blank) return at;
    return nowhere;
  }
  size_t after(size_t at) const {
    while (++at < pieces_.size())
      if (pieces_[at].kind != Kind::Blank) return at;
    return nowhere;
  }

  void note_parameter() {
    if (pieces_[at_].kind != Kind::Parameter) return;
    const std::string& text = pieces_[at_].text;
    if (text.size() > 1)
      std::from_chars(text.data() + 1, text.data() + text.size(), parameter_);
    else
      ++parameter_;
  }
  /// The text that stands at `at_`, which is a parameter or a literal; nullptr: no text.
  const std::string* parameter() const {
    if (pieces_[at_].kind != Kind::Parameter || parameter_ < 1 || parameter_ > params_.size()) return nullptr;
    return std::get_if<std::string>(&params_[parameter_ - 1].content());
  }
  bool is_text() const { return pieces_[at_].kind == Kind::Text || parameter(); }
  bool is_blank_text() const {
    return pieces_[at_].kind == Kind::Text ? pieces_[at_].text == "''" : parameter()->empty();
  }

  /// The first piece of the column that ends at `last`; nowhere when an expression ends there.
  size_t column_ending_at(size_t last) const {
    if (last == nowhere || pieces_[last].kind != Kind::Word) return nowhere;
    size_t first = last;
    if (first >= 2 && is(".", first - 1) && pieces_[first - 2].kind == Kind::Word) first -= 2;
    return begins_condition(before(first)) ? first : nowhere;
  }
  /// Behind a bracket, a comma or a word such as AND a column stands by itself, not at the end of an expression.
  bool begins_condition(size_t at) const {
    if (at == nowhere || is("(", at) || is(",", at)) return true;
    for (auto word : {"WHERE", "AND", "OR", "NOT", "ON", "HAVING", "WHEN", "THEN", "ELSE", "SELECT", "SET"})
      if (is(word, at)) return true;
    return false;
  }

  /// `at_` is the text behind the operator.
  void rewrite_comparison(bool assigning) {
    size_t mark = before(at_);
    if (mark == nowhere || mark == 0 || after_is_joined()) return;
    if (is(">", mark) && is("<", mark - 1)) return differs(mark - 1, mark);
    if (is("=", mark) && is("!", mark - 1)) return differs(mark - 1, mark);
    if (!is("=", mark) || is("<", mark - 1) || is(">", mark - 1) || !is_blank_text()) return;
    size_t first = column_ending_at(before(mark));
    if (first == nowhere || (assigning && is_assigned(first))) return;
    std::string column;
    for (size_t at = first; at < mark; ++at) column += pieces_[at].text;
    pieces_[first].text.insert(0, "(");
    pieces_[at_].text += " OR " + trim(column) + " IS NULL)";
  }
  bool after_is_joined() const {
    size_t next = after(at_);
    return next != nowhere && (is("|", next) || is("COLLATE", next));
  }
  bool is_assigned(size_t column) const {
    size_t front = before(column);
    return is("SET", front) || is(",", front);
  }
  /// Nothing is not 'Inventory Part'; that nothing is not unlike '' the engine's own <> sees to.
  void differs(size_t from, size_t to) {
    if (is_blank_text()) return;
    const bool close_before = from > 0 && pieces_[from - 1].kind != Kind::Blank, close_behind = to + 1 == at_;
    pieces_[from].text = close_before ? " IS NOT" : "IS NOT";
    pieces_[to].text = close_behind ? " " : "";
  }

  /// `at_` is IN: of texts, and by NOT or with an empty one among them, so that null would matter.
  void rewrite_list() {
    size_t open = after(at_);
    if (open == nowhere || !is("(", open)) return;
    size_t in = before(at_);
    const bool negated = in != nowhere && is("NOT", in);
    size_t last = negated ? before(in) : in;
    size_t first = column_ending_at(last);
    if (first == nowhere || !list_matters(open, negated)) return;
    pieces_[first].text.insert(0, "IFNULL(");
    pieces_[last].text += ", '') COLLATE NOCASE";
  }
  bool list_matters(size_t open, bool negated) {
    const size_t here = at_, counted = parameter_;
    bool texts = true, blank = false;
    for (at_ = after(open); at_ != nowhere && !is(")"); at_ = after(at_)) {
      if (is(",")) continue;
      note_parameter();
      texts = texts && is_text();
      blank = blank || (texts && is_blank_text());
    }
    at_ = here, parameter_ = counted;
    return texts && (negated || blank);
  }

  std::vector<SqlPiece>& pieces_;
  std::span<const Value> params_;
  size_t at_ = 0, parameter_ = 0;
};

}  // namespace

void Take_Null_As_Blank(std::vector<SqlPiece>& pieces, std::span<const Value> params) {
  Blanks(pieces, params).rewrite();
}

}  // namespace tallymere::store
