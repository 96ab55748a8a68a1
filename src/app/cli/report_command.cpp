#include <algorithm>
#include <iostream>

#include "app/cli/commands.h"
#include "app/cli/painter.h"
#include "core/backup/whole_file.h"
#include "core/company/users.h"
#include "core/store/error.h"
#include "core/values/date_range.h"
#include "core/values/text.h"
#include "reports/frame/renderers.h"
#include "reports/frame/report_file.h"
#include "reports/reports.h"

namespace tallymere::cli {

namespace {

namespace fs = std::filesystem;

int List_Reports() {
  for (const ReportDef& report : Reports()) {
    std::string line(report.key);
    line.resize(std::max<size_t>(line.size() + 2, 16), ' ');
    line += report.title;
    if (report.has_basis) line += "  [--basis cash|accrual]";
    if (!report.subject.empty()) line += "  --" + std::string(report.subject) + " ...";
    std::cout << line << "\n";
  }
  return 0;
}

const ReportDef& Report_Named(const std::string& key) {
  const ReportDef* report = Find_Report(key);
  if (!report) throw Usage("no such report: " + key + " (`report` alone lists them)");
  return *report;
}

/// A category may be given by its CatID or by its name.
std::string Category_Id(store::Database& db, const std::string& given) {
  for (const char* sql : {"SELECT CatID FROM Accounts WHERE CatID = ?",
                          "SELECT CatID FROM Accounts WHERE AccountName = ? ORDER BY RowKey"})
    if (std::string id = db.value(sql, {given}).text(); !id.empty()) return id;
  throw Usage("no such category: " + given);
}

void Take_Dates(Arguments& arguments, Dates dates, Date today, ReportRequest& request) {
  if (!Is_Period(dates)) {
    if (Asks_A_Day(dates)) request.to = arguments.date("to").value_or(request.to);
    return;
  }
  if (std::string name = arguments.option("range", ""); !name.empty()) {
    if (std::find(Date_Range_Names.begin(), Date_Range_Names.end(), name) == Date_Range_Names.end())
      throw Usage("--range takes one of: " + join({Date_Range_Names.begin(), Date_Range_Names.end()}, ", "));
    DateRange days = Get_Date_Range(name, today);
    request.from = days.start;
    request.to = days.end;
  }
  request.from = arguments.date("from").value_or(request.from);
  request.to = arguments.date("to").value_or(request.to);
}

void Take_Basis(Arguments& arguments, const ReportDef& report, ReportRequest& request) {
  if (!report.has_basis) return;
  std::string basis = arguments.option("basis", "cash");
  if (basis != "cash" && basis != "accrual") throw Usage("--basis takes cash or accrual");
  request.basis = basis == "cash" ? Basis::Cash : Basis::Accrual;
}

void Take_Options(Arguments& arguments, const ReportDef& report, store::Database& db, ReportRequest& request) {
  const auto take = [&](std::string_view option, const std::string& value) {
    if (!value.empty() || option == report_option::fields) request.options.insert_or_assign(std::string(option), value);
  };
  take(report_option::fields, arguments.option("fields", request.option(report_option::fields)));
  const std::string empty = arguments.option("empty", "");
  if (!empty.empty() && empty != "hide" && empty != "show") throw Usage("--empty takes hide or show");
  take(report_option::empty, empty);
  if (report.subject.empty()) return;
  const std::string subject = arguments.option(std::string(report.subject));
  take(report.subject, report.subject == report_option::category ? Category_Id(db, subject) : subject);
}

/// Hands the table to the program that paints pages: this one links nothing that could.
void Write_Pdf(Session& session, const ReportTable& table, const fs::path& out) {
  Paint(session, out, [&](std::ostream& file) { Write_Report_File(table, file); });
}

using Writer = void (*)(const ReportTable&, std::ostream&);

void Write_Stream(const ReportTable& table, const std::string& out, Writer write) {
  if (out.empty()) {
    write(table, std::cout);
    if (!std::cout.flush()) throw std::runtime_error("the report could not be written");
    return;
  }
  Write_Whole(out, [&](std::ostream& file) { write(table, file); });
}

void Write_As(Session& session, const ReportTable& table, const std::string& format, const std::string& out) {
  if (format == "text") return Write_Stream(table, out, Write_Text);
  if (format == "csv") return Write_Stream(table, out, Write_Csv);
  if (format == "table") return Write_Stream(table, out, Write_Report_File);
  if (format == "xlsx") return Write_Xlsx(table, out);
  Write_Pdf(session, table, out);
}

std::string Format_Of(Arguments& arguments, const std::string& out) {
  std::string format = arguments.option("format", "text");
  constexpr std::string_view known[] = {"text", "csv", "table", "xlsx", "pdf"};
  if (std::find(std::begin(known), std::end(known), format) == std::end(known))
    throw Usage("--format takes text, csv, xlsx or pdf");
  if (out.empty() && (format == "xlsx" || format == "pdf")) throw Usage("--format " + format + " needs --out FILE");
  return format;
}

}  // namespace

int Report(Arguments& arguments) {
  auto key = arguments.maybe_word();
  if (!key) {
    arguments.finish();
    return List_Reports();
  }
  const ReportDef& report = Report_Named(*key);
  CliSession cli(arguments);
  const std::string out = arguments.option("out", "");
  const std::string format = Format_Of(arguments, out);
  ReportRequest request = Default_Request(cli.session, report.key);
  request.title = arguments.option("title", "");
  Take_Dates(arguments, report.dates, cli.session.today(), request);
  Take_Basis(arguments, report, request);
  cli.open(arguments);
  if (!May_Use(cli.session, report.area))
    throw std::runtime_error("The report " + std::string(report.key) + " is not among the rights of " +
                             cli.session.CurrentUser + ".");
  if (!out.empty()) Refuse_Output(out);  // before the work, and while the company is known
  Take_Options(arguments, report, *cli.session.dbCompany, request);
  arguments.finish();
  const ReportTable table = Build_Report(cli.session, request);
  if (!table.notice.empty()) std::cerr << table.notice << "\n";
  Write_As(cli.session, table, format, out);
  return 0;
}

}  // namespace tallymere::cli
