#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/company/prompts.h"
#include "core/company/session.h"
#include "reports/reports.h"

/// Transaction reports kept under a name: frmSavedReps and frmModSaveReport.
namespace tallymere {

struct SavedReport {
  int64_t key = 0;  ///< of its record; 0: not saved yet
  std::string ReportName;
  std::string DateRange;  ///< one of Date_Range_Names, or empty
  std::string Parent;     ///< the key of the report it was saved from
  std::string Fields;     ///< columns, each with a trailing comma
  std::string Class;
  std::string Item;  ///< what it reports on: an item, and of the others the category or the vendor
};

std::vector<SavedReport> Saved_Reports(Session& session);  ///< by name
std::optional<SavedReport> Find_Saved_Report(Session& session, int64_t key);

std::optional<Fault> Check_Saved_Report(const SavedReport& report);
/// Changes the record it came from; without one adds it and gives it its key.
void Save_Report(Session& session, SavedReport& report);
void Delete_Saved_Report(Session& session, const SavedReport& report);

/// What cmbItem offers: the active items by name, each followed by those below it, indented.
std::vector<std::string> Items_To_Report(Session& session);

/// What to build for a saved report on this day.
ReportRequest Request_Of(Session& session, const SavedReport& report);

}  // namespace tallymere
