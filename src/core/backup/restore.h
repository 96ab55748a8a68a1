#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "core/backup/backup.h"
#include "core/backup/file_aside.h"

/// The way back from a backup to a company.
namespace tallymere {

/// A backup that has proved itself: decoded, held against its seal, open as a company of a known shape.
struct ProvenBackup {
  FileAside file;                   ///< the company, beside where it is to go
  std::string company;              ///< the name in it
  std::optional<std::string> made;  ///< when, as its seal tells; nothing: it has no seal to prove it
};

/// Expands a backup into a file beside `target` and proves it. Nothing: stopped on request. HuffmanError or
/// store::Error when it is no sound backup of a company; nothing is left behind then.
std::optional<ProvenBackup> Prove_Backup(const std::filesystem::path& backup, const std::filesystem::path& target,
                                         const Percent& percent = {});

/// Whether a company, sound or damaged, stands where one is to be restored. Error 3044 when something else does: no
/// file, a link, one of the program's own databases, any file that is neither a company nor empty.
bool Is_Company_There(const Session& session, const std::filesystem::path& target);

/// Puts a company from aside in the place of a company file, and takes it back if `reopen` throws. Others who
/// have the company open go on with the new one; while one of them writes, Error 3218.
void Replace_Company(FileAside& company, const std::filesystem::path& target, const std::function<void()>& reopen);

struct RestoreRequest {
  std::filesystem::path backup;
  std::filesystem::path target;  ///< the company file, which need not exist
  bool ask = true;               ///< before a company that stands there is replaced
  /// Runs once all is proved and agreed, before the company that is open is closed: its windows go here. false ends
  /// the command.
  std::function<bool()> let_go = {};
};

/// The command "Restore". The target is the open company afterwards, without its sets. When this throws, the company
/// is open again as it was, with its sets; where even that fails, none is. false: stopped on request, nothing changed.
bool Restore_Company(Session& session, const RestoreRequest& request);

}  // namespace tallymere
