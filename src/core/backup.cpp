#include "core/backup.h"

#include <unistd.h>

#include "core/clsHuffman.h"
#include "core/company.h"
#include "core/folder.h"
#include "core/text.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

struct Stopped {};

/// A file that only exists on the way to another; gone with its scope unless it was handed on.
class FileAside {
 public:
  FileAside(const fs::path& beside, const char* ending) : path_(beside) {
    path_ += "." + std::to_string(getpid()) + ending;
    remove();
  }
  ~FileAside() { remove(); }
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  const fs::path& path() const { return path_; }
  fs::path hand_on() { return std::exchange(path_, {}); }

 private:
  void remove() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove(path_, ignored);
  }
  fs::path path_;
};

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

/// frmProgress while it lives.
class ProgressBar {
 public:
  ProgressBar(Prompts& prompts, std::string caption) : prompts_(prompts), caption_(std::move(caption)) {
    prompts_.progress(caption_, 0, 100);
  }
  ~ProgressBar() { prompts_.progress_done(); }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  Percent percent() {
    return [this](int done) { return prompts_.progress(caption_, done, 100); };
  }

 private:
  Prompts& prompts_;
  std::string caption_;
};

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
  return expanded.hand_on();
}

void Replace_Company(const fs::path& expanded, const fs::path& target, const std::function<void()>& reopen) {
  fs::path before = target;
  before += ".before";
  const bool replaces = fs::exists(target);
  if (replaces) fs::rename(target, before);
  try {
    fs::rename(expanded, target);
    reopen();
  } catch (...) {
    std::error_code ignored;
    if (replaces)
      fs::rename(before, target, ignored);
    else
      fs::remove(target, ignored);
    throw;
  }
  fs::remove(before);
}

bool Backup_Company(Session& session, const std::string& file_name) {
  if (file_name.empty()) {
    session.prompts.box(
        {"Pick a File name that is shorter than 9 characters.", "Name To Long", Icon::Critical});
    return false;
  }
  if (!session.dbCompany) throw store::Error(store::errors::file_not_found, "No company is open.");
  {
    ProgressBar bar(session.prompts, "Backup");
    if (!Write_Backup(*session.dbCompany, Backup_File_Name(file_name), bar.percent())) return false;
  }
  session.prompts.box({"Backup Successful.", "Backup", Icon::Information});
  return true;
}

bool Restore_Company(Session& session, const fs::path& backup, const fs::path& target,
                     const std::function<bool()>& let_go) {
  fs::path expanded;
  {
    ProgressBar bar(session.prompts, "Restore");
    expanded = Expand_Backup(backup, target, bar.percent());
  }
  if (expanded.empty() || (let_go && !let_go())) {
    if (!expanded.empty()) fs::remove(expanded);
    return false;
  }
  const CompanyState before(session);
  Close_Company_File(session);
  try {
    Replace_Company(expanded, target, [&] { Open_Company_File(session, target); });
  } catch (...) {
    std::error_code ignored;
    fs::remove(expanded, ignored);
    before.reopen(session);
    throw;
  }
  session.prompts.box({"Restore Successful.", "Restore", Icon::Information});
  return true;
}

}  // namespace tallymere
