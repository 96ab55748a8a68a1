#include "lists/parties/boxes_1099.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {
namespace {

// As they are stored and compared, slips of the pen included.
constexpr std::string_view interest[] = {"1: Intrest Income:", "2: Early withdrawl penalty",
                                         "3: Intrest on U.S. Savings Bonds", "5: Investments expenses",
                                         "6: Foreign tax paid"};
constexpr std::string_view miscellaneous[] = {"1: Rents:",
                                              "2: Royalties",
                                              "3: Other Income",
                                              "4: Federal Income Tax withheld",
                                              "5: Fishing Boat proceeds",
                                              "6: Medical health care Payments",
                                              "7: Nonemployee compensation",
                                              "8: Substitute payments in lieu of dividens or interest",
                                              "10: Crop insurance proceeds",
                                              "13: Excess golden parachute payments",
                                              "14: Gross proceeds paid to an attorney"};

/// Behind the number: "Rents:" of "1: Rents:".
std::string_view Name_Of(std::string_view row) {
  const size_t colon = row.find(':');
  return colon == std::string_view::npos ? row : row.substr(std::min(colon + 2, row.size()));
}

std::vector<std::string> Names_In(std::string_view boxes) {
  auto names = split(boxes.substr(0, boxes.find(';')), ",");
  std::erase_if(names, [](const std::string& name) { return trim(name).empty(); });
  return names;
}

}  // namespace

std::span<const std::string_view> Box_Rows(Form1099 form) {
  if (form == Form1099::INT) return interest;
  return miscellaneous;
}

std::string Boxes_Text(const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows) text += std::string(Name_Of(row)) + ",";
  return text + ";";
}

std::vector<std::string> Selected_Boxes(std::string_view boxes, Form1099 form) {
  const auto names = Names_In(boxes);
  std::vector<std::string> selected;
  for (const std::string_view row : Box_Rows(form))
    if (std::ranges::any_of(names, [&](const std::string& name) { return contains(row, name); }))
      selected.emplace_back(row);
  return selected;
}

}  // namespace tallymere
