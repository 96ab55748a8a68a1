#include "core/company/error_box.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <stdexcept>

#include "core/backup/clsHuffman.h"
#include "core/store/error.h"
#include "core/values/control_characters.h"

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

/// In words for who sits before it: faults of files and disks say which file, why and what to do.
std::string Plain_Words(const std::exception& fault) {
  using namespace store::errors;
  constexpr int plain[] = {file_not_found, disk_full,       read_only,      disk_or_network, bad_path,    file_damaged,
                           cannot_open,    database_exists, not_a_database, newer_file,      undo_refused};
  const auto* error = dynamic_cast<const store::Error*>(&fault);
  if (error && std::find(std::begin(plain), std::end(plain), error->number) == std::end(plain)) return {};
  if (error) return in_one_plain_line(error->description());
  return dynamic_cast<const HuffmanError*>(&fault) ? fault.what() : "";
}

}  // namespace

void Error_Box(Session& session, const std::string& object, const std::string& procedure, const std::exception& fault) {
  session.log.write(object, procedure, Number_Of(fault), fault.what());
  session.prompts.box(
      {"An Error Occured. Contact Quillbrook Software Inc.\r\nCall 555-010-2000 Locally or 1-800-555-0100 "
       "Nationwide",
       "Error", Icon::Critical, Plain_Words(fault)});
}

}  // namespace tallymere
