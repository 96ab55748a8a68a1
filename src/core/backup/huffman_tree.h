#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tallymere {

/// One node of the code tree. -1 stands for "none" in every index and in `Value` of an inner node.
struct HuffmanNode {
  std::int16_t ParentIndex = -1;
  std::int16_t OneChild = -1;
  std::int16_t ZeroChild = -1;
  std::int16_t Value = -1;
  std::int32_t Weight = 0;
};

/// The code of one byte value; the first bit is the lowest bit of `Data`.
struct BitSequence {
  std::uint64_t Data = 0;
  std::uint8_t Count = 0;
};

using ByteCounts = std::array<std::uint32_t, 256>;
using ByteCodes = std::array<BitSequence, 256>;

/// Room for 256 leaves and 255 inner nodes; no complete code needs more.
inline constexpr std::size_t kMaxHuffmanNodes = 512;

/// The code for data with these occurrences; their sum must be at most 2^31-1. The choice among equal weights
/// is fixed, so the same data always gives the same bytes. A single value gets an empty code.
ByteCodes Build_Codes(const ByteCounts& counts);

/// Appends bits to a byte range, filling each byte from its lowest bit. The range must reach 8 bytes beyond
/// the last byte that is used, because whole words are stored.
class BitWriter {
 public:
  explicit BitWriter(std::uint8_t* to) : to_(to) {}

  void Put_Code(BitSequence code) {
    Gather(code);
    Flush();
  }
  void Put_Bytes(std::span<const std::uint8_t> data, const ByteCodes& codes);

  /// Pads the last byte with zero bits; returns where the next byte goes.
  std::uint8_t* End_Byte();

 private:
  void Gather(BitSequence code) {
    bits_ |= code.Data << used_;
    used_ += code.Count;
  }
  void Flush();

  std::uint8_t* to_;
  std::uint64_t bits_ = 0;
  unsigned used_ = 0;  // below 8 between calls
};

/// How far a decoder has come: bits of the input read, bytes of the output written.
struct DecodePosition {
  std::size_t bit = 0;
  std::size_t done = 0;
};

/// Reads codes back. Never reads outside the input nor writes outside the output, whatever the codes are.
class HuffmanDecoder {
 public:
  /// Takes 256 code lengths in bits and the codes themselves, run together from the start of `codes`, which
  /// must hold them all. Nothing when the codes contradict each other or fit no tree of `kMaxHuffmanNodes`.
  static std::optional<HuffmanDecoder> From_Table(const std::array<std::uint8_t, 256>& lengths,
                                                  std::span<const std::uint8_t> codes);

  /// Decodes from `at` until bit `until` of `in` is reached or `out` is full. False when the bits run out or
  /// lead to no value; `at.done` then counts the bytes that could be read.
  bool Decode_Until(std::size_t until, std::span<const std::uint8_t> in, std::span<std::uint8_t> out,
                    DecodePosition& at) const;

 private:
  static constexpr unsigned kLookupBits = 11;
  static constexpr unsigned kMaxSymbols = 6;

  /// All whole codes within the next `kLookupBits` bits; none when the first code is longer or leads nowhere.
  struct Entry {
    std::array<std::uint8_t, kMaxSymbols> symbols{};
    std::uint8_t count = 0;
    std::uint8_t bits = 0;
  };

  bool InsertCode(std::int16_t value, std::span<const std::uint8_t> codes, std::size_t bit, std::size_t count);
  std::int16_t Child_For_Insert(std::int16_t node, bool one);
  void Fill_Lookup();
  Entry Walk_Pattern(std::uint32_t pattern) const;
  void Decode_Fast(std::size_t until, std::span<const std::uint8_t> in, std::span<std::uint8_t> out,
                   DecodePosition& at) const;
  bool Decode_One(std::span<const std::uint8_t> in, std::span<std::uint8_t> out, DecodePosition& at) const;

  std::vector<HuffmanNode> nodes_;
  std::vector<Entry> lookup_;
};

}  // namespace tallymere
