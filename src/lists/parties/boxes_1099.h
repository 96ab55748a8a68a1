#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The boxes of the 1099 forms that a vendor's payments go to.
namespace tallymere {

enum class Form1099 { INT = 0, MISC = 1 };

/// The rows of lstBoxes, with the number of each box: "1: Rents:".
std::span<const std::string_view> Box_Rows(Form1099 form);

/// What `Boxes` keeps of the rows that are selected: their names, each followed by ",", and a ";" at the end.
std::string Boxes_Text(const std::vector<std::string>& rows);

/// The rows of a form that such a text selects: those that contain one of its names.
std::vector<std::string> Selected_Boxes(std::string_view boxes, Form1099 form);

}  // namespace tallymere
