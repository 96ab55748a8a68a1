#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/company/session.h"

/// Backup of a company into one HE3 file, and its way back.
namespace tallymere {

inline constexpr const char* Backup_Filter = "Backup Files (*.cbk)|*.cbk";

/// The file a backup goes to: a name with ".cbk" as it stands, any other without its full stops and commas,
/// in the whole path, plus ".cbk". Where that names a folder that does not exist, only the file's own name is
/// cleaned.
std::filesystem::path Backup_File_Name(const std::string& typed);

/// Percent done; false asks to stop.
using Percent = std::function<bool(int)>;

/// Writes the open company into a backup as it stands at one moment, read under a lock. The destination is
/// replaced as a whole or left as it was. false: stopped on request. store::Error, HuffmanError or
/// filesystem_error on failure.
bool Write_Backup(store::Database& company, const std::filesystem::path& destination, const Percent& percent = {});

/// Expands a backup beside `target` and makes sure of its checksum and that it opens as a company. Returns
/// the expanded file, which the caller owns; nothing is left behind on failure or stop (an empty path).
std::filesystem::path Expand_Backup(const std::filesystem::path& backup, const std::filesystem::path& target,
                                    const Percent& percent = {});

/// Puts an expanded backup in the place of a company file, and takes it back if `reopen` throws. Others who
/// have the company open go on with the restored one; while one of them writes, Error 3218. The expanded file
/// stays the caller's, where it was not moved.
void Replace_Company(const std::filesystem::path& expanded, const std::filesystem::path& target,
                     const std::function<void()>& reopen);

/// The command "Backup" on a name already chosen: the name's test, the work with its progress, the box at the
/// end. false: nothing was written.
bool Backup_Company(Session& session, const std::string& file_name);

/// The command "Restore" from a backup already chosen over the company file `target`, which need not exist;
/// it is the open company afterwards, without its sets. `let_go` runs once the backup has proved sound and
/// before the company that is open is closed: its windows go here; false ends the command. When this throws,
/// the company is open again as it was, with its sets. false: stopped on request.
bool Restore_Company(Session& session, const std::filesystem::path& backup, const std::filesystem::path& target,
                     const std::function<bool()>& let_go = {});

}  // namespace tallymere
