#include "core/backup/clsHuffman.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <optional>
#include <span>
#include <system_error>

#include "core/backup/huffman_tree.h"
#include "core/backup/whole_file.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;
using ByteSpan = std::span<const std::uint8_t>;

constexpr std::array<std::uint8_t, 4> kCompressed{'H', 'E', '3', '\r'};
constexpr std::array<std::uint8_t, 4> kStored{'H', 'E', '0', '\r'};
constexpr std::size_t kMaxLength = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t kMaxOverhead = 1 << 16;  // header and code table
constexpr std::size_t kChecksumAt = 4, kLengthAt = 5, kPairCountAt = 9, kPairsAt = 11;

HuffmanError Too_Long(std::string_view source) {
  return {source, "The data is too long for HE3 (2147483647 bytes at most)"};
}

HuffmanError Corrupt(const std::string& why) {
  return {"clsHuffman.Decode()", "The data might be corrupted (" + why + ")"};
}

HuffmanError Wrong_Checksum() { return Corrupt("checksum did not match expected value"); }

/// Raises the owner's event, but not twice in a row with the same value.
class ProgressReport {
 public:
  explicit ProgressReport(const std::function<void(int)>& raise) : raise_(raise) {}

  void operator()(double percent) {
    const int value = static_cast<int>(std::floor(percent));
    if (value == last_ || !raise_) return;
    last_ = value;
    raise_(value);
  }

 private:
  const std::function<void(int)>& raise_;
  int last_ = -1;
};

/// Hands the bytes to `work` in blocks; before each, `percent` of the part that is done is reported.
template <class Percent, class Work>
void In_Blocks(ByteSpan bytes, std::size_t block, ProgressReport& progress, Percent percent, Work work) {
  for (std::size_t i = 0; i < bytes.size(); i += block) {
    progress(percent(static_cast<double>(i) / static_cast<double>(bytes.size())));
    work(bytes.subspan(i, std::min(block, bytes.size() - i)));
  }
}

ByteCounts Count_Bytes(ByteSpan bytes, ProgressReport& progress) {
  std::array<ByteCounts, 4> lanes{};  // four counters a value: a run of one byte need not wait for its own sum
  const auto count = [&](ByteSpan block) {
    std::size_t i = 0;
    for (; i + 4 <= block.size(); i += 4) {
      for (std::size_t lane = 0; lane < 4; ++lane) ++lanes[lane][block[i + lane]];
    }
    for (; i < block.size(); ++i) ++lanes[0][block[i]];
  };
  In_Blocks(
      bytes, 1000, progress, [](double part) { return part * 7; }, count);
  ByteCounts counts;
  for (std::size_t value = 0; value < counts.size(); ++value)
    counts[value] = lanes[0][value] + lanes[1][value] + lanes[2][value] + lanes[3][value];
  return counts;
}

template <class Percent>
std::uint8_t Checksum(ByteSpan bytes, ProgressReport& progress, Percent percent) {
  std::uint64_t sum = 0;
  In_Blocks(bytes, 10000, progress, percent, [&](ByteSpan block) {
    for (; block.size() >= sizeof sum; block = block.subspan(sizeof sum)) {
      std::uint64_t word;
      std::memcpy(&word, block.data(), sizeof word);
      sum ^= word;
    }
    for (const auto byte : block) sum ^= byte;
  });
  for (unsigned fold = 32; fold >= 8; fold /= 2) sum ^= sum >> fold;
  return static_cast<std::uint8_t>(sum);
}

