#include "import/lists_import.h"

#include <algorithm>

#include "import/list_records.h"

namespace tallymere {
namespace {

struct KindRow {
  ListKind kind;
  std::string_view name;
  bool in_summary;
};
constexpr KindRow kind_rows[] = {{ListKind::Categories, "Categories", true},
                                 {ListKind::Items, "Inventory Items", true},
                                 {ListKind::PayrollItems, "Payroll Items", true},
                                 {ListKind::PayrollTaxItems, "Payroll Tax Items", true},
                                 {ListKind::Classes, "Classes", true},
                                 {ListKind::Customers, "Customers", true},
                                 {ListKind::Vendors, "Vendors", true},
                                 {ListKind::Employees, "Employees", true},
                                 {ListKind::ShippingMethods, "Shipping Methods", true},
                                 {ListKind::PaymentMethods, "Payment Methods", true},
                                 {ListKind::Terms, "Terms", true},
                                 {ListKind::OtherNames, "Other Names", false},
                                 {ListKind::Messages, "Customer Messages", false},
                                 {ListKind::Representatives, "Representatives", false},
                                 {ListKind::Budgets, "Budgets", false}};

using Put = RecordDone (*)(ImportWork&, const IifRecord&);

RecordDone Put_Category(ImportWork& work, const IifRecord& record) {
  const auto done = work.categories.put(record, work.release_2003);
  return {done.did, done.why};
}

struct KeyRow {
  std::string_view key;
  ListKind kind;
  Put put;                        ///< nullptr: told apart below
  std::string_view ends_at = {};  ///< the key that ends the block it begins
};
constexpr KeyRow key_rows[] = {{"ACCNT", ListKind::Categories, Put_Category},
                               {"INVITEM", ListKind::Items, Put_Item, "ENDGRP"},
                               {"PAYITEM", ListKind::PayrollItems, Put_Payroll_Item},
                               {"PAYITEMTAX", ListKind::PayrollTaxItems, Put_Payroll_Tax},
                               {"CLASS", ListKind::Classes, Put_Small_List},
                               {"CUST", ListKind::Customers, Put_Customer},
                               {"VEND", ListKind::Vendors, Put_Vendor},
                               {"EMP", ListKind::Employees, nullptr},
                               {"QBP EMPLOYEE", ListKind::Employees, nullptr, "ENDQBPEMP"},
                               {"SHIPMETH", ListKind::ShippingMethods, Put_Small_List},
                               {"PAYMETH", ListKind::PaymentMethods, Put_Small_List},
                               {"TERMS", ListKind::Terms, Put_Small_List},
                               {"OTHERNAME", ListKind::OtherNames, Put_Small_List},
                               {"INVMEMO", ListKind::Messages, Put_Small_List},
                               {"SALESREP", ListKind::Representatives, Put_Small_List},
                               {"BUD", ListKind::Budgets, Put_Budget}};

const KeyRow* Row_Of(std::string_view key) {
  const auto row = std::ranges::find(key_rows, key, &KeyRow::key);
  return row == std::end(key_rows) ? nullptr : row;
}

class Run {
 public:
  Run(Session& session, const IifFile& file, const ImportOptions& options)
      : work_(*session.dbCompany, options.release_2003), file_(file), options_(options) {
    report_.encoding = file.encoding;
  }

  ImportReport all() {
    for (at_ = 0; at_ < file_.records.size(); ++at_) {
      constexpr size_t between = 256;
      if (options_.progress && at_ % between == 0 &&
          !options_.progress(static_cast<int64_t>(at_), static_cast<int64_t>(file_.records.size()))) {
        report_.stopped = true;
        return std::move(report_);
      }
      const IifRecord& record = file_.records[at_];
      if (const KeyRow* row = Row_Of(record.key))
        take(*row, record);
      else
        ++report_.unknown[record.key];
    }
    return std::move(report_);
  }

 private:
  void take(const KeyRow& row, const IifRecord& record) {
    RecordDone done;
    if (record.key == "EMP") {
      Box cannot;
      done = Put_Employee(work_, record, cannot);
      if (!cannot.text.empty()) report_.told.push_back(cannot);
    } else if (record.key == "QBP EMPLOYEE") {
      done = Put_Employee_Pay(work_, record, block(row.ends_at));
    } else {
      done = row.put(work_, record);
    }
    if (record.key == "INVITEM" && record.at({"INVITEMTYPE", 4}, work_.release_2003) == "GRP")
      put_group(row, record, done);
    report_.lines.push_back({record.line, row.kind, done.did, record.at({"NAME", 1}, work_.release_2003), done.why});
  }

  void put_group(const KeyRow& row, const IifRecord& record, RecordDone& done) {
    for (const IifRecord* line : block(row.ends_at)) {
      const RecordDone own = Put_Group_Line(work_, record.at({"NAME", 1}, work_.release_2003), *line);
      if (!own.why.empty()) done.why += (done.why.empty() ? "" : "; ") + own.why;
      const bool wrote = own.did == ImportDid::Added || own.did == ImportDid::Changed;
      if (wrote && done.did == ImportDid::Same) done.did = ImportDid::Changed;
    }
  }

  /// The records up to the end of the block; a block without an end ends where the next known record begins.
  std::vector<const IifRecord*> block(std::string_view ends_at) {
    std::vector<const IifRecord*> inside;
    while (at_ + 1 < file_.records.size()) {
      const IifRecord& next = file_.records[at_ + 1];
      if (next.key != ends_at && Row_Of(next.key) && next.key != "INVITEM") break;
      ++at_;
      if (next.key == ends_at) break;
      inside.push_back(&next);
    }
    return inside;
  }

  ImportWork work_;
  const IifFile& file_;
  const ImportOptions& options_;
  ImportReport report_;
  size_t at_ = 0;
};

}  // namespace

std::string_view Name_Of(ListKind kind) { return std::ranges::find(kind_rows, kind, &KindRow::kind)->name; }

int64_t ImportReport::count(ListKind kind, ImportDid did) const {
  return std::ranges::count_if(lines, [&](const ImportLine& line) { return line.kind == kind && line.did == did; });
}

int64_t ImportReport::count(ImportDid did) const { return std::ranges::count(lines, did, &ImportLine::did); }

ImportReport Import_Lists(Session& session, const IifFile& file, const ImportOptions& options) {
  store::Transaction tx(*session.dbCompany, "Import of lists");
  ImportReport report = Run(session, file, options).all();
  if (options.keep && !report.stopped) tx.commit();
  return report;
}

Box Import_Summary(const ImportReport& report) {
  std::string text;
  for (const KindRow& row : kind_rows) {
    if (!row.in_summary) continue;
    const int64_t count = report.count(row.kind, ImportDid::Added) + report.count(row.kind, ImportDid::Changed);
    text += (text.empty() ? "" : "\r\n") + std::string("- ") + std::string(row.name) +
            " Added/Modified: " + std::to_string(count);
  }
  return {text, "Import Summary", Icon::Information};
}

}  // namespace tallymere
