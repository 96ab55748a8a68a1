#include "core/company/error_box.h"

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

/// What a person can make of it: what happened, in plain words, and what to do. The words of most faults are plain
/// already; those of the engine about its statements are for the log.
std::string Plain_Words(const std::exception& fault) {
  if (dynamic_cast<const std::filesystem::filesystem_error*>(&fault)) return fault.what();
  if (dynamic_cast<const HuffmanError*>(&fault)) return fault.what();
  const auto* error = dynamic_cast<const store::Error*>(&fault);
  switch (error ? error->number : 0) {
    case store::errors::locked:
      return "Somebody else is saving just now; please try again in a moment.";
    case store::errors::data_changed:
      return "Another user changed this meanwhile; please look at it again first.";
    case store::errors::read_only:
      return "The company's file may only be read here.";
    case store::errors::disk_full:
      return error->description() + " Please make room and try again.";
    case store::errors::file_not_found:
    case store::errors::wrong_password:
    case store::errors::disk_or_network:
    case store::errors::bad_path:
    case store::errors::file_damaged:
    case store::errors::cannot_open:
    case store::errors::database_exists:
    case store::errors::not_a_database:
    case store::errors::newer_file:
    case store::errors::undo_refused:
    case store::errors::too_long:
      return error->description();
    default:
      return "What happened stands in ErrorLog.txt.";
  }
}

}  // namespace

void Error_Box(Session& session, const std::string& object, const std::string& procedure, const std::exception& fault) {
  if (Number_Of(fault) == store::errors::not_allowed)  // nothing went wrong
    return session.prompts.box({in_one_plain_line(fault.what()), "Access Denied", Icon::Critical});
  session.log.write(object, procedure, Number_Of(fault), fault.what());
  session.prompts.box(
      {"An Error Occured. Contact Quillbrook Software Inc.\r\nCall 555-010-2000 Locally or 1-800-555-0100 "
       "Nationwide",
       "Error", Icon::Critical, in_one_plain_line(Plain_Words(fault))});
}

}  // namespace tallymere
