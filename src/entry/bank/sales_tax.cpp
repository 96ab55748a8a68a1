#include "entry/bank/sales_tax.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/caseless.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

constexpr const char* check_type = "Liabilitycheck";

/// An agency, and the selected lines it is paid for.
struct Agency {
  std::string Vendor;
  Money total;
  std::vector<const SalesTaxLine*> lines;
};

std::vector<Agency> Agencies(const SalesTaxPayment& payment) {
  std::vector<Agency> agencies;
  for (const SalesTaxLine& line : payment.lines) {
    if (!line.Select) continue;
    auto agency = std::ranges::find_if(agencies, [&](const Agency& one) { return same_text(one.Vendor, line.Vendor); });
    if (agency == agencies.end()) agency = agencies.insert(agencies.end(), Agency{line.Vendor, {}, {}});
    agency->total += line.Amount;
    agency->lines.push_back(&line);
  }
  return agencies;
}

std::optional<Fault> Check(const SalesTaxPayment& payment, const std::vector<Agency>& agencies) {
  if (payment.BankID.empty()) return Fault{{"Please select a Bank to Pay Liabilities from.", "No Bank"}, "cmbBankAcct"};
  for (const Agency& agency : agencies)
    if (agency.total <= Money())
      return Fault{{"There is nothing to be paid to " + agency.Vendor + ": the selected lines come to " +
                        Dollar_Text(agency.total) + ".",
                    "Nothing to Pay"},
                   "SSDBGrid1"};
  return {};
}

/// What the agency knows us by.
std::string Our_Number(Session& session, const std::string& item) {
  auto row = session.dbCompany->OpenRecordset("SELECT * FROM PayrollItems WHERE Name = ?", {item});
  if (!row.has_row()) return "";
  if (row["Type"].text() != "Federal Tax") return row["LiabilityNumber"].text();
  return session.dbCompany->value("SELECT FedID FROM CompanyInfo").text();
}

std::string Tax_Category(Session& session, const std::string& item) {
  return session.dbCompany->value("SELECT ItemCat FROM Items WHERE ItemName = ?", {item}).text();
}

int64_t Write_Check(Session& session, const SalesTaxPayment& payment, const Agency& agency) {
  Transaction_Writer check(session,
                           {.TransNum = payment.TransNum,
                            .Type = check_type,
                            .Date = payment.PayDate,
                            .Number = payment.TransNum ? payment.Number : "Print",
                            .Name = agency.Vendor,
                            .Cleared = payment.Cleared},
                           payment.probe);
  check.add({.Account = payment.BankID,
             .Category = break_down,
             .Credit = agency.total,
             .Amount = agency.total,
             .PaidThrough = payment.PaidThrough});
  for (const SalesTaxLine* line : agency.lines)
    check.add({.Account = Tax_Category(session, line->Item),
               .Category = payment.BankID,
               .Debit = line->Amount,
               .Amount = line->Amount,
               .Memo = Our_Number(session, line->Item),
               .Item = line->Item,
               .PaidThrough = payment.PaidThrough});
  check.commit();
  return check.number();
}

}  // namespace

Date Liability_Date(Date payment) {
  const Date last = payment.first_of_month().plus_days(-1);
  return last.month() == 2 ? Date(last.year(), 2, 28) : last;
}

std::vector<SalesTaxLine> Sales_Tax_Owed(Session& session, Date as_of) {
  std::vector<SalesTaxLine> owed;
  session.dbCompany->each(
      "SELECT ItemName, TaxVendor, SUM(CASE WHEN Debit <> 0 THEN -Debit WHEN ? OR Paid <> 0 THEN Credit ELSE 0 END)"
      " FROM Items LEFT JOIN Transactions ON Account = ItemCat AND Item = ItemName"
      " AND (Transactions.Date <= ? OR PaidThrough IS NOT NULL)"
      " WHERE ItemType = 'Sales Tax' GROUP BY Items.RowKey ORDER BY Items.RowKey",
      {!Sales_Tax_On_Cash(*session.dbCompany), as_of}, [&](const store::Row& row) {
        owed.push_back({false, std::string(row.text(0)), std::string(row.text(1)), row.money(2)});
      });
  return owed;
}

SalesTaxPayment New_Sales_Tax_Payment(Session& session) {
  const Date as_of = Liability_Date(session.today());
  return {.BankID = Preference(*session.dbCompany, preference::DefaultBank),
          .PayDate = session.today(),
          .PaidThrough = as_of,
          .lines = Sales_Tax_Owed(session, as_of)};
}

std::optional<SalesTaxPayment> Edit_Sales_Tax_Payment(Session& session, int64_t TransNum) {
  SalesTaxPayment payment{.BankID = {},
                          .PayDate = session.today(),
                          .PaidThrough = session.today(),
                          .TransNum = TransNum,
                          .probe = Probe::Of(*session.dbCompany, TransNum)};
  auto rows = session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Liabilitycheck' ORDER BY RowKey", {TransNum});
  for (; !rows.Eof(); rows.MoveNext()) {
    if (!rows["Item"].blank()) {
      payment.lines.push_back({true, rows["Item"].text(), rows["Name"].text(), rows["Amount"].money()});
      continue;
    }
    payment.BankID = rows["Account"].text();
    payment.PayDate = rows["Date"].date();
    payment.PaidThrough = rows["PaidThrough"].maybe_date().value_or(payment.PayDate);
    payment.Number = rows["Number"].text();
    payment.Cleared = rows["Cleared"].flag();
  }
  if (payment.lines.empty()) return std::nullopt;
  return payment;
}

SalesTaxResult Pay_Sales_Tax(Session& session, const SalesTaxPayment& payment) {
  const auto agencies = Agencies(payment);
  SalesTaxResult result{.fault = Check(payment, agencies)};
  if (result.fault || agencies.empty()) return result;
  result.conflict = Save_Or_Conflict([&] {
    store::Transaction run(*session.dbCompany, "Sales tax through " + payment.PaidThrough.to_text());
    std::vector<int64_t> written;
    for (const Agency& agency : agencies) written.push_back(Write_Check(session, payment, agency));
    run.commit();
    result.written = std::move(written);
  });
  return result;
}

}  // namespace tallymere
