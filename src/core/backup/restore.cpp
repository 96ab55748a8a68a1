#include "core/backup/restore.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>

#include "core/backup/seal.h"
#include "core/backup/stoppable.h"
#include "core/backup/whole_file.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/store/shape.h"
#include "core/values/control_characters.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using store::Connection;
using store::FileKind;

// --- proving a backup -----------------------------------------------------------------------------------------

/// Before anything in the copy is believed.
std::optional<std::string> Prove_Seal(const fs::path& file) {
  Connection copy(file, Connection::Mode::ReadWrite);
  store::Refuse_What_Acts(copy);
  return Break_Seal(copy);
}

/// Its kind, its shape, then page by page, which is all the proof that a copy without a seal has: once an older one has
/// been brought up to date, for its indexes may stand in the order of those days.
std::string Prove_Company(const fs::path& file) {
  const auto company = Open_Current(file, FileKind::Company);
  if (!company->connection().integrity_faults().empty())
    throw store::Error(store::errors::file_damaged, "Its pages do not fit together.");
  if (company->value("SELECT COUNT(*) FROM CompanyInfo").integer() != 1)
    throw store::Error(store::errors::not_a_database, "");
  return company->value("SELECT Name FROM CompanyInfo").text();
}

ProvenBackup Proven(FileAside file) {
  auto made = Prove_Seal(file.path());
  std::string name = Prove_Company(file.path());
  return {std::move(file), std::move(name), std::move(made)};
}

/// Faults of the disk, not of the backup.
bool Is_Of_The_Disk(int number) {
  using namespace store::errors;
  constexpr int plain[] = {disk_full, bad_path, disk_or_network, read_only};
  return std::find(std::begin(plain), std::end(plain), number) != std::end(plain);
}

}  // namespace

std::optional<ProvenBackup> Prove_Backup(const fs::path& backup, const fs::path& target, const Percent& percent) try {
  FileAside file(Folder_Of(target));
  Huffman_With(percent).DecodeInto(backup, file.path(), target);
  return Proven(std::move(file));
} catch (const Stopped&) {
  return std::nullopt;
} catch (const store::Error& fault) {
  if (Is_Of_The_Disk(fault.number)) throw;
  const std::string name = "'" + backup.string() + "'";  // not the name it has aside
  if (fault.number == store::errors::file_damaged)
    throw store::Error(fault.number, name + " is damaged. " + fault.description());
  if (fault.number == store::errors::newer_file)
    throw store::Error(fault.number, name + " was written by a newer version of this program.");
  throw store::Error(store::errors::not_a_database, name + " holds no company of Tallymere.");
}

// --- what stands where a company is to go ---------------------------------------------------------------------

namespace {

[[noreturn]] void Refuse(const fs::path& target, const std::string& why) {
  throw store::Error(store::errors::bad_path, "'" + target.string() + "' " + why);
}

/// What every file of companies is full of, should its first page be gone.
constexpr std::string_view our_mark = "RowKey INTEGER PRIMARY KEY AUTOINCREMENT";

struct Content {
  int64_t kind = 0;  ///< the file's kind as its header tells; 0: it does not
  bool blank = true, ours = false;
};

int64_t Kind_In(std::string_view first) {
  constexpr size_t kind_at = 68;
  if (first.size() < kind_at + 4) return 0;
  int64_t kind = 0;
  for (size_t i = 0; i < 4; ++i) kind = kind << 8 | static_cast<unsigned char>(first[kind_at + i]);
  return kind;
}

/// Reads a file that nobody has open here, piece by piece, each with the end of the one before.
Content Look_Into(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  Content content;
  std::string piece, end;
  std::vector<char> read(1 << 20);
  for (bool first = true; in.read(read.data(), std::ssize(read)), in.gcount() > 0; first = false) {
    piece = end + std::string(read.data(), static_cast<size_t>(in.gcount()));
    if (first && (content.kind = Kind_In(piece)) == static_cast<int64_t>(FileKind::Company)) break;
    content.blank = content.blank && piece.find_first_not_of('\0') == std::string::npos;
    content.ours = content.ours || piece.find(our_mark) != std::string::npos;
    end = piece.substr(piece.size() - std::min(piece.size(), our_mark.size()));
  }
  return content;
}

bool Is_Company_Or_Blank(const fs::path& target) {
  const Content content = Look_Into(target);
  const auto is = [&](FileKind kind) { return content.kind == static_cast<int64_t>(kind); };
  if (is(FileKind::Company)) return true;
  if (is(FileKind::Shared) || is(FileKind::Model)) Refuse(target, "is a database that Tallymere itself needs.");
  if (content.ours) return true;  // a company whose first page is damaged
  if (content.blank) return false;
  Refuse(target, "is no company, and only companies are replaced. Choose another name, or move that file away.");
}

bool Is_Programs_Own(const Session& session, const fs::path& target) {
  for (const char* name : {"Accounts.mdb", "Model.mdb", "ErrorLog.txt"})
    if (Is_Same_File(target, session.folder / name)) return true;
  return false;
}

}  // namespace

