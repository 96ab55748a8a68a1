#include "reports/saved/saved_reports.h"

#include "core/ledger/tree_list.h"
#include "core/store/recordset.h"
#include "core/values/date_range.h"

namespace tallymere {
namespace {

constexpr const char* fields = "SELECT RowKey, ReportName, DateRange, Parent, Fields, Class, Item FROM SavedReports";

SavedReport Read(const store::Row& row) {
  const auto text = [&](int column) { return std::string(row.text(column)); };
  return {row.integer(0), text(1), text(2), text(3), text(4), text(5), text(6)};
}

/// An unset range or tag is no text at all, as it was read.
store::Value Text_Or_Null(const std::string& text) { return text.empty() ? store::Value() : store::Value(text); }

void Write(store::Recordset& rows, const SavedReport& report) {
  rows["ReportName"] = report.ReportName;
  rows["DateRange"] = Text_Or_Null(report.DateRange);
  rows["Parent"] = report.Parent;
  rows["Fields"] = report.Fields;
  rows["Class"] = Text_Or_Null(report.Class);
  rows["Item"] = Text_Or_Null(report.Item);
}

/// Items find their parents by names without full stops.
std::string Without_Full_Stops(std::string name) {
  std::erase(name, '.');
  return name;
}

struct ItemRow {
  std::string name, parent_item;
  int level = 0;
  std::string key() const { return Without_Full_Stops(name); }
  std::string parent() const { return Without_Full_Stops(parent_item); }
};

}  // namespace

std::vector<SavedReport> Saved_Reports(Session& session) {
  std::vector<SavedReport> reports;
  session.dbCompany->each(std::string(fields) + " ORDER BY ReportName, RowKey", {},
                          [&](const store::Row& row) { reports.push_back(Read(row)); });
  return reports;
}

std::optional<SavedReport> Find_Saved_Report(Session& session, int64_t key) {
  std::optional<SavedReport> found;
  session.dbCompany->each(std::string(fields) + " WHERE RowKey = ?", {key},
                          [&](const store::Row& row) { found = Read(row); });
  return found;
}

std::optional<Fault> Check_Saved_Report(const SavedReport& report) {
  if (!report.ReportName.empty()) return std::nullopt;
  return Fault{{"Please enter a name for this report.", "No Name", Icon::Information}, "txtName"};
}

void Save_Report(Session& session, SavedReport& report) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, (report.key ? "Saved report changed: " : "New saved report: ") + report.ReportName);
  auto rows = db.OpenRecordset("SELECT * FROM SavedReports WHERE RowKey = ?", {report.key});
  const bool there = !rows.empty();  // not any more, where another user deleted it: it is added again
  there ? rows.Edit() : rows.AddNew();
  Write(rows, report);
  rows.Update();
  tx.commit();
  if (!there) report.key = rows.last_added();
}

void Delete_Saved_Report(Session& session, const SavedReport& report) {
  store::Transaction tx(*session.dbCompany, "Saved report deleted: " + report.ReportName);
  session.dbCompany->Execute("DELETE FROM SavedReports WHERE RowKey = ?", {report.key});
  tx.commit();
}

std::vector<std::string> Items_To_Report(Session& session) {
  std::vector<ItemRow> items;
  std::vector<bool> dormant;
  session.dbCompany->each("SELECT ItemName, ParentItem, Dormant FROM Items ORDER BY ItemName", {},
                          [&](const store::Row& row) {
                            items.push_back({std::string(row.text(0)), std::string(row.text(1))});
                            dormant.push_back(row.flag(2));
                          });
  TreeList<ItemRow> tree(items);
  for (size_t at = 0; at < items.size(); ++at)
    if (items[at].parent_item.empty() && !dormant[at]) tree.add(items[at]);
  std::vector<std::string> names;
  for (const ItemRow& item : tree.list) names.push_back(Indented(item.name, item.level));
  return names;
}

ReportRequest Request_Of(Session& session, const SavedReport& report) {
  ReportRequest request = Default_Request(session, report.Parent);
  const DateRange days = Get_Date_Range(report.DateRange, session.today());
  request.from = days.start;
  request.to = days.end;
  request.options.insert_or_assign(std::string(report_option::fields), report.Fields);
  if (const ReportDef* of = Find_Report(report.Parent); of && !of->subject.empty())
    request.options.insert_or_assign(std::string(of->subject), report.Item);
  return request;
}

}  // namespace tallymere
