#pragma once

#include <string>
#include <string_view>

namespace tallymere {

/// What a field of the company is called on screen and paper, in words: "Due Date", "PO #". Fields that only
/// run their words together need no row of their own.
std::string Field_Caption(std::string_view field);

}  // namespace tallymere
