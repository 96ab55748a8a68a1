#include "core/company/error_box.h"

#include <filesystem>
#include <new>
#include <stdexcept>

#include "core/backup/clsHuffman.h"
#include "core/store/error.h"

namespace tallymere {
namespace {

/// What the log calls a fault: the store's and the compression's own numbers, else the class of the run-time
/// fault.
int Number_Of(const std::exception& fault) {
  if (const auto* error = dynamic_cast<const store::Error*>(&fault)) return error->number;
  if (const auto* error = dynamic_cast<const HuffmanError*>(&fault)) return error->number;
  if (dynamic_cast<const std::overflow_error*>(&fault)) return 6;
  if (dynamic_cast<const std::bad_alloc*>(&fault)) return 7;
  if (dynamic_cast<const std::out_of_range*>(&fault)) return 9;
  if (dynamic_cast<const std::filesystem::filesystem_error*>(&fault)) return 75;
  return 5;
}

}  // namespace

void Error_Box(Session& session, const std::string& object, const std::string& procedure, const std::exception& fault) {
  session.log.write(object, procedure, Number_Of(fault), fault.what());
  session.prompts.box(
      {"An Error Occured. Contact Quillbrook Software Inc.\r\nCall 555-010-2000 Locally or 1-800-555-0100 "
       "Nationwide",
       "Error", Icon::Critical});
}

}  // namespace tallymere
