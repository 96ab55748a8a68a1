#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallymere {

// Helpers for UTF-8 text. Case is that of all scripts, one letter for one letter, as the store compares: "école" is
// "ÉCOLE".
std::string folded(std::string_view text);               // what equals and orders texts without case; not for the eye
bool same_text(std::string_view a, std::string_view b);  // equal but for case
bool starts_with_same_text(std::string_view text, std::string_view start);  // begins so, but for case
// How many bytes of a text are that beginning, which need not be as long as `start` is.
std::optional<size_t> same_text_start(std::string_view text, std::string_view start);
std::string upper(std::string_view text);                     // of ASCII letters only: for names that machines give
bool contains(std::string_view text, std::string_view part);  // case counts; every text contains ""

// Blanks, tabs and line ends at both ends, or at the start only.
std::string trim(std::string_view text);
std::string ltrim(std::string_view text);

// One part more than there are separators, empty parts included; empty text is one empty part.
// An empty separator does not split.
std::vector<std::string> split(std::string_view text, std::string_view separator);
std::string join(const std::vector<std::string>& parts, std::string_view separator);

// Left to right, without looking again at what was put in. An empty `from` changes nothing.
std::string replace_all(std::string_view text, std::string_view from, std::string_view to);

// "O'Brien" becomes "O''Brien", for a text inside '...'.
std::string doubled_quotes(std::string_view text);

// Whether the whole text reads as one number: blanks around it, a sign and a "$" in either order, digits with
// commas anywhere between the first digit and the point, at most one point, at least one digit.
bool is_numeric(std::string_view text);

}  // namespace tallymere
