// The filled layouts handed to the painter: read or refused, and what was read is written and read again the same.

#include <cstdlib>
#include <sstream>

#include "core/store/error.h"
#include "printing/layout.h"

using namespace tallymere;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) try {
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  const LayoutFile file = Read_Layout_File(in);
  std::ostringstream written;
  Write_Layout_File(file, written);
  std::istringstream again(written.str());
  const LayoutFile same = Read_Layout_File(again);
  if (same.title != file.title || same.layouts != file.layouts || same.places.own != file.places.own) std::abort();
  return 0;
} catch (const store::Error&) {
  return 0;
}