void Put_Number(std::uint8_t* to, std::size_t value, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) to[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::size_t Get_Number(const std::uint8_t* from, std::size_t width) {
  std::size_t value = 0;
  for (std::size_t i = 0; i < width; ++i) value |= std::size_t{from[i]} << (8 * i);
  return value;
}

constexpr std::size_t Whole_Bytes(std::size_t bits) { return (bits + 7) / 8; }

/// The sizes that decide how, and into how much room, data is written.
struct CodeSizes {
  std::size_t values = 0, table_bytes = 0, data_bytes = 0;

  CodeSizes(const ByteCounts& counts, const ByteCodes& codes) {
    std::size_t table_bits = 0, data_bits = 0;
    for (std::size_t value = 0; value < counts.size(); ++value) {
      if (counts[value] == 0) continue;
      ++values;
      table_bits += codes[value].Count;
      data_bits += std::size_t{counts[value]} * codes[value].Count;
    }
    table_bytes = Whole_Bytes(table_bits);
    data_bytes = Whole_Bytes(data_bits);
  }
  std::size_t total() const { return kPairsAt + 2 * values + table_bytes + data_bytes; }
};

Bytes Store(ByteSpan bytes) {
  Bytes stored(kStored.size() + bytes.size());
  std::ranges::copy(kStored, stored.begin());
  std::ranges::copy(bytes, stored.begin() + kStored.size());
  return stored;
}

std::uint8_t* Write_Table(std::uint8_t* to, const ByteCodes& codes) {
  for (std::size_t value = 0; value < codes.size(); ++value) {
    if (codes[value].Count == 0) continue;
    *to++ = static_cast<std::uint8_t>(value);
    *to++ = codes[value].Count;
  }
  BitWriter writer(to);
  for (const auto& code : codes) writer.Put_Code(code);
  return writer.End_Byte();
}

Bytes Compress(ByteSpan bytes, const ByteCodes& codes, const CodeSizes& sizes, ProgressReport& progress) {
  Bytes out(sizes.total() + sizeof(std::uint64_t));  // the writer stores whole words
  std::ranges::copy(kCompressed, out.begin());
  out[kChecksumAt] = Checksum(bytes, progress, [](double part) { return part * 5 + 7; });
  Put_Number(&out[kLengthAt], bytes.size(), 4);
  Put_Number(&out[kPairCountAt], sizes.values, 2);
  BitWriter writer(Write_Table(&out[kPairsAt], codes));
  In_Blocks(
      bytes, 10000, progress, [](double part) { return part * 88 + 5 + 7; },
      [&](ByteSpan block) { writer.Put_Bytes(block, codes); });
  writer.End_Byte();
  out.resize(sizes.total());
  return out;
}

/// What stands before the data bits of a compressed array.
struct CodeTable {
  std::size_t data_at = 0;
  std::array<std::uint8_t, 256> lengths{};
  ByteSpan codes;

  std::size_t shortest() const {
    std::size_t least = 0;
    for (const std::size_t length : lengths)
      if (length != 0 && (least == 0 || length < least)) least = length;
    return least;
  }
};

CodeTable Read_Table(ByteSpan in) {
  if (in.size() < kPairsAt) throw Corrupt("it ends within its header");
  const auto pairs = Get_Number(&in[kPairCountAt], 2);
  if (pairs > 256) throw Corrupt("its code table has more than 256 values");
  auto rest = in.subspan(kPairsAt);
  if (rest.size() < 2 * pairs) throw Corrupt("it ends within its code table");
  CodeTable table;
  for (std::size_t i = 0; i < pairs; ++i) table.lengths[rest[2 * i]] = rest[2 * i + 1];
  rest = rest.subspan(2 * pairs);
  std::size_t bits = 0;
  for (const auto length : table.lengths) bits += length;
  if (rest.size() < Whole_Bytes(bits)) throw Corrupt("it ends within its code table");
  table.codes = rest.first(Whole_Bytes(bits));
  table.data_at = in.size() - rest.size() + table.codes.size();
  return table;
}

/// Fills `out`, reporting after each 10,000th position of the input.
void Decode_Data(const HuffmanDecoder& decoder, ByteSpan in, std::size_t data_at, Bytes& out,
                 ProgressReport& progress) {
  constexpr std::size_t kBlock = 10000;
  DecodePosition at{.bit = data_at * 8};
  for (auto mark = (data_at + kBlock - 1) / kBlock * kBlock;; mark += kBlock) {
    // The last block also asks for a bit beyond the input, so that data cut short is noticed.
    if (!decoder.Decode_Until((mark + 1) * 8, in, out, at))
      throw Corrupt("it can be read only up to byte " + std::to_string(at.done) + " of " + std::to_string(out.size()));
    if (at.done == out.size()) return;
    progress(static_cast<double>(mark) / static_cast<double>(in.size()) * 89);
  }
}

Bytes Expand(ByteSpan in, std::size_t length, ProgressReport& progress) {
  const auto table = Read_Table(in);
  const auto decoder = HuffmanDecoder::From_Table(table.lengths, table.codes);
  if (!decoder) throw Corrupt("its code table is not a usable code");
  // Asked before the room is taken: a false length must not cost memory.
  const auto shortest = table.shortest();
  if (shortest == 0 || length > (in.size() - table.data_at) * 8 / shortest)
    throw Corrupt("it is too short for its stated length");
  Bytes out(length);
  Decode_Data(*decoder, in, table.data_at, out, progress);
  return out;
}

/// True for stored data. Bytes that do not look like an identification at all are let through, as they always
/// were.
bool Is_Stored(ByteSpan in) {
  if (in.size() < kCompressed.size()) throw Corrupt("it ends within its header");
  if (in[0] != kCompressed[0] || in[1] != kCompressed[1] || in[3] != kCompressed[3]) return false;
  if (in[2] == kStored[2]) return true;
  if (in[2] == kCompressed[2]) return false;
  throw HuffmanError("HuffmanDecode()",
                     "The data either was not compressed with HE3 or is corrupt (identification string not found)");
}

Bytes Read_Whole_File(const fs::path& path, std::size_t length, std::string_view source) {
  Bytes bytes(length);
  std::ifstream file(path, std::ios::binary);
  if (!file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(length)))
    throw HuffmanError(source, "Source file could not be read");
  return bytes;
}

