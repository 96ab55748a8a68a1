#include "core/values/number_words.h"

namespace tallymere {

void Load_Number_Words(NumberWords& words) {
  words = {"One",       "Two",      "Three",    "Four",    "Five",     "Six",      "Seven",   "Eight",
           "Nine",      "Ten",      "Eleven",   "Twelve",  "Thirteen", "Fourteen", "Fifteen", "Sixteen",
           "Seventeen", "Eighteen", "Nineteen", "Twenty",  "Thirty",   "Forty",    "Fifty",   "Sixty",
           "Seventy",   "Eighty",   "Ninety",   "Hundred", "Thousand", "Million"};
}

}  // namespace tallymere
