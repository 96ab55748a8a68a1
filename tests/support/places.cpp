#include "support/places.h"

namespace tallymere::testing {

const std::filesystem::path data_folder = DATA_DIR;
const std::filesystem::path docs_folder = DOCS_DIR;
const std::string cli_program = CLI_PROGRAM;

}  // namespace tallymere::testing