void Write_File(const fs::path& path, const Bytes& bytes, const fs::path& becomes) {
  Write_Bytes(path, becomes, [&](std::ostream& out) {
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  });
}

void Replace_File(const fs::path& path, const Bytes& bytes) {
  FileAside aside(Folder_Of(path));
  Write_File(aside.path(), bytes, path);
  aside.replace(path);
}

}  // namespace

bool clsHuffman::FileExists(const fs::path& path, std::uintmax_t& length) {
  std::error_code fault;
  length = fs::file_size(path, fault);
  return !fault;
}

std::vector<std::uint8_t> clsHuffman::Encoded(const fs::path& source) const {
  constexpr std::string_view kSource = "clsHuffman.EncodeFile()";
  std::uintmax_t length;
  if (!FileExists(source, length)) throw HuffmanError(kSource, "Source file does not exist");
  if (length > kMaxLength) throw Too_Long(kSource);  // before it fills the memory
  auto bytes = Read_Whole_File(source, length, kSource);
  EncodeByte(bytes);
  return bytes;
}

std::vector<std::uint8_t> clsHuffman::Decoded(const fs::path& source) const {
  constexpr std::string_view kSource = "clsHuffman.DecodeFile()";
  std::uintmax_t length;
  if (!FileExists(source, length)) throw HuffmanError(kSource, "Source file does not exist");
  if (length > kMaxLength + kMaxOverhead) throw Too_Long(kSource);
  auto bytes = Read_Whole_File(source, length, kSource);
  DecodeByte(bytes);
  return bytes;
}

void clsHuffman::EncodeFile(const fs::path& source, const fs::path& destination) const {
  Replace_File(destination, Encoded(source));
}

void clsHuffman::DecodeFile(const fs::path& source, const fs::path& destination) const {
  Replace_File(destination, Decoded(source));
}

void clsHuffman::EncodeInto(const fs::path& source, const fs::path& aside, const fs::path& becomes) const {
  Write_File(aside, Encoded(source), becomes);
}

void clsHuffman::DecodeInto(const fs::path& source, const fs::path& aside, const fs::path& becomes) const {
  Write_File(aside, Decoded(source), becomes);
}

void clsHuffman::EncodeByte(Bytes& bytes) const {
  if (bytes.size() > kMaxLength) throw Too_Long("clsHuffman.Encode()");
  ProgressReport progress(Progress);
  const auto counts = Count_Bytes(bytes, progress);
  const auto codes = Build_Codes(counts);
  const CodeSizes sizes(counts, codes);
  // Headers and table do not count here: well-mixed data of exactly eight bits a byte is still coded.
  if (sizes.data_bytes > bytes.size() || sizes.data_bytes == 0) {
    bytes = Store(bytes);
    return;
  }
  bytes = Compress(bytes, codes, sizes, progress);
  progress(100);
}

/// False when the checksum does not match; the data is in place all the same.
bool clsHuffman::Decode_In_Place(Bytes& bytes) const {
  if (Is_Stored(bytes)) {
    bytes.erase(bytes.begin(), bytes.begin() + kStored.size());
    return true;
  }
  if (bytes.size() < kPairCountAt) throw Corrupt("it ends within its header");
  const auto checksum = bytes[kChecksumAt];
  const auto length = Get_Number(&bytes[kLengthAt], 4);
  if (length == 0) return true;
  if (length > kMaxLength) throw Corrupt("its stated length is negative");
  ProgressReport progress(Progress);
  bytes = Expand(bytes, length, progress);
  const bool sound = Checksum(bytes, progress, [](double part) { return part * 11 + 89; }) == checksum;
  if (sound) progress(100);
  return sound;
}

void clsHuffman::DecodeByte(Bytes& bytes) const {
  if (!Decode_In_Place(bytes)) throw Wrong_Checksum();
}

void clsHuffman::EncodeString(std::string& text) const {
  Bytes bytes(text.begin(), text.end());
  EncodeByte(bytes);
  text.assign(bytes.begin(), bytes.end());
}

void clsHuffman::DecodeString(std::string& text) const {
  Bytes bytes(text.begin(), text.end());
  const bool sound = Decode_In_Place(bytes);
  text.assign(bytes.begin(), bytes.end());
  if (!sound) throw Wrong_Checksum();
}

}  // namespace tallymere
