#include "core/backup/backup.h"

#include "core/backup/clsHuffman.h"
#include "core/backup/whole_file.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

struct Stopped {};

clsHuffman Huffman_With(const Percent& percent) {
  clsHuffman huffman;
  if (percent)
    huffman.Progress = [percent](int done) {
      if (!percent(done)) throw Stopped{};
    };
  return huffman;
}

std::string Without_Points(std::string text) {
  std::erase_if(text, [](char c) { return c == '.' || c == ','; });
  return text;
}

/// Hundredths, from the first on.
Percent Told(ProgressBar& bar) {
  bar.at(0, 100);
  return [&bar](int done) { return bar.at(done, 100); };
}

/// What of the session a restore changes, to put it back.
struct CompanyState {
  explicit CompanyState(const Session& session)
      : path(session.CompanyPath), file(session.CompanyFile), open(session.dbCompany != nullptr) {}
  void reopen(Session& session) const {
    Close_Company_File(session);
    if (open) {
      Open_Company_File(session, path);
      Set_Recordsets(session);
    }
    session.CompanyPath = path;
    session.CompanyFile = file;
  }
  std::string path, file;
  bool open;
};

}  // namespace

fs::path Backup_File_Name(const std::string& typed) {
  if (contains(typed, ".cbk")) return typed;
  const fs::path cleaned = Without_Points(typed) + ".cbk";
  const fs::path folder = fs::path(typed).parent_path();
  if (folder.empty() || fs::is_directory(cleaned.parent_path())) return cleaned;
  return folder / (Without_Points(fs::path(typed).filename().string()) + ".cbk");
}

bool Write_Backup(store::Database& company, const fs::path& destination, const Percent& percent) {
  const FileAside copy(destination, ".copy"), packed(destination, ".packed");
  company.connection().copy_to(copy.path());
  try {
    Huffman_With(percent).EncodeFile(copy.path(), packed.path());
  } catch (const Stopped&) {
    return false;
  }
  fs::rename(packed.path(), destination);
  return true;
}

fs::path Expand_Backup(const fs::path& backup, const fs::path& target, const Percent& percent) {
  FileAside expanded(target, ".restored");
  try {
    Huffman_With(percent).DecodeFile(backup, expanded.path());
  } catch (const Stopped&) {
    return {};
  }
  const auto company = Open_Current(expanded.path(), store::FileKind::Company);
  if (company->value("SELECT COUNT(*) FROM CompanyInfo").integer() != 1)
    throw store::Error(store::errors::not_a_database, "The backup holds no company.");
  // Stored data has no checksum, and the one of compressed data is a single byte.
  if (const auto faults = company->connection().integrity_faults(); !faults.empty())
    throw store::Error(store::errors::file_damaged, "The company in the backup is damaged: " + faults.front());
  return expanded.hand_on();
}

namespace {

/// Runs `reopen`; when it throws, `take_back` runs before the fault goes on.
template <typename TakeBack>
void Reopen_Or(const std::function<void()>& reopen, TakeBack&& take_back) {
  try {
    reopen();
  } catch (...) {
    take_back();
    throw;
  }
}

/// Writes the content of one company file over another in one commit, as any other writer would: a program
/// that has the other one open goes on with the new content instead of saving into a file that nobody sees
/// again.
void Write_Over(const fs::path& from, const fs::path& over) {
  store::Connection(from, store::Connection::Mode::ReadWrite).copy_to(over);
}

/// false: what stands there can be read by nobody.
bool Keep_Copy(const fs::path& company, const fs::path& copy) {
  try {
    Write_Over(company, copy);
    return true;
  } catch (const store::Error& fault) {
    if (fault.number != store::errors::not_a_database && fault.number != store::errors::file_damaged) throw;
    return false;
  }
}

void Move_With_Journal(const fs::path& from, const fs::path& to) {
  std::error_code no_journal;
  fs::rename(from, to);
  fs::rename(Journal_Of(from), Journal_Of(to), no_journal);
}

void Replace_Unreadable(const fs::path& expanded, const fs::path& target, const std::function<void()>& reopen) {
  fs::path before = target;
  before += ".before";
  Move_With_Journal(target, before);
  Reopen_Or(
      [&] {
        fs::rename(expanded, target);
        reopen();
      },
      [&] { Move_With_Journal(before, target); });
  std::error_code ignored;
  fs::remove(before, ignored);
  fs::remove(Journal_Of(before), ignored);
}

}  // namespace

void Replace_Company(const fs::path& expanded, const fs::path& target, const std::function<void()>& reopen) {
  if (Move_To_Free_Place(expanded, target))
    return Reopen_Or(reopen, [&] {
      std::error_code ignored;
      fs::remove(target, ignored);
    });
  const FileAside before(target, ".before");
  if (!Keep_Copy(target, before.path())) return Replace_Unreadable(expanded, target, reopen);
  Write_Over(expanded, target);
  Reopen_Or(reopen, [&] { Write_Over(before.path(), target); });
}

bool Backup_Company(Session& session, const std::string& file_name) {
  if (file_name.empty()) {
    session.prompts.box({"Pick a File name that is shorter than 9 characters.", "Name To Long", Icon::Critical});
    return false;
  }
  if (!session.dbCompany) throw store::Error(store::errors::file_not_found, "No company is open.");
  {
    ProgressBar bar(session.prompts, "Backup");
    if (!Write_Backup(*session.dbCompany, Backup_File_Name(file_name), Told(bar))) return false;
  }
  session.prompts.box({"Backup Successful.", "Backup", Icon::Information});
  return true;
}

bool Restore_Company(Session& session, const fs::path& backup, const fs::path& target,
                     const std::function<bool()>& let_go) {
  const FileAside expanded = [&] {
    ProgressBar bar(session.prompts, "Restore");
    return FileAside::Adopt(Expand_Backup(backup, target, Told(bar)));
  }();
  if (expanded.path().empty() || (let_go && !let_go())) return false;
  const CompanyState before(session);
  Close_Company_File(session);
  try {
    Replace_Company(expanded.path(), target, [&] { Open_Company_File(session, target); });
  } catch (...) {
    before.reopen(session);
    throw;
  }
  session.prompts.box({"Restore Successful.", "Restore", Icon::Information});
  return true;
}

}  // namespace tallymere
