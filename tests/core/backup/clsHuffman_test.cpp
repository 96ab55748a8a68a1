#include "core/backup/clsHuffman.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/store/error.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

Bytes From_Text(std::string_view text) { return {text.begin(), text.end()}; }

Bytes From_Hex(const std::string& hex) {
  Bytes bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return bytes;
}

Bytes Encoded(Bytes bytes) {
  clsHuffman().EncodeByte(bytes);
  return bytes;
}

Bytes Decoded(Bytes bytes) {
  clsHuffman().DecodeByte(bytes);
  return bytes;
}

/// The text of the error, or "" when there is none.
template <class Operation>
std::string Message_Of(Operation operation) {
  try {
    operation();
  } catch (const HuffmanError& error) {
    EXPECT_EQ(error.number, -2147221504);
    return error.source + ": " + error.message;
  }
  return "";
}

std::string Decode_Message(const Bytes& bytes) {
  return Message_Of([&] { Decoded(bytes); });
}

/// Value i occurs Fibonacci(i) times, which gives the deepest code there is for so few bytes.
Bytes Fibonacci_Bytes(int values) {
  Bytes bytes;
  std::size_t count = 1, next = 1;
  for (int i = 0; i < values; ++i) {
    bytes.insert(bytes.end(), count, static_cast<std::uint8_t>('a' + i));
    next += std::exchange(count, next);
  }
  return bytes;
}

/// Each of the 256 values equally often: eight bits a byte, and so a file longer than its source.
Bytes Even_Bytes(std::size_t times) {
  Bytes bytes;
  for (std::size_t i = 0; i < times * 256; ++i) bytes.push_back(static_cast<std::uint8_t>(i));
  return bytes;
}

Bytes Random_Bytes(std::mt19937& random, std::size_t length, std::size_t values) {
  Bytes bytes(length);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>((random() % values) * (random() % values) / values);
  return bytes;
}

// The expected bytes come from a separate slow program that follows the format bit by bit. Ties between equal
// weights abound in them, so another choice of the two lightest nodes shows.
TEST(clsHuffman, BackupsOfEarlierVersionsStayReadableByteForByte) {
  const std::pair<Bytes, const char*> cases[] = {
      {From_Text("ab"), "4845330d03020000000200610162010202"},
      {From_Text("aabbc"), "4845330d630500000003006101620263020e7c"},
      {From_Text("abracadabra"), "4845330d660b000000050061016203630364037203ba071a730d"},
      {From_Text("mississippi river"), "4845330d371100000008002004650469026d047003720373027604b33de1019fa6910dba05"},
      {From_Hex("6161626161626161626300ff6300ff"), "4845330d620f00000005000003610162036303ff03d30794d22f5f00"},
      {Fibonacci_Bytes(11),
       "4845330d0ce80000000b00610a620a63096408650766066705680469036a026b01fffdffefeff7bd5b00"
       "fffdffefdfdfdfdfeff7fbfdbeeffbbeeffbde7befbdf7de7befddddddddddddddddddddddb66ddbb66ddbb66ddbb66d"
       "db5655555555555555555555555555010000000000000000000000"},
      {{}, "4845300d"},
      {From_Text("A"), "4845300d41"},
      {From_Text("zzzzz"), "4845300d7a7a7a7a7a"},
  };
  for (const auto& [plain, hex] : cases) {
    EXPECT_EQ(Encoded(plain), From_Hex(hex)) << hex;
    EXPECT_EQ(Decoded(From_Hex(hex)), plain) << hex;
  }
}

TEST(clsHuffman, WhateverGoesInComesOut) {
  std::mt19937 random(20);
  std::vector<Bytes> inputs{Even_Bytes(1), Even_Bytes(90), Fibonacci_Bytes(27), Fibonacci_Bytes(27)};
  std::shuffle(inputs[2].begin(), inputs[2].end(), random);  // the other has its longest codes side by side
  for (const unsigned values : {2U, 3U, 17U, 256U})
    for (const std::size_t length : {2U, 9U, 63U, 64U, 65U, 9999U, 10001U, 200000U})
      inputs.push_back(Random_Bytes(random, length, values));
  for (const auto& input : inputs) EXPECT_TRUE(Decoded(Encoded(input)) == input) << input.size();

  EXPECT_EQ(Encoded(Even_Bytes(1)).size(), 11U + 2 * 256 + 256 + 256);  // coded although it grows
}

