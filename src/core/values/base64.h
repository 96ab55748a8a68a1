#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallymere {

// Bytes as text of letters and digits, for places that hold only text.
std::string To_Base64(std::string_view bytes);
// Nothing for what is no such text.
std::optional<std::string> From_Base64(std::string_view text);

}  // namespace tallymere
