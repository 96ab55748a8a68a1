// The compression of backups: what is encoded comes back, and what somebody calls encoded harms nobody.

#include <cstdlib>

#include "core/backup/clsHuffman.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::vector<uint8_t> given(data, data + size);
  std::vector<uint8_t> bytes = given;
  tallymere::clsHuffman().EncodeByte(bytes);
  tallymere::clsHuffman().DecodeByte(bytes);
  if (bytes != given) std::abort();
  try {
    tallymere::clsHuffman().DecodeByte(bytes);
  } catch (const tallymere::HuffmanError&) {
  }
  return 0;
}
