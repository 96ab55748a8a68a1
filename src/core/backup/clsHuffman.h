#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallymere {

/// What `clsHuffman` throws: always the same number, the operation it came from, and a sentence for the user.
struct HuffmanError : std::exception {
  HuffmanError(std::string_view from, std::string_view text) : source(from), message(text) {}
  const char* what() const noexcept override { return message.c_str(); }

  std::int32_t number = -2147221504;
  std::string source;
  std::string message;
};

/// The HE3 compression of backups: a byte-wise Huffman code with its table, or the data as it is ("HE0") when
/// the code would not be shorter. Holds nothing between calls. Memory is the input and the output once each.
class clsHuffman {
 public:
  /// Percent done, 0 to 100; raised on each change within a call. What it throws ends the operation.
  std::function<void(int)> Progress;

  /// Source file to destination file. The destination is replaced as a whole, or on any error left as it was
  /// (store::Error where it cannot be written).
  void EncodeFile(const std::filesystem::path& source, const std::filesystem::path& destination) const;
  void DecodeFile(const std::filesystem::path& source, const std::filesystem::path& destination) const;

  /// The same straight into a file that only the caller knows; it is called what it will become when it cannot be
  /// written.
  void EncodeInto(const std::filesystem::path& source, const std::filesystem::path& aside,
                  const std::filesystem::path& becomes) const;
  void DecodeInto(const std::filesystem::path& source, const std::filesystem::path& aside,
                  const std::filesystem::path& becomes) const;

  /// Replaces the bytes by their compressed form; refuses more than 2^31-1 of them. Unchanged on error.
  void EncodeByte(std::vector<std::uint8_t>& bytes) const;

  /// Replaces the bytes by their uncompressed form. Unchanged on error, but for a wrong checksum, which is
  /// reported when the uncompressed data is already in place.
  void DecodeByte(std::vector<std::uint8_t>& bytes) const;

  /// The same on a text, each char one byte; a compressed text is not UTF-8.
  void EncodeString(std::string& text) const;
  void DecodeString(std::string& text) const;

 private:
  /// True when the file's length can be read, and then gives it.
  static bool FileExists(const std::filesystem::path& path, std::uintmax_t& length);
  std::vector<std::uint8_t> Encoded(const std::filesystem::path& source) const;
  std::vector<std::uint8_t> Decoded(const std::filesystem::path& source) const;
  bool Decode_In_Place(std::vector<std::uint8_t>& bytes) const;
};

}  // namespace tallymere
