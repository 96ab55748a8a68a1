#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "reports/frame/report_table.h"

/// The table of reports: everything a window or the command line needs to know of one.
namespace tallymere {

enum class Basis { Cash, Accrual };

/// What the user may set besides dates and basis, by name.
using ReportOptions = std::map<std::string, std::string, std::less<>>;

namespace report_option {
inline constexpr std::string_view fields = "fields";      ///< columns, each with a trailing comma
inline constexpr std::string_view category = "category";  ///< a CatID
inline constexpr std::string_view name = "name";          ///< a vendor
inline constexpr std::string_view item = "item";          ///< an item
}  // namespace report_option

/// What to build. Make one with Default_Request and change what the user changed.
struct ReportRequest {
  std::string key;  ///< of ReportDef
  Date from, to;
  Basis basis = Basis::Cash;
  std::string title = {};  ///< instead of the report's own; empty: its own
  ReportOptions options = {};

  const std::string& option(std::string_view name) const;  ///< "" when not set
};

struct ReportDef {
  enum class Start { OfMonth, OfYear, None };  ///< the first of today's month or year; None: one date, `to`
  using Builder = ReportTable (*)(Session&, const ReportRequest&);

  std::string_view key;         ///< unique: what the command line calls it
  std::string_view window;      ///< "frmPrintPL2"
  std::string_view window_key;  ///< what its menu command hands the window; several windows share some
  std::string_view title;
  Start start;               ///< the default start; the default end is today
  bool has_basis;            ///< cash or accrual
  std::string_view options;  ///< the names of report_option it takes, separated by blanks
  Builder build;

  bool takes(std::string_view option) const;
};

std::span<const ReportDef> Reports();
const ReportDef* Find_Report(std::string_view key);  ///< ignoring case; nullptr when there is none
const ReportDef* Find_Report(std::string_view window, std::string_view window_key);

/// The request a menu command makes: default dates, cash basis.
ReportRequest Default_Request(const Session& session, std::string_view key);

/// Runs the builder of request.key, which must be one of Reports(), on the company as it is at one moment.
ReportTable Build_Report(Session& session, const ReportRequest& request);

/// The report that "Go to" on a row opens from a table whose go_to is Category: that category from the first
/// of the year to the end of the report it is opened from. Nothing for a row without a category.
std::optional<ReportRequest> Go_To_Request(const ReportTable& table, int row, const ReportRequest& opened_from);

/// Field `Name` of CompanyInfo.
std::string Company_Name(Session& session);

/// "1/1/2026 - 6/15/2026", as headings show a period.
std::string Period_Text(Date start, Date end);

/// The title of a request's heading: its own, or else the report's followed by `subject`; the company; the
/// period; the basis.
ReportHeading Make_Heading(Session& session, const ReportRequest& request, std::string_view subject = {});

}  // namespace tallymere
