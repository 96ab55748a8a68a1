#include "core/backup/backup.h"

#include "core/backup/seal.h"
#include "core/backup/stoppable.h"
#include "core/backup/whole_file.h"
#include "core/values/control_characters.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

std::string Without_Points(std::string text) {
  std::erase_if(text, [](char c) { return c == '.' || c == ','; });
  return text;
}

FileAside Copy_Of(store::Database& company, FileAside copy) {
  company.connection().copy_to(copy.path());
  store::Connection writing(copy.path(), store::Connection::Mode::ReadWrite);
  Seal_Copy(writing, company.author().now ? company.author().now() : std::string());
  return copy;
}

/// Beside the company, where the next start finds it if this program is killed; where that disk has no room left,
/// where the backup goes.
FileAside Sealed_Copy(store::Database& company, const fs::path& home, const fs::path& otherwise) {
  try {
    return Copy_Of(company, FileAside(home));
  } catch (const store::Error& fault) {
    if (fault.number != store::errors::disk_full) throw;
    return Copy_Of(company, FileAside(otherwise, FileMode::Private, home));
  }
}

}  // namespace

fs::path Backup_File_Name(const std::string& typed) {
  if (contains(typed, ".cbk")) return typed;
  const fs::path cleaned = Without_Points(typed) + ".cbk";
  const fs::path folder = fs::path(typed).parent_path();
  if (folder.empty() || fs::is_directory(cleaned.parent_path())) return cleaned;
  return folder / (Without_Points(fs::path(typed).filename().string()) + ".cbk");
}

std::string Proposed_Backup_Name(Session& session) {
  std::string name = in_one_plain_line(session.dbCompany->value("SELECT Name FROM CompanyInfo").text());
  std::erase_if(name, [](char c) { return std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos; });
  size_t end = std::min<size_t>(name.size(), 100);
  while (end < name.size() && (name[end] & 0xC0) == 0x80) --end;  // no letter is cut in two
  name.resize(end);
  return trim(name + " " + session.today().to_iso()) + ".cbk";
}

Percent Told(ProgressBar& bar) {
  bar.at(0, 100);
  return [&bar](int done) { return bar.at(done, 100); };
}

bool Write_Backup(store::Database& company, const fs::path& destination, const Percent& percent) {
  const fs::path home = Folder_Of(company.path()), there = Folder_Of(destination);
  WholeFile backup(destination, FileMode::Private, Is_Same_File(home, there) ? fs::path() : home);
  const FileAside copy = Sealed_Copy(company, home, there);
  try {
    Huffman_With(percent).EncodeInto(copy.path(), backup.path(), destination);
  } catch (const Stopped&) {
    return false;
  }
  backup.finish();
  return true;
}

namespace {

/// The name was cleaned after it was chosen: nobody was asked about a file that has the clean one.
bool May_Replace(Session& session, const std::string& chosen, const fs::path& file) {
  std::error_code ignored;
  if (file == chosen || !fs::exists(file, ignored)) return true;
  return session.prompts.ask({"Replace the backup that is there?", "Backup", Icon::Question, file.string()},
                             Buttons::YesNoDefaultNo);
}

}  // namespace

bool Backup_Company(Session& session, const std::string& file_name) {
  if (file_name.empty()) {
    session.prompts.box({"Pick a File name that is shorter than 9 characters.", "Name To Long", Icon::Critical});
    return false;
  }
  if (!session.dbCompany) throw store::Error(store::errors::file_not_found, "No company is open.");
  const fs::path file = Backup_File_Name(file_name);
  if (!May_Replace(session, file_name, file)) return false;
  {
    ProgressBar bar(session.prompts, "Backup");
    if (!Write_Backup(*session.dbCompany, file, Told(bar))) return false;
  }
  session.prompts.box({"Backup Successful.", "Backup", Icon::Information, "The backup is " + file.string() + "."});
  return true;
}

}  // namespace tallymere