TEST(clsHuffman, TextIsTakenByteForByte) {
  std::string text("caf\xC3\xA9 caf\xC3\xA9 \0 end", 17);
  const auto before = text;
  clsHuffman huffman;
  huffman.EncodeString(text);
  EXPECT_EQ(text.substr(0, 4), "HE3\r");
  auto damaged = text;
  huffman.DecodeString(text);
  EXPECT_EQ(text, before);

  damaged[4] ^= 1;
  EXPECT_NE(Message_Of([&] { huffman.DecodeString(damaged); }), "");
  EXPECT_EQ(damaged, before);
}

TEST(clsHuffman, ProgressNamesEachChangeOnce) {
  clsHuffman huffman;
  std::vector<int> seen;
  huffman.Progress = [&](int percent) { seen.push_back(percent); };
  auto bytes = Even_Bytes(80);  // 20480 bytes, 21259 when coded
  huffman.EncodeByte(bytes);
  EXPECT_EQ(seen, (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 9, 11, 12, 54, 97, 100}));
  seen.clear();
  huffman.DecodeByte(bytes);
  EXPECT_EQ(seen, (std::vector{41, 83, 89, 94, 99, 100}));

  // A handler that gives up leaves the bytes alone.
  huffman.Progress = [&](int percent) {
    if (percent > 50) throw std::runtime_error("cancelled");
  };
  EXPECT_THROW(huffman.EncodeByte(bytes), std::runtime_error);
  EXPECT_EQ(bytes, Even_Bytes(80));
}

// Tables this encoder never writes, but another may.
TEST(clsHuffman, ReadsForeignTables) {
  // 'a' = 0, 'b' = 1 and 254 zeros; then the data "bab".
  auto longest = From_Hex("4845330d61030000000200610162ff02");
  longest.resize(longest.size() + 31);
  Bytes data(65);
  data[0] = 0x01;   // b takes bits 0 to 254, a is bit 255
  data[32] = 0x01;  // b again from bit 256
  longest.insert(longest.end(), data.begin(), data.end());
  EXPECT_EQ(Decoded(longest), From_Text("bab"));

  // Pairs in falling order: the codes still stand in rising order. An empty code is never met.
  EXPECT_EQ(Decoded(From_Hex("4845330d030200000003006201610163000202")), From_Text("ab"));
  // A lone value with a code of one bit.
  EXPECT_EQ(Decoded(From_Hex("4845330d6103000000010061010000")), From_Text("aaa"));
  // A stated length of nothing leaves the array as it stands.
  EXPECT_EQ(Decoded(From_Hex("4845330d0000000000")), From_Hex("4845330d0000000000"));
}

TEST(clsHuffman, OtherIdentifications) {
  auto coded = Encoded(From_Text("abracadabra"));
  coded[2] = '4';
  EXPECT_EQ(Decode_Message(coded),
            "HuffmanDecode(): The data either was not compressed with HE3 or is corrupt (identification string not "
            "found)");
  for (const std::size_t at : {0U, 1U, 3U}) {  // then nobody looks at the third byte
    auto unknown = coded;
    unknown[at] = 'x';
    EXPECT_EQ(Decoded(unknown), From_Text("abracadabra"));
  }
}

TEST(clsHuffman, WrongChecksumIsToldWithTheDataInPlace) {
  auto bytes = Encoded(From_Text("abracadabra"));
  bytes[4] ^= 0x10;
  EXPECT_EQ(Message_Of([&] { clsHuffman().DecodeByte(bytes); }),
            "clsHuffman.Decode(): The data might be corrupted (checksum did not match expected value)");
  EXPECT_EQ(bytes, From_Text("abracadabra"));
}

TEST(clsHuffman, DamageIsNamed) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "ends within its header"},
      {"484533", "ends within its header"},
      {"4845330d0302", "ends within its header"},
      {"4845330d030200000002", "ends within its header"},
      {"4845330d03020000800200610162010202", "length is negative"},
      {"4845330d03020000000101610162010202", "more than 256 values"},
      {"4845330d03020000000080610162010202", "more than 256 values"},
      {"4845330d0302000000020061", "ends within its code table"},
      {"4845330d03020000000200610162ff02", "ends within its code table"},
      {"4845330d03020000000200610162010302", "not a usable code"},  // both 1
      {"4845330d03020000000200610162020002", "not a usable code"},  // 0 and 00
      {"4845330d03020000000200610262010002", "not a usable code"},  // 00 and 0
      {"4845330d03ffffff7f0200610162010202", "too short for its stated length"},
      {"4845330d03090000000200610162010202", "too short for its stated length"},
      {"4845330d0302000000000000", "too short for its stated length"},   // no value has a code
      {"4845330d03020000000200610162020602", "only up to byte 1 of 2"},  // 0 and 11; the data goes on with 10
      {"4845330d660b000000050061016203630364037203ba071a73", "only up to byte 8 of 11"},
  };
  for (const auto& [hex, part] : cases) {
    const auto message = Decode_Message(From_Hex(hex));
    EXPECT_NE(message.find(part), std::string::npos) << hex << " gave: " << message;
  }
  // More nodes than a complete code can need: three codes of 255 bits that part at once.
  auto sparse = From_Hex("4845330d0001000000030061ff62ff63ff");
  Bytes codes(96 + 100);
  codes[255 / 8] |= 0x80;  // second code begins with 1
  codes[510 / 8] |= 0x80;  // third with 01
  sparse.insert(sparse.end(), codes.begin(), codes.end());
  EXPECT_NE(Decode_Message(sparse).find("not a usable code"), std::string::npos);
}

