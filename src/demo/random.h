#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace tallymere::demo {

/// xoshiro256** seeded through splitmix64: the same figures from the same seed with every compiler and
/// library.
class Random {
 public:
  explicit Random(uint32_t seed) {
    uint64_t x = seed;
    for (uint64_t& word : state_) word = Mix(x += 0x9E3779B97F4A7C15ULL);
  }

  uint64_t next() {
    const uint64_t result = Rotated(state_[1] * 5, 7) * 9;
    const uint64_t shifted = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = Rotated(state_[3], 45);
    return result;
  }

  /// 0 to count - 1.
  int below(int count) { return static_cast<int>(((next() >> 32) * static_cast<uint64_t>(count)) >> 32); }
  int between(int low, int high) { return low + below(high - low + 1); }
  bool chance(int percent) { return below(100) < percent; }

  template <typename T, size_t n>
  T& pick(std::span<T, n> choices) {
    return choices[static_cast<size_t>(below(static_cast<int>(choices.size())))];
  }
  template <typename Container>
  auto& pick(Container& choices) {
    return pick(std::span(choices));
  }

  /// Changes one number into another without rhyme, for traits that hang on a number and not on an order.
  static uint64_t Mix(uint64_t x) {
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
    return x ^ (x >> 31);
  }

 private:
  static uint64_t Rotated(uint64_t x, int by) { return (x << by) | (x >> (64 - by)); }
  std::array<uint64_t, 4> state_{};
};

}  // namespace tallymere::demo
