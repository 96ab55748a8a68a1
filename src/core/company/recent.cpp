#include "core/company/recent.h"

#include <algorithm>
#include <fstream>
#include <string>

#include "core/backup/whole_file.h"
#include "core/values/control_characters.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

constexpr size_t most = 6;

fs::path File_Of(const fs::path& folder) { return folder / "Recent.txt"; }

}  // namespace

std::vector<fs::path> Recent_Companies(const fs::path& folder) {
  std::vector<fs::path> companies;
  std::error_code fault;
  if (!fs::is_regular_file(File_Of(folder), fault)) return companies;
  std::ifstream file(File_Of(folder));
  for (std::string line; companies.size() < most && std::getline(file, line);)
    if (!line.empty() && fs::is_regular_file(line, fault)) companies.emplace_back(line);
  return companies;
}

void Note_Recent_Company(const fs::path& folder, const fs::path& company) {
  if (has_control_characters(company.string())) return;
  std::vector<fs::path> companies = Recent_Companies(folder);
  std::erase(companies, company);
  companies.insert(companies.begin(), company);
  companies.resize(std::min(companies.size(), most));
  try {
    Write_Whole(File_Of(folder), [&](std::ostream& out) {
      for (const fs::path& one : companies) out << one.string() << "\n";
    });
  } catch (const std::exception&) {  // a convenience, no part of the books
  }
}

}  // namespace tallymere
