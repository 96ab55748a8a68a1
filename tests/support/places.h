#pragma once

#include <filesystem>
#include <string>

/// Where the tests find what they need. Only places.cpp is compiled with paths of this machine, so that all other
/// objects are the same in every checkout and a compiler cache can share them.
namespace tallymere::testing {

extern const std::filesystem::path data_folder;  ///< what ships beside the program
extern const std::filesystem::path docs_folder;
extern const std::string cli_program;  ///< tallymere-cli

}  // namespace tallymere::testing
