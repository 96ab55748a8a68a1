#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "reports/frame/dates.h"
#include "reports/frame/report_table.h"

/// The table of reports: everything a window or the command line needs to know of one.
namespace tallymere {

enum class Basis { Cash, Accrual };

/// What the user may set besides dates and basis, by name.
using ReportOptions = std::map<std::string, std::string, std::less<>>;

namespace report_option {
inline constexpr std::string_view fields = "fields";      ///< the columns, each with a trailing comma; empty: all
inline constexpr std::string_view empty = "empty";        ///< "hide" leaves out groups that show nothing
inline constexpr std::string_view category = "category";  ///< a CatID
inline constexpr std::string_view name = "name";          ///< a vendor
inline constexpr std::string_view item = "item";          ///< an item
inline constexpr std::string_view hide = "hide";          ///< the value of `empty`
}  // namespace report_option

/// What to build. Make one with Default_Request and change what the user changed.
struct ReportRequest {
  std::string key;  ///< of ReportDef
  Date from, to;
  Basis basis = Basis::Cash;
  std::string title = {};  ///< instead of the report's own; empty: its own
  ReportOptions options = {};

  const std::string& option(std::string_view name) const;  ///< "" when not set
  DateRange days() const { return {from, to}; }
};

/// A report's row in the table of reports. What most reports have need not be said.
struct ReportDef {
  using Builder = ReportTable (*)(Session&, const ReportRequest&);

  std::string_view key;     ///< unique: what the command line calls it
  std::string_view window;  ///< "frmPrintPL2"
  std::string_view area;    ///< the command that must be granted to whoever asks for it: "mnuPL"
  std::string_view title;
  Dates dates;
  Builder build;
  bool has_basis = false;            ///< cash or accrual
  std::string_view subject = {};     ///< the option that says what it is of: category, name or item
  std::string_view fields = {};      ///< the columns it comes up with; empty: all it has
  std::string_view window_key = {};  ///< what its menu command hands the window; empty: its key

  std::string_view asked_as() const { return window_key.empty() ? key : window_key; }
  /// Columns and empty groups are for every report to choose, a subject for those that have one.
  bool takes(std::string_view option) const;
};

std::span<const ReportDef> Reports();
const ReportDef* Find_Report(std::string_view key);  ///< ignoring case; nullptr when there is none
/// The one that a menu command asks a window for; without a key the window's only one.
const ReportDef* Find_Report(std::string_view window, std::string_view window_key);

/// The request a menu command makes: default dates and columns, cash basis.
ReportRequest Default_Request(const Session& session, std::string_view key);

/// Runs the builder of request.key, which must be one of Reports(), on the company as it is at one moment.
ReportTable Build_Report(Session& session, const ReportRequest& request);

/// The report that "Go to" on a row opens: of that row's category or item, from the first of the year to the
/// end of the report it is opened from. Nothing for a row that leads to no report.
std::optional<ReportRequest> Go_To_Request(const RowKey& key, const ReportRequest& opened_from);

/// Field `Name` of CompanyInfo.
std::string Company_Name(Session& session);

/// The title of a request's heading: its own, or else the report's followed by `subject`; the company;
/// its dates; the basis.
ReportHeading Make_Heading(Session& session, const ReportRequest& request, std::string_view subject = {});

}  // namespace tallymere
