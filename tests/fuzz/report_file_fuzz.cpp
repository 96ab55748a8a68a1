// The file handed to the painter: read or refused, and what was read is written and read again the same.

#include <cstdlib>
#include <sstream>

#include "core/store/error.h"
#include "reports/frame/renderers.h"
#include "reports/frame/report_file.h"

using namespace tallymere;

namespace {

std::string Written(const ReportTable& table) {
  std::ostringstream out;
  Write_Report_File(table, out);
  return out.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) try {
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  const ReportTable table = Read_Report_File(in);
  const std::string written = Written(table);
  std::istringstream again(written);
  if (Written(Read_Report_File(again)) != written) std::abort();
  std::ostringstream out;
  Write_Text(table, out);
  Write_Csv(table, out);
  return 0;
} catch (const store::Error&) {
  return 0;
}
