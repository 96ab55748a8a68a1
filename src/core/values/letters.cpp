#include "core/values/letters.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallymere {
namespace {

struct Run {
  char32_t first, last, step;
  int distance;
};
constexpr Run runs[] = {
#include "core/values/letter_cases.inc"
};

constexpr char32_t beyond_all = 0x110000;  ///< and a byte that is no letter: it stays the byte it was

/// The bits of a letter's byte that follow its first, or none.
int Bits_Of(std::string_view text, size_t at) {
  const unsigned byte = at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
  return (byte & 0xc0) == 0x80 ? static_cast<int>(byte & 0x3f) : -1;
}

}  // namespace

char32_t folded(char32_t letter) {
  if (letter < 0x80) return letter - 'A' < 26 ? letter + ('a' - 'A') : letter;
  const Run* run = std::ranges::upper_bound(runs, letter, {}, &Run::first);
  if (run == std::begin(runs)) return letter;
  --run;
  const bool moves = letter <= run->last && (letter - run->first) % run->step == 0;
  return moves ? letter + static_cast<char32_t>(run->distance) : letter;
}

char32_t Letters::next_long() {
  const auto byte = static_cast<unsigned char>(text_[at_]);
  const int more = byte >= 0xf0 && byte < 0xf5   ? 3
                   : byte >= 0xe0 && byte < 0xf0 ? 2
                   : byte >= 0xc2 && byte < 0xe0 ? 1
                                                 : 0;
  constexpr std::array<char32_t, 4> least = {0, 0x80, 0x800, 0x10000};
  char32_t letter = byte & (0x3f >> more);
  int read = 0;
  for (int bits; read < more && (bits = Bits_Of(text_, at_ + 1 + static_cast<size_t>(read))) >= 0; ++read)
    letter = letter << 6 | static_cast<char32_t>(bits);
  const bool whole = more > 0 && read == more && letter >= least[static_cast<size_t>(more)] && letter < beyond_all;
  at_ += whole ? static_cast<size_t>(more) + 1 : 1;
  return whole ? letter : beyond_all + byte;
}

void append_letter(std::string& text, char32_t letter) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | (letter >> shift & 0x3f)); };
  if (letter >= beyond_all) {
    text += static_cast<char>(letter - beyond_all);
  } else if (letter < 0x80) {
    text += static_cast<char>(letter);
  } else if (letter < 0x800) {
    text += static_cast<char>(0xc0 | letter >> 6), tail(0);
  } else if (letter < 0x10000) {
    text += static_cast<char>(0xe0 | letter >> 12), tail(6), tail(0);
  } else {
    text += static_cast<char>(0xf0 | letter >> 18), tail(12), tail(6), tail(0);
  }
}

int compare_same_text(std::string_view a, std::string_view b) {
  Letters one(a), other(b);
  while (!one.at_end() && !other.at_end()) {
    const char32_t x = one.next_folded(), y = other.next_folded();
    if (x != y) return x < y ? -1 : 1;
  }
  return static_cast<int>(other.at_end()) - static_cast<int>(one.at_end());
}

bool like_text(std::string_view pattern, std::string_view text, char32_t escape) {
  Letters wanted(pattern), found(text);
  Letters after_any = wanted, retry = found;  // where the last '%' was, to let it stand for one letter more
  bool any = false;
  while (true) {
    Letters here = wanted;
    const char32_t sign = here.at_end() ? 0 : here.next();
    const bool escaped = escape != 0 && sign == escape && !here.at_end();
    const char32_t letter = escaped ? here.next() : sign;
    if (!wanted.at_end() && !escaped && sign == '%') {
      wanted = after_any = here, retry = found, any = true;
      continue;
    }
    if (wanted.at_end() && found.at_end()) return true;
    Letters next = found;
    const bool one_more = !wanted.at_end() && !found.at_end();
    if (one_more && (next.next_folded() == folded(letter) || (!escaped && sign == '_'))) {
      wanted = here, found = next;
      continue;
    }
    if (!any || retry.at_end()) return false;
    retry.next(), found = retry, wanted = after_any;
  }
}

}  // namespace tallymere
