#include "core/values/base64.h"

#include <sodium.h>

namespace tallymere {

std::string To_Base64(std::string_view bytes) {
  constexpr int variant = sodium_base64_VARIANT_ORIGINAL;
  std::string text(sodium_base64_encoded_len(bytes.size(), variant), '\0');
  sodium_bin2base64(text.data(), text.size(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(),
                    variant);
  text.pop_back();  // the closing null
  return text;
}

std::optional<std::string> From_Base64(std::string_view text) {
  std::string bytes(text.size(), '\0');
  size_t size = 0;
  if (sodium_base642bin(reinterpret_cast<unsigned char*>(bytes.data()), bytes.size(), text.data(), text.size(), nullptr,
                        &size, nullptr, sodium_base64_VARIANT_ORIGINAL) != 0)
    return std::nullopt;
  bytes.resize(size);
  return bytes;
}

}  // namespace tallymere
