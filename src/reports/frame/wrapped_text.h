#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallymere {

/// The words between which a text may be broken; "<-Break Down->" is one.
std::vector<std::string_view> Words(std::string_view text);

/// How wide a text is, in whatever the renderer measures.
using Text_Width = std::function<double(std::string_view)>;

/// A text in lines no wider than the room: broken where it has line ends, else between words, and within a word
/// only where that alone is too wide. Of more lines than `most` the rest is left out, and the last one says so
/// with "…".
std::vector<std::string> Wrapped(std::string_view text, double room, size_t most, const Text_Width& width_of);

}  // namespace tallymere