bool Is_Company_There(const Session& session, const fs::path& target) {
  if (session.dbCompany && Is_Same_File(target, session.dbCompany->path())) return true;
  std::error_code ignored;
  const auto type = fs::symlink_status(target, ignored).type();
  if (type == fs::file_type::symlink) Refuse(target, "is a link to another file. Name that file itself.");
  if (type == fs::file_type::not_found) return Refuse_Output(target), false;
  if (type != fs::file_type::regular) Refuse(target, "is no file that can hold a company.");
  if (Is_Programs_Own(session, target)) Refuse(target, "is a file that Tallymere itself needs.");
  return Is_Company_Or_Blank(target);
}

// --- replacing ------------------------------------------------------------------------------------------------

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
/// again. Whoever kills this finds the old content.
void Write_Over(const fs::path& from, const fs::path& over) {
  Connection(from, Connection::Mode::ReadWrite).copy_to(over);
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

/// A journal that could not make its file readable belongs to it no more, and must not be played into the next one.
void Replace_Unreadable(FileAside& company, const fs::path& target, const std::function<void()>& reopen) {
  FileAside before(Folder_Of(target));
  fs::copy_file(target, before.path(), fs::copy_options::overwrite_existing);
  std::error_code ignored;
  fs::remove(Journal_Of(target), ignored);
  company.replace(target);
  Reopen_Or(reopen, [&] { before.replace(target); });
}

}  // namespace

void Replace_Company(FileAside& company, const fs::path& target, const std::function<void()>& reopen) {
  if (company.take_free(target))
    return Reopen_Or(reopen, [&] {
      std::error_code ignored;
      fs::remove(target, ignored);
    });
  const FileAside before(Folder_Of(target));
  if (!Keep_Copy(target, before.path())) return Replace_Unreadable(company, target, reopen);
  Write_Over(company.path(), target);
  Reopen_Or(reopen, [&] { Write_Over(before.path(), target); });
}

// --- the command ----------------------------------------------------------------------------------------------

namespace {

/// What of the session a restore changes, to put it back.
struct CompanyState {
  explicit CompanyState(const Session& session)
      : path(session.CompanyPath),
        file(session.CompanyFile),
        user(session.CurrentUser),
        multi(session.MultiUser),
        open(session.dbCompany != nullptr) {}
  void reopen(Session& session) const {
    Leave_Company(session);
    if (!open) return;
    Open_Company_File(session, path);
    Set_Recordsets(session);
    session.CompanyFile = file;
    session.CurrentUser = user;
    session.MultiUser = multi;
  }
  std::string path, file, user;
  bool multi, open;
};

constexpr const char* no_seal = "The backup carries no seal, so nothing shows that it is whole.";

/// "2026-03-17 10:12:33" as dates are told.
std::string Day_Of(const std::string& moment) {
  const auto day = Date::from_iso(moment.substr(0, 10));
  return day ? " of " + day->to_text() : std::string();
}

bool May_Replace(Session& session, const ProvenBackup& backup, const fs::path& target) {
  std::string what = "The backup" + Day_Of(backup.made.value_or("")) + " holds " + in_one_plain_line(backup.company) +
                     ". What was entered since then is lost.";
  if (!backup.made) what += std::string(" ") + no_seal;
  return session.prompts.ask(
      {"Replace \"" + target.stem().string() + "\" by the backup?", "Restore", Icon::Question, what},
      Buttons::YesNoDefaultNo);
}

void Put_In_Place(Session& session, ProvenBackup& backup, const fs::path& target) {
  const CompanyState before(session);
  Close_Company_File(session);
  try {
    Replace_Company(backup.file, target, [&] { Open_Company_File(session, target); });
  } catch (...) {
    try {
      before.reopen(session);
    } catch (const std::exception&) {
      Leave_Company(session);  // what went wrong first is told
    }
    throw;
  }
}

}  // namespace

bool Restore_Company(Session& session, const RestoreRequest& request) {
  const fs::path& target = request.target;
  if (Is_Same_File(request.backup, target))
    Refuse(target, "is the file to restore from. A company is restored from a backup, into another file.");
  if (Is_Open_Here(request.backup)) Refuse(request.backup, "is a file that Tallymere works on, and no backup.");
  const bool company_there = Is_Company_There(session, target);
  auto backup = [&] {
    ProgressBar bar(session.prompts, "Restore");
    return Prove_Backup(request.backup, target, Told(bar));
  }();
  if (!backup) return false;
  if (company_there && request.ask && !May_Replace(session, *backup, target)) return false;
  if (request.let_go && !request.let_go()) return false;
  Put_In_Place(session, *backup, target);
  session.prompts.box({"Restore Successful.", "Restore", Icon::Information, backup->made ? "" : no_seal});
  return true;
}

}  // namespace tallymere
