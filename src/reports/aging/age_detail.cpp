#include "reports/aging/aging.h"
#include "reports/aging/aging_reports.h"
#include "reports/frame/names.h"

// The open documents one by one: bucket by bucket, or name by name.
namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

std::vector<ReportColumn> Columns() {
  return {{.kind = Kind::Margin},
          {.caption = "Type"},
          {.caption = "Date", .kind = Kind::Date},
          {.caption = "Number"},
          {.caption = "Name"},
          {.caption = "Terms"},
          {.caption = "Due Date", .kind = Kind::Date},
          {.caption = "Class"},
          {.caption = "Aging", .kind = Kind::Number},
          {.caption = "Amount", .kind = Kind::Money},
          {.kind = Kind::Margin}};
}

/// One report: the rows of documents under the heads of a listing.
class Age_List {
 public:
  Age_List(Session& session, const ReportRequest& request, Party party)
      : db_(*session.dbCompany), party_(party), as_of_(request.to), open_(db_, party) {
    table_.heading = Aging_Heading(session, request);
    table_.columns = Columns();
  }

  ReportTable by_bucket() {
    const std::vector<std::string> buckets(Bucket_Names.begin(), Bucket_Names.end());
    Listing listing(table_, buckets, Listing::Idle::Shown, amount_column());
    for (size_t bucket = 0; bucket < buckets.size(); ++bucket) {
      listing.go_to(bucket);
      for (size_t name = 0; name < open_.names().size(); ++name)
        for (const OpenDocument* document : open_.of(name))
          if (Bucket_Of(age_of(*document)) == bucket) add(listing, *document);
    }
    return end(listing);
  }

  /// `below_head` adds rows under each name's head.
  template <typename Fn>
  ReportTable by_name(Fn&& below_head) {
    std::vector<std::string> names;
    for (const std::string& name : open_.names()) names.emplace_back(Shown_Name(name));
    Listing listing(table_, names, Listing::Idle::Left_Out, amount_column());
    for (size_t name = 0; name < names.size(); ++name) {
      if (open_.of(name).empty()) continue;
      listing.go_to(name);
      below_head(table_, open_.names()[name]);
      for (const OpenDocument* document : open_.of(name)) add(listing, *document);
    }
    return end(listing);
  }

 private:
  int amount_column() const { return table_.find_column("Amount"); }
  int age_of(const OpenDocument& document) const { return days_between(document.due(), as_of_); }

  void add(Listing& listing, const OpenDocument& document) {
    listing.sum(document.Amount);
    total_ += document.Amount;
    auto line = table_.add_row(Role::Detail, {.number = document.TransNum});
    line.skip().text("     " + std::string(Words_Of(party_).document)).value(document.day).text(document.Number);
    line.text(document.Name).text(document.Terms).value(document.due()).text(document.Class);
    line.value(age_of(document)).money(document.Amount);
  }

  ReportTable end(Listing& listing) {
    listing.finish();
    table_.add_row(Role::Total).skip().text("Total").skip(amount_column() - 2).money(total_);
    Add_Steps_To_Balance(db_, table_, party_, open_.documents(), amount_column());
    return std::move(table_);
  }

  store::Database& db_;
  Party party_;
  Date as_of_;
  Names_With_Documents open_;
  ReportTable table_;
  Money total_;
};

ReportTable By_Name(Session& session, const ReportRequest& request, Party party) {
  return Age_List(session, request, party).by_name([](ReportTable&, const std::string&) {});
}

/// How a customer is reached, by name.
CaselessMap<std::vector<std::string>> Read_Contacts(store::Database& db) {
  CaselessMap<std::vector<std::string>> contacts;
  db.each("SELECT Name, Contact, Phone, AltPhone FROM Customers ORDER BY RowKey", {}, [&](const store::Row& row) {
    const auto [place, is_new] = contacts.try_emplace(std::string(row.text(0)));
    for (int column = 1; is_new && column <= 3; ++column)
      if (!row.text(column).empty()) place->second.emplace_back(row.text(column));
  });
  return contacts;
}

}  // namespace

ReportTable Build_Receivable_Aging_Detail(Session& session, const ReportRequest& request) {
  return Age_List(session, request, Party::Customers).by_bucket();
}
ReportTable Build_Payable_Aging_Detail(Session& session, const ReportRequest& request) {
  return Age_List(session, request, Party::Vendors).by_bucket();
}
ReportTable Build_Open_Invoices(Session& session, const ReportRequest& request) {
  return By_Name(session, request, Party::Customers);
}
ReportTable Build_Unpaid_Bills(Session& session, const ReportRequest& request) {
  return By_Name(session, request, Party::Vendors);
}

ReportTable Build_Collections(Session& session, const ReportRequest& request) {
  const auto contacts = Read_Contacts(*session.dbCompany);
  return Age_List(session, request, Party::Customers).by_name([&](ReportTable& table, const std::string& name) {
    const auto found = contacts.find(name);
    if (found == contacts.end()) return;
    for (const std::string& line : found->second) table.add_row().skip().text("     " + line);
  });
}

}  // namespace tallymere
