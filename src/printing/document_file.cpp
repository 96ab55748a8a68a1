#include <algorithm>

#include "core/store/error.h"
#include "printing/documents.h"

namespace tallymere {
namespace {

/// What every system takes as a file's name.
std::string File_Name(std::string title) {
  static constexpr std::string_view barred = "\\/:*?\"<>|";
  std::ranges::replace_if(
      title, [](char c) { return static_cast<unsigned char>(c) < ' ' || barred.find(c) != std::string_view::npos; },
      '_');
  constexpr size_t longest = 100;  // bytes
  if (title.size() > longest) {
    title.resize(longest);
    while (!title.empty() && static_cast<unsigned char>(title.back()) >= 0x80) title.pop_back();  // half a letter
  }
  return title.empty() ? "Document" : title;
}

}  // namespace

std::filesystem::path Document_File(const Session& session, const std::string& title) {
  const std::filesystem::path company(session.CompanyPath);
  const auto folder = company.parent_path() / (company.stem().string() + " PDF");
  std::error_code fault;
  std::filesystem::create_directories(folder, fault);
  if (fault) throw store::Error(store::errors::disk_full, "'" + folder.string() + "' cannot be made.");
  const std::string name = File_Name(title);
  auto file = folder / (name + ".pdf");
  for (int copy = 2; std::filesystem::exists(file); ++copy)
    file = folder / (name + " (" + std::to_string(copy) + ").pdf");
  return file;
}

}  // namespace tallymere
