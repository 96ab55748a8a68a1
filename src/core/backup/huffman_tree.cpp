#include "core/backup/huffman_tree.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>
#include <type_traits>

namespace tallymere {
namespace {

static_assert(std::endian::native == std::endian::little, "words are stored and loaded with the first bit lowest");

using Nodes = std::vector<HuffmanNode>;

bool Bit_At(std::span<const std::uint8_t> bytes, std::size_t bit) { return (bytes[bit >> 3] >> (bit & 7)) & 1; }

Nodes Make_Leaves(const ByteCounts& counts) {
  Nodes nodes;
  nodes.reserve(kMaxHuffmanNodes);
  for (std::size_t value = 0; value < counts.size(); ++value) {
    if (counts[value] == 0) continue;
    nodes.push_back({.Value = static_cast<std::int16_t>(value), .Weight = static_cast<std::int32_t>(counts[value])});
  }
  return nodes;
}

struct Picks {
  std::int16_t FirstPick = -1;
  std::int16_t SecondPick = -1;
};

/// The two lightest parentless nodes. Which of two equal weights wins, and which pick it lands in, decides
/// the bits of every file, so the order of these comparisons may not change.
Picks Pick_Lightest(const Nodes& nodes) {
  Picks picks;
  const auto weight = [&](std::int16_t node) { return nodes[static_cast<std::size_t>(node)].Weight; };
  for (std::int16_t i = 0; i < static_cast<std::int16_t>(nodes.size()); ++i) {
    if (nodes[static_cast<std::size_t>(i)].ParentIndex != -1) continue;
    if (picks.FirstPick == -1) {
      picks.FirstPick = i;
    } else if (picks.SecondPick == -1) {
      picks.SecondPick = i;
    } else if (weight(i) < weight(picks.FirstPick)) {
      const bool second_is_heavier = weight(picks.FirstPick) < weight(picks.SecondPick);
      (second_is_heavier ? picks.SecondPick : picks.FirstPick) = i;
    } else if (weight(i) < weight(picks.SecondPick)) {
      picks.SecondPick = i;
    }
  }
  return picks;
}

void Join_Lightest(Nodes& nodes) {
  const auto [zero, one] = Pick_Lightest(nodes);
  auto& zero_node = nodes[static_cast<std::size_t>(zero)];
  auto& one_node = nodes[static_cast<std::size_t>(one)];
  zero_node.ParentIndex = one_node.ParentIndex = static_cast<std::int16_t>(nodes.size());
  nodes.push_back({.OneChild = one, .ZeroChild = zero, .Weight = zero_node.Weight + one_node.Weight});
}

void AssignCodes(const Nodes& nodes, std::int16_t index, BitSequence code, ByteCodes& codes) {
  const auto& node = nodes[static_cast<std::size_t>(index)];
  if (node.Value > -1) {
    codes[static_cast<std::size_t>(node.Value)] = code;
    return;
  }
  const auto next = static_cast<std::uint8_t>(code.Count + 1);
  AssignCodes(nodes, node.ZeroChild, {code.Data, next}, codes);
  AssignCodes(nodes, node.OneChild, {code.Data | std::uint64_t{1} << code.Count, next}, codes);
}

/// Bits that fit into a word beside up to 7 waiting ones without filling it.
constexpr unsigned kBitsPerFlush = 56;

/// Codes to gather between two flushes. A code of n bits needs data of at least Fibonacci(n + 2) bytes, so
/// below 2^31 bytes none is longer than 44 bits and the answer is never 0.
std::size_t Codes_Per_Flush(const ByteCodes& codes) {
  const unsigned longest = std::ranges::max(codes, {}, &BitSequence::Count).Count;
  assert(longest <= kBitsPerFlush);
  return std::min(kBitsPerFlush / std::max(longest, 1U), 4U);
}

}  // namespace

ByteCodes Build_Codes(const ByteCounts& counts) {
  ByteCodes codes;
  auto nodes = Make_Leaves(counts);
  if (nodes.empty()) return codes;
  for (auto parentless = nodes.size(); parentless > 1; --parentless) Join_Lightest(nodes);
  AssignCodes(nodes, static_cast<std::int16_t>(nodes.size() - 1), {}, codes);
  return codes;
}

void BitWriter::Flush() {
  std::memcpy(to_, &bits_, sizeof bits_);
  to_ += used_ >> 3;
  bits_ >>= used_ & ~7U;
  used_ &= 7;
}

void BitWriter::Put_Bytes(std::span<const std::uint8_t> data, const ByteCodes& codes) {
  BitWriter local = *this;  // a copy the compiler can keep in registers
  const std::uint8_t* from = data.data();
  const std::uint8_t* const end = from + data.size();
  const auto put = [&]<std::size_t kAtOnce>(std::integral_constant<std::size_t, kAtOnce>) {
    for (; end - from >= static_cast<std::ptrdiff_t>(kAtOnce); from += kAtOnce) {
      for (std::size_t i = 0; i < kAtOnce; ++i) local.Gather(codes[from[i]]);
      local.Flush();
    }
  };
  const auto at_once = Codes_Per_Flush(codes);
  if (at_once >= 4) put(std::integral_constant<std::size_t, 4>{});
  if (at_once >= 3) put(std::integral_constant<std::size_t, 3>{});
  if (at_once >= 2) put(std::integral_constant<std::size_t, 2>{});
  put(std::integral_constant<std::size_t, 1>{});
  *this = local;
}

std::uint8_t* BitWriter::End_Byte() {
  used_ = (used_ + 7) & ~7U;
  Flush();
  return to_;
}

std::optional<HuffmanDecoder> HuffmanDecoder::From_Table(const std::array<std::uint8_t, 256>& lengths,
                                                         std::span<const std::uint8_t> codes) {
  HuffmanDecoder decoder;
  decoder.nodes_.emplace_back();
  std::size_t bit = 0;
  for (std::size_t value = 0; value < lengths.size(); ++value) {
    if (!decoder.InsertCode(static_cast<std::int16_t>(value), codes, bit, lengths[value])) return std::nullopt;
    bit += lengths[value];
  }
  decoder.Fill_Lookup();
  return decoder;
}

std::int16_t HuffmanDecoder::Child_For_Insert(std::int16_t node, bool one) {
  const auto child = [&]() -> std::int16_t& {
    auto& parent = nodes_[static_cast<std::size_t>(node)];
    return one ? parent.OneChild : parent.ZeroChild;
  };
  if (child() == -1) {
    if (nodes_.size() == kMaxHuffmanNodes) return -1;
    child() = static_cast<std::int16_t>(nodes_.size());
    nodes_.push_back({.ParentIndex = node});
  }
  return child();
}

/// False when the code begins with another code or another begins with it. An empty code leaves no trace:
/// reading takes a bit before it looks at a value.
bool HuffmanDecoder::InsertCode(std::int16_t value, std::span<const std::uint8_t> codes, std::size_t bit,
                                std::size_t count) {
  if (count == 0) return true;
  std::int16_t index = 0;
  for (const auto end = bit + count; bit < end; ++bit) {
    index = Child_For_Insert(index, Bit_At(codes, bit));
    if (index == -1 || nodes_[static_cast<std::size_t>(index)].Value > -1) return false;
  }
  auto& leaf = nodes_[static_cast<std::size_t>(index)];
  leaf.Value = value;
  return leaf.ZeroChild == -1 && leaf.OneChild == -1;
}

void HuffmanDecoder::Fill_Lookup() {
  lookup_.resize(std::size_t{1} << kLookupBits);
  for (std::uint32_t pattern = 0; pattern < lookup_.size(); ++pattern) lookup_[pattern] = Walk_Pattern(pattern);
}

HuffmanDecoder::Entry HuffmanDecoder::Walk_Pattern(std::uint32_t pattern) const {
  Entry entry;
  std::int16_t index = 0;
  for (unsigned bit = 0; bit < kLookupBits && entry.count < kMaxSymbols; ++bit) {
    const auto& parent = nodes_[static_cast<std::size_t>(index)];
    index = (pattern >> bit) & 1 ? parent.OneChild : parent.ZeroChild;
    if (index == -1) break;
    const auto value = nodes_[static_cast<std::size_t>(index)].Value;
    if (value == -1) continue;
    entry.symbols[entry.count++] = static_cast<std::uint8_t>(value);
    entry.bits = static_cast<std::uint8_t>(bit + 1);
    index = 0;
  }
  return entry;
}

/// Stops early, near either end, where a whole word could not be loaded or stored safely.
void HuffmanDecoder::Decode_Fast(std::size_t until, std::span<const std::uint8_t> in, std::span<std::uint8_t> out,
                                 DecodePosition& at) const {
  constexpr unsigned kPerWord = 57 / kLookupBits;
  constexpr std::size_t kRoom = (kPerWord - 1) * kMaxSymbols + sizeof(Entry);
  static_assert(sizeof(Entry) == 8);
  DecodePosition now = at;
  while (now.bit < until && (now.bit >> 3) + 8 <= in.size() && now.done + kRoom <= out.size()) {
    std::uint64_t word;
    std::memcpy(&word, in.data() + (now.bit >> 3), sizeof word);
    word >>= now.bit & 7;
    for (unsigned i = 0; i < kPerWord; ++i) {
      const Entry entry = lookup_[word & ((1U << kLookupBits) - 1)];
      if (entry.count == 0) {
        if (!Decode_One(in, out, now)) until = 0;
        break;
      }
      std::memcpy(out.data() + now.done, &entry, sizeof entry);
      now.done += entry.count;
      now.bit += entry.bits;
      word >>= entry.bits;
    }
  }
  at = now;
}

bool HuffmanDecoder::Decode_One(std::span<const std::uint8_t> in, std::span<std::uint8_t> out,
                                DecodePosition& at) const {
  std::int16_t index = 0;
  for (auto bit = at.bit; bit < in.size() * 8; ++bit) {
    const auto& parent = nodes_[static_cast<std::size_t>(index)];
    index = Bit_At(in, bit) ? parent.OneChild : parent.ZeroChild;
    if (index == -1) return false;
    const auto value = nodes_[static_cast<std::size_t>(index)].Value;
    if (value == -1) continue;
    out[at.done++] = static_cast<std::uint8_t>(value);
    at.bit = bit + 1;
    return true;
  }
  return false;
}

bool HuffmanDecoder::Decode_Until(std::size_t until, std::span<const std::uint8_t> in, std::span<std::uint8_t> out,
                                  DecodePosition& at) const {
  Decode_Fast(until, in, out, at);
  while (at.bit < until && at.done < out.size()) {
    if (!Decode_One(in, out, at)) return false;
  }
  return true;
}

}  // namespace tallymere
