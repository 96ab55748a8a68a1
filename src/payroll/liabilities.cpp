#include "payroll/liabilities.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "payroll/pay_items.h"
#include "payroll/posting_rule.h"

namespace tallymere {
namespace {

constexpr const char* check_type = "Liabilitycheck";
constexpr const char* adjust_type = "Liability Adjust";

Fault Mistaken(const char* text, const char* title, const char* control) { return Fault{{text, title}, control}; }

/// The ticked items of one agency.
struct Agency {
  std::string Name, AcctNum;
  Money total;
  std::vector<const OwedItem*> items;
};

std::vector<Agency> Agencies_Of(const LiabilityPayment& payment) {
  std::vector<Agency> agencies;
  for (const OwedItem& item : payment.items) {
    if (!item.Select) continue;
    auto agency = std::ranges::find_if(agencies, [&](const Agency& one) { return same_text(one.Name, item.PayTo); });
    if (agency == agencies.end()) agency = agencies.insert(agencies.end(), Agency{item.PayTo, item.AcctNum, {}, {}});
    agency->total += item.Amount;
    agency->items.push_back(&item);
  }
  return agencies;
}

std::optional<Fault> Payment_Fault(const LiabilityPayment& payment, const std::vector<Agency>& agencies) {
  if (payment.BankID.empty())
    return Mistaken("Please select a Bank to Pay Liabilities from.", "No Bank", "cmbBankAcct");
  for (const Agency& agency : agencies) {
    if (agency.Name.empty())
      return Mistaken("Please Enter an Agency to Pay To before paying Liability", "No Agency", "grdItems");
    if (agency.total.is_negative())
      return Fault{{"There is nothing to be paid to " + agency.Name + ": the selected lines come to " +
                        Dollar_Text(agency.total) + ".",
                    "Nothing to Pay"},
                   "grdItems"};
  }
  return {};
}

/// An amount on the side it lowers a liability on; a negative one on the other.
LedgerRow Paid_Row(const std::string& account, const std::string& category, Money amount) {
  LedgerRow row{.Account = account, .Category = category, .Amount = amount.abs()};
  (amount.is_negative() ? row.Credit : row.Debit) = amount.abs();
  return row;
}

int64_t Write_Check(Session& session, const LiabilityPayment& payment, const Agency& agency, bool first) {
  store::Database& db = *session.dbCompany;
  const auto items = PayItems::Of(db);
  const std::string federal_id = db.value("SELECT FedID FROM CompanyInfo").text();
  auto vendor = db.OpenRecordset("SELECT * FROM Vendors WHERE Name = ?", {agency.Name});
  const std::string shipping = vendor.has_row() ? vendor["ShippingAddress"].text() : "";
  Transaction_Writer check(session,
                           {.TransNum = first ? payment.TransNum : 0,
                            .Type = check_type,
                            .Date = payment.PayDate,
                            .Number = payment.Number,
                            .Name = agency.Name,
                            .Address = vendor.has_row() ? vendor["Address"].text() : "",
                            .Cleared = payment.Cleared},
                           first ? payment.probe : Probe());
  auto add = [&](LedgerRow row) {
    row.ShippingAddress = shipping;
    row.PaidThrough = payment.QtrDate;
    check.add(row);
  };
  add({.Account = payment.BankID,
       .Category = break_down,
       .Credit = agency.total,
       .Amount = agency.total,
       .Memo = agency.AcctNum});
  for (const OwedItem* owed : agency.items) {
    const PayItem& item = items->item(owed->PayrollItem);
    LedgerRow row = Paid_Row(item.LiabilityAcct, payment.BankID, owed->Amount);
    row.PayrollItem = item.Name;
    row.Memo = item.type() == ItemType::FederalTax ? federal_id : item.LiabilityNumber;
    add(std::move(row));
  }
  check.commit();
  return check.number();
}

/// Runs what writes, in one step of the history.
template <typename Write>
LiabilityResult Written(Session& session, const char* what, Write&& write) {
  LiabilityResult result;
  result.conflict = Save_Or_Conflict([&] {
    store::Transaction tx(*session.dbCompany, what);
    std::vector<int64_t> numbers = write();
    tx.commit();
    result.numbers = std::move(numbers);
  });
  return result;
}

std::string Number_Of_Employee(store::Database& db, const std::string& name) {
  return name.empty() ? "" : db.value("SELECT SSNum FROM Employees WHERE Name = ? ORDER BY RowKey", {name}).text();
}

void Add_Correction(Transaction_Writer& writer, store::Database& db, const LiabilityCorrection& row) {
  const PayItem item = PayItems::Of(db)->item(row.PayrollItem);
  auto add = [&](const std::string& account, Money amount, bool of_item) {
    LedgerRow line = Paid_Row(account, break_down, amount);
    line.Memo = "Payroll Liability Adjustment";
    line.Name = row.Employee;
    line.SSNum = Number_Of_Employee(db, row.Employee);
    if (of_item) line.PayrollItem = item.Name;
    writer.add(line);
  };
  add(item.LiabilityAcct, row.Amount, true);
  if (!item.ExpenseAcct.empty()) return add(item.ExpenseAcct, -row.Amount, true);
  if (const std::string other = Adjustment_Other_Side(Posting_Rule(db)); !other.empty()) add(other, -row.Amount, false);
}

/// What has no liability category cannot be posted; nothing when it has one.
std::optional<Fault> Category_Fault(store::Database& db, const std::string& item, const char* control) {
  if (item.empty()) return Mistaken("Please choose a payroll item.", "No Item", control);
  if (!PayItems::Of(db)->item(item).LiabilityAcct.empty()) return {};
  return Fault{{"The payroll item " + item + " has no liability category.", "No Category"}, control};
}

std::optional<Fault> Refund_Fault(store::Database& db, const LiabilityRefund& refund) {
  if (refund.lines.empty()) return Mistaken("Please Select a Payrollitem to refund to.", "No Items", "grdItems");
  for (const RefundLine& line : refund.lines)
    if (auto fault = Category_Fault(db, line.PayrollItem, "grdItems")) return fault;
  if (refund.Vendor.empty()) return Mistaken("Please Select a Vendor to refund form.", "No Vendor", "cmbVendor");
  if (refund.CatID.empty()) return Mistaken("Please Select a Category to refund to.", "No Category", "cmbDeposit");
  return {};
}

}  // namespace

std::vector<OwedItem> Load_List(store::Database& company, Date as_of) {
  std::vector<OwedItem> owed;
  company.each(
      "SELECT p.Name, p.LiabilityAgency, p.LiabilityNumber,"
      " SUM(CASE WHEN (t.PaidThrough IS NULL OR t.PaidThrough <= '1899-12-30') AND t.Date > ? THEN 0"
      " WHEN IFNULL(t.Debit, 0) = 0 THEN IFNULL(t.Credit, 0) ELSE -t.Debit END)"
      " FROM PayrollItems AS p JOIN Transactions AS t ON t.PayrollItem = p.Name AND t.Account = p.LiabilityAcct"
      " WHERE p.LiabilityAcct <> '' GROUP BY p.RowKey ORDER BY p.Type, p.RowKey",
      {as_of}, [&owed](const store::Row& row) {
        owed.push_back(
            {false, std::string(row.text(0)), std::string(row.text(1)), row.money(3), std::string(row.text(2))});
      });
  return owed;
}

LiabilityPayment New_Liability_Payment(Session& session) {
  store::Database& db = *session.dbCompany;
  return {.BankID = Preference(db, preference::DefaultBank),
          .PayDate = session.today(),
          .QtrDate = session.today(),
          .items = Load_List(db, session.today())};
}

std::optional<LiabilityPayment> Edit_Liability_Payment(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  LiabilityPayment payment{.TransNum = TransNum, .PayDate = session.today(), .QtrDate = session.today()};
  payment.probe = Probe::Of(db, TransNum);
  auto rows = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  if (!rows.has_row() || rows["Type"].text() != check_type || rows["Date"].blank()) return {};
  payment.PayDate = rows["Date"].date();
  payment.QtrDate = rows["PaidThrough"].maybe_date().value_or(payment.PayDate);
  payment.BankID = rows["Account"].text();
  payment.Number = rows["Number"].text();
  payment.Cleared = rows["Cleared"].flag();
  const auto items = PayItems::Of(db);
  for (; !rows.Eof(); rows.MoveNext()) {
    const std::string name = rows["PayrollItem"].text();
    if (name.empty()) continue;
    const PayItem* item = items->find(name);
    payment.items.push_back({true, name, rows["Name"].text(), rows["Debit"].money() - rows["Credit"].money(),
                             item ? item->LiabilityNumber : ""});
  }
  if (payment.items.empty()) return {};
  return payment;
}

LiabilityResult Pay_Liabilities(Session& session, const LiabilityPayment& payment) {
  const std::vector<Agency> agencies = Agencies_Of(payment);
  if (auto fault = Payment_Fault(payment, agencies)) return {.fault = std::move(fault)};
  return Written(session, "Payroll liabilities paid", [&] {
    std::vector<int64_t> numbers;
    for (const Agency& agency : agencies)
      numbers.push_back(Write_Check(session, payment, agency, &agency == &agencies.front()));
    return numbers;
  });
}

std::optional<Fault> Correction_Fault(store::Database& company, const LiabilityCorrection& row) {
  if (auto fault = Category_Fault(company, row.PayrollItem, "grdAdjustments")) return fault;
  const bool employer = PayItems::Of(company)->item(row.PayrollItem).paid_by_employer();
  if (!employer && row.Employee.empty())
    return Mistaken("Item is Employee Paid, Employee Name is Necessary", "No Employee", "grdAdjustments");
  if (employer && !row.Employee.empty())
    return Mistaken("Item is Employer Paid, no Employee Name Necessary", "Employee is not Needed", "grdAdjustments");
  return {};
}

LiabilityResult Adjust_Liabilities(Session& session, Date date, const std::vector<LiabilityCorrection>& rows) {
  for (const LiabilityCorrection& row : rows)
    if (auto fault = Correction_Fault(*session.dbCompany, row)) return {.fault = std::move(fault)};
  if (rows.empty()) return {};
  return Written(session, "Payroll liabilities adjusted", [&] {
    Transaction_Writer writer(session, {.Type = adjust_type, .Date = date});
    for (const LiabilityCorrection& row : rows) Add_Correction(writer, *session.dbCompany, row);
    writer.commit();
    return std::vector{writer.number()};
  });
}

std::vector<RefundPlace> Refund_Places(store::Database& company) {
  std::vector<RefundPlace> places;
  company.each(
      "SELECT AccountName, CatID FROM Accounts WHERE AccountType = 'Bank' OR AccountName = 'Undeposited Funds'", {},
      [&places](const store::Row& row) {
        places.push_back({std::string(row.text(0)), std::string(row.text(1))});
      });
  return places;
}

LiabilityResult Refund_Liabilities(Session& session, const LiabilityRefund& refund) {
  if (auto fault = Refund_Fault(*session.dbCompany, refund)) return {.fault = std::move(fault)};
  return Written(session, "Payroll liabilities refunded", [&] {
    const auto items = PayItems::Of(*session.dbCompany);
    Money total;
    for (const RefundLine& line : refund.lines) total += line.Amount;
    Transaction_Writer writer(session, {.Type = adjust_type, .Date = refund.date, .Name = refund.Vendor});
    auto add = [&](LedgerRow row) {
      row.Memo = "Payroll Liability Refund";
      row.PaidThrough = refund.period_end;
      writer.add(row);
    };
    add(Paid_Row(refund.CatID, break_down, total));
    for (const RefundLine& line : refund.lines) {
      LedgerRow row = Paid_Row(items->item(line.PayrollItem).LiabilityAcct, refund.CatID, -line.Amount);
      row.PayrollItem = line.PayrollItem;
      add(std::move(row));
    }
    writer.commit();
    return std::vector{writer.number()};
  });
}

}  // namespace tallymere
