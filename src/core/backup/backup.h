#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/company/session.h"

/// Backup of a company into one HE3 file.
namespace tallymere {

inline constexpr const char* Backup_Filter = "Backup Files (*.cbk)|*.cbk";

/// The file a backup goes to: a name with ".cbk" as it stands, any other without its full stops and commas,
/// in the whole path, plus ".cbk". Where that names a folder that does not exist, only the file's own name is
/// cleaned.
std::filesystem::path Backup_File_Name(const std::string& typed);

/// The name a backup of the open company is offered: "Acme Supply 2026-03-17.cbk".
std::string Proposed_Backup_Name(Session& session);

/// Percent done; false asks to stop.
using Percent = std::function<bool(int)>;

/// Hundredths, from the first on.
Percent Told(ProgressBar& bar);

/// Writes the open company into a sealed backup as it stands at one moment, read under a lock. The destination is
/// replaced as a whole or left as it was. false: stopped on request. store::Error or HuffmanError on failure.
bool Write_Backup(store::Database& company, const std::filesystem::path& destination, const Percent& percent = {});

/// The command "Backup" on a name already chosen: the name's test, the work with its progress, the box at the
/// end, which says where the backup is. false: nothing was written.
bool Backup_Company(Session& session, const std::string& file_name);

}  // namespace tallymere
