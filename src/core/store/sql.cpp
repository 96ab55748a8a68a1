#include "core/store/sql.h"

#include <array>

#include "core/store/sql_blanks.h"
#include "core/store/sql_pieces.h"
#include "core/values/date.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

/// Column names of the program that the engine would take for words of its own.
constexpr std::array<std::string_view, 7> reserved_columns = {"Index", "Default", "Group", "Order",
                                                              "To",    "Check",   "Limit"};

std::string Day_Literal(std::string_view piece) {
  auto day = Date::parse(piece.substr(1, piece.size() - 2));
  if (!day) throw Error(errors::bad_statement, "Syntax error in date in query: " + std::string(piece));
  return "'" + day->to_iso() + "'";
}

std::string Like_Pattern(std::string_view piece) {
  std::string pattern;
  for (char c : piece) {
    if (c == '%' || c == '_' || c == '\\') pattern += '\\';
    pattern += c == '*' ? '%' : c == '?' ? '_' : c;
  }
  return pattern + " ESCAPE '\\'";
}

bool Is_Reserved_Column(std::string_view word, std::string_view rest) {
  for (auto name : reserved_columns) {
    if (!same_text(word, name)) continue;
    auto next = ltrim(rest.substr(0, 16));
    if (same_text(word, "Limit"))
      return next.empty() || !(std::isdigit(static_cast<unsigned char>(next[0])) || next[0] == '?');
    bool clause = (same_text(word, "Group") || same_text(word, "Order")) && starts_with_same_text(next, "BY");
    return !clause;
  }
  return false;
}

bool Begins_With_Digit_But_Names(std::string_view word) {
  if (!std::isdigit(static_cast<unsigned char>(word[0]))) return false;
  for (size_t at = 0; at < word.size(); ++at)
    if (!std::isdigit(static_cast<unsigned char>(word[at])))
      return word[at] != 'e' && word[at] != 'E' && word[at] != 'x';
  return false;
}

std::string Translated_Word(std::string_view word, std::string_view rest) {
  if (same_text(word, "True")) return "-1";
  if (same_text(word, "False")) return "0";
  if (Begins_With_Digit_But_Names(word) || Is_Reserved_Column(word, rest)) return Quoted(word);
  return std::string(word);
}

SqlPiece::Kind Kind_Of(const Pieces& piece) {
  using enum SqlPiece::Kind;
  if (piece.is_blank()) return Blank;
  if (piece.is_parameter()) return Parameter;
  if (piece.first() == '\'') return Text;
  if (piece.is_word() || piece.first() == '"' || piece.first() == '[' || piece.first() == '`') return Word;
  return Mark;
}

}  // namespace

std::string Quoted(std::string_view name) { return "\"" + replace_all(std::string(name), "\"", "\"\"") + "\""; }

std::string Translate(std::string_view sql, std::span<const Value> params) {
  std::vector<SqlPiece> pieces;
  bool after_like = false;
  for (Pieces piece(sql); piece.next();) {
    auto text = piece.text();
    SqlPiece::Kind kind = Kind_Of(piece);
    std::string translated(text);
    if (piece.first() == '#') {
      translated = Day_Literal(text);
    } else if (kind == SqlPiece::Kind::Text && after_like) {
      translated = Like_Pattern(text);
    } else if (piece.is_word()) {
      translated = Translated_Word(text, sql.substr(piece.end()));
    }
    pieces.push_back({kind, std::move(translated)});
    if (!piece.is_blank()) after_like = piece.is_word() && same_text(text, "LIKE");
  }
  Take_Null_As_Blank(pieces, params);
  std::string out;
  for (const SqlPiece& piece : pieces) out += piece.text;
  return out;
}

namespace {

std::string Without_Quotes(std::string_view name) {
  bool quoted = name.size() > 2 && (name[0] == '[' || name[0] == '"' || name[0] == '`');
  return std::string(quoted ? name.substr(1, name.size() - 2) : name);
}

/// A word behind the table's name that makes the query one over several tables or of grouped rows.
bool Joins_Or_Groups(std::string_view word, bool in_conditions) {
  if (word == ",") return !in_conditions;
  for (auto other : {"JOIN", "INNER", "LEFT", "RIGHT", "UNION", "GROUP", "HAVING", "LIMIT", "AS"})
    if (same_text(word, other)) return true;
  return false;
}

}  // namespace

SingleTableQuery Split_Query(std::string_view sql) {
  SingleTableQuery query;
  size_t select_end = 0, from_start = 0, table_end = 0;
  int depth = 0;
  bool in_conditions = false;
  for (Pieces piece(sql); piece.next();) {
    if (piece.is_blank()) continue;
    auto text = piece.text();
    if (!select_end) {
      if (!same_text(text, "SELECT")) return {};
      select_end = piece.end();
    } else if (!from_start) {
      if (text == "(" || same_text(text, "DISTINCT")) return {};
      if (same_text(text, "FROM")) from_start = piece.start();
    } else if (query.table.empty()) {
      if (text == "(") return {};
      query.table = Without_Quotes(text);
      table_end = piece.end();
    } else {
      depth += text == "(" ? 1 : text == ")" ? -1 : 0;
      if (depth == 0 && Joins_Or_Groups(text, in_conditions)) return {};
      in_conditions = in_conditions || same_text(text, "WHERE") || same_text(text, "ORDER");
    }
  }
  if (query.table.empty()) return {};
  query.columns = trim(sql.substr(select_end, from_start - select_end));
  query.rest = sql.substr(table_end);
  return query;
}

}  // namespace tallymere::store
