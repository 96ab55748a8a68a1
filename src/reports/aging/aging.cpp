#include "reports/aging/aging.h"

#include "reports/aging/aging_reports.h"
#include "reports/frame/names.h"

namespace tallymere {

Names_With_Documents::Names_With_Documents(store::Database& db, Party party) : documents_(Open_Documents(db, party)) {
  std::vector<std::string> in_rows;
  for (const OpenDocument& document : documents_) in_rows.push_back(document.Name);
  names_ = Names_Met(db, Words_Of(party).list, in_rows);
  CaselessMap<size_t> places;
  for (size_t at = 0; at < names_.size(); ++at) places.emplace(names_[at], at);
  by_name_.resize(names_.size());
  for (const OpenDocument& document : documents_) by_name_[places.at(document.Name)].push_back(&document);
}

ReportHeading Aging_Heading(Session& session, const ReportRequest& request) {
  ReportHeading heading = Make_Heading(session, request);
  if (request.to < session.today()) heading.period += ", of what is unpaid today, " + session.today().to_text();
  return heading;
}

void Add_Steps_To_Balance(store::Database& db, ReportTable& table, Party party,
                          const std::vector<OpenDocument>& documents, int amount_column) {
  const Balance_Steps steps = Steps_To_Balance(db, party, documents);
  const auto add = [&](Role role, std::string_view label, Money amount) {
    const int column = table.label_column();
    table.add_row(role).skip(column).text(label).skip(amount_column - column - 1).money(amount);
  };
  for (const auto& step : steps.steps) add(Role::Detail, step.label, step.amount);
  add(Role::Grand_Total, "Balance of " + std::string(Words_Of(party).control_name), steps.balance);
}

namespace {

using Kind = ReportColumn::Kind;

void Add_Buckets(ReportTable& table, std::string_view label, const std::array<Money, Bucket_Names.size()>& buckets,
                 Role role) {
  auto line = table.add_row(role);
  line.skip().text(label);
  Money total;
  for (const Money amount : buckets) {
    line.money(amount);
    total += amount;
  }
  line.money(total);
}

ReportTable Age_Names(Session& session, const ReportRequest& request, Party party) {
  const Names_With_Documents open(*session.dbCompany, party);
  ReportTable table;
  table.heading = Aging_Heading(session, request);
  table.columns = {{.kind = Kind::Margin}, {.name = "Name"}};
  for (const std::string_view bucket : Bucket_Names)
    table.columns.push_back({.caption = std::string(bucket), .kind = Kind::Money});
  table.columns.push_back({.caption = "Total", .kind = Kind::Money});
  std::array<Money, Bucket_Names.size()> all = {};
  for (size_t name = 0; name < open.names().size(); ++name) {
    if (open.of(name).empty()) continue;
    std::array<Money, Bucket_Names.size()> buckets = {};
    for (const OpenDocument* document : open.of(name))
      buckets[Bucket_Of(days_between(document->terms_date(), request.to))] += document->Amount;
    for (size_t at = 0; at < buckets.size(); ++at) all[at] += buckets[at];
    Add_Buckets(table, Shown_Name(open.names()[name]), buckets, Role::Detail);
  }
  Add_Buckets(table, "Total", all, Role::Total);
  Add_Steps_To_Balance(*session.dbCompany, table, party, open.documents(), table.find_column("Total"));
  return table;
}

}  // namespace

ReportTable Build_Receivable_Aging(Session& session, const ReportRequest& request) {
  return Age_Names(session, request, Party::Customers);
}
ReportTable Build_Payable_Aging(Session& session, const ReportRequest& request) {
  return Age_Names(session, request, Party::Vendors);
}

}  // namespace tallymere