TEST(clsHuffman, NoDamageDoesMoreThanFail) {
  std::mt19937 random(1515);
  int results = 0, errors = 0;
  for (int round = 0; round < 6000; ++round) {
    auto bytes = Encoded(Random_Bytes(random, 2 + random() % 600, 2 + random() % 255));
    if (round % 3 != 0) bytes.resize(random() % (bytes.size() + 1));
    for (auto flips = random() % 4; flips > 0 && !bytes.empty(); --flips) {
      const auto area = random() % 2 ? bytes.size() : std::min<std::size_t>(bytes.size(), 40);  // mostly header
      bytes[random() % area] ^= static_cast<std::uint8_t>(1U << random() % 8);
    }
    const auto room = bytes.size() * 8;
    try {
      clsHuffman().DecodeByte(bytes);
      EXPECT_LE(bytes.size(), room);
      ++results;
    } catch (const HuffmanError&) {
      ++errors;
    }
  }
  EXPECT_GT(results, 300);
  EXPECT_GT(errors, 3000);
}

class clsHuffmanFiles : public ::testing::Test {
 protected:
  clsHuffmanFiles() { fs::create_directories(folder); }
  ~clsHuffmanFiles() override { fs::remove_all(folder); }

  void Write(const fs::path& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
  }
  Bytes Read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t Files() {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  const fs::path folder = fs::temp_directory_path() / ("clsHuffman_test." + std::to_string(::getpid()));
  const fs::path plain = folder / "Acme.mdb", packed = folder / "Acme.cbk", out = folder / "out.mdb";
  clsHuffman huffman;
};

TEST_F(clsHuffmanFiles, OlderAndLongerFilesAreReplacedWhole) {
  const auto data = From_Text("To restore is to replace, not to write over the beginning of what stood there.");
  Write(plain, data);
  Write(packed, Bytes(5000, 'x'));
  Write(out, Bytes(5000, 'x'));
  huffman.EncodeFile(plain, packed);
  EXPECT_EQ(Read(packed), Encoded(data));
  huffman.DecodeFile(packed, out);
  EXPECT_EQ(Read(out), data);
  huffman.DecodeFile(packed, packed);
  EXPECT_EQ(Read(packed), data);
  EXPECT_EQ(Files(), 3U);
}

TEST_F(clsHuffmanFiles, AFailureLeavesTheDestination) {
  const auto encode = [&](const fs::path& to) { return Message_Of([&] { huffman.EncodeFile(plain, to); }); };
  const auto decode = [&] { return Message_Of([&] { huffman.DecodeFile(packed, out); }); };
  Write(out, From_Text("the company"));
  EXPECT_EQ(encode(out), "clsHuffman.EncodeFile(): Source file does not exist");
  EXPECT_EQ(decode(), "clsHuffman.DecodeFile(): Source file does not exist");
  fs::create_directory(packed);  // a folder has no length
  EXPECT_EQ(decode(), "clsHuffman.DecodeFile(): Source file does not exist");
  fs::remove(packed);

  auto damaged = Encoded(From_Text("abracadabra"));
  damaged[4] ^= 1;
  Write(packed, damaged);
  EXPECT_NE(decode().find("checksum did not match"), std::string::npos);

  Write(plain, {});
  EXPECT_THROW(huffman.EncodeFile(plain, folder / "nowhere" / "a.cbk"), store::Error);
  fs::resize_file(plain, std::uintmax_t{1} << 31);  // one byte more than the length field can say; takes no room
  EXPECT_EQ(encode(out), "clsHuffman.EncodeFile(): The data is too long for HE3 (2147483647 bytes at most)");
  fs::resize_file(packed, std::uintmax_t{1} << 36);
  EXPECT_NE(decode().find("too long"), std::string::npos);
  EXPECT_EQ(Read(out), From_Text("the company"));
  EXPECT_EQ(Files(), 3U);
}

}  // namespace
}  // namespace tallymere
