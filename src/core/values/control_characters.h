#pragma once

#include <string>
#include <string_view>

namespace tallymere {

/// Whether a UTF-8 text holds what is no letter but an order to a screen: control characters and line ends of all
/// kinds.
bool has_control_characters(std::string_view text);

/// The text in one line that gives a terminal no orders: "a\nb" with a backslash and an n, "\x1b" for the rest.
std::string in_one_plain_line(std::string_view text);

}  // namespace tallymere
