#pragma once

#include <filesystem>
#include <vector>

/// The companies that were opened last, in a file of the program's folder: one path a line, the newest first.
namespace tallymere {

/// Those that are still there. A file that cannot be read is none.
std::vector<std::filesystem::path> Recent_Companies(const std::filesystem::path& folder);

/// Puts a company first. Where the folder cannot be written nothing is kept, and nobody is troubled with it.
void Note_Recent_Company(const std::filesystem::path& folder, const std::filesystem::path& company);

}  // namespace tallymere
