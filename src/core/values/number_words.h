#pragma once

#include <string>

namespace tallymere {

/// The number words, loaded when a company comes up, for amounts in words.
struct NumberWords {
  std::string One, Two, Three, Four, Five, Six, Seven, Eight, Nine, Ten, Eleven, Twelve, Thirteen, Fourteen, Fifteen,
      Sixteen, Seventeen, Eighteen, Nineteen, Twenty, Thirty, Forty, Fifty, Sixty, Seventy, Eighty, Ninety, Hundred,
      Thousand, Million;
};

void Load_Number_Words(NumberWords& words);

}  // namespace tallymere
