#pragma once

#include <array>
#include <string_view>

namespace tallymere {

/// The fifty states and the District of Columbia, by their letters, with their number in federal forms (FIPS 5-2).
struct UsState {
  std::string_view letters;
  std::string_view name;
  std::string_view fips;
};
inline constexpr std::array<UsState, 51> us_states = {{
    {"AK", "Alaska", "02"},         {"AL", "Alabama", "01"},
    {"AR", "Arkansas", "05"},       {"AZ", "Arizona", "04"},
    {"CA", "California", "06"},     {"CO", "Colorado", "08"},
    {"CT", "Connecticut", "09"},    {"DC", "District of Columbia", "11"},
    {"DE", "Delaware", "10"},       {"FL", "Florida", "12"},
    {"GA", "Georgia", "13"},        {"HI", "Hawaii", "15"},
    {"IA", "Iowa", "19"},           {"ID", "Idaho", "16"},
    {"IL", "Illinois", "17"},       {"IN", "Indiana", "18"},
    {"KS", "Kansas", "20"},         {"KY", "Kentucky", "21"},
    {"LA", "Louisiana", "22"},      {"MA", "Massachusetts", "25"},
    {"MD", "Maryland", "24"},       {"ME", "Maine", "23"},
    {"MI", "Michigan", "26"},       {"MN", "Minnesota", "27"},
    {"MO", "Missouri", "29"},       {"MS", "Mississippi", "28"},
    {"MT", "Montana", "30"},        {"NC", "North Carolina", "37"},
    {"ND", "North Dakota", "38"},   {"NE", "Nebraska", "31"},
    {"NH", "New Hampshire", "33"},  {"NJ", "New Jersey", "34"},
    {"NM", "New Mexico", "35"},     {"NV", "Nevada", "32"},
    {"NY", "New York", "36"},       {"OH", "Ohio", "39"},
    {"OK", "Oklahoma", "40"},       {"OR", "Oregon", "41"},
    {"PA", "Pennsylvania", "42"},   {"RI", "Rhode Island", "44"},
    {"SC", "South Carolina", "45"}, {"SD", "South Dakota", "46"},
    {"TN", "Tennessee", "47"},      {"TX", "Texas", "48"},
    {"UT", "Utah", "49"},           {"VA", "Virginia", "51"},
    {"VT", "Vermont", "50"},        {"WA", "Washington", "53"},
    {"WI", "Wisconsin", "55"},      {"WV", "West Virginia", "54"},
    {"WY", "Wyoming", "56"},
}};

/// By its letters or its name, in any case; nullptr when it is none.
const UsState* Find_State(std::string_view letters_or_name);

}  // namespace tallymere
