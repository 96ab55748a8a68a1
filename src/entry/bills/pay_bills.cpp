#include "entry/bills/pay_bills.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/values/caseless.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

/// A bill that stands on the other side asks for no money and is not among them.
constexpr const char* unpaid =
    "SELECT DueDate, Name, Credit - IFNULL(Debit, 0) -"
    " IFNULL((SELECT SUM(a.Amount) FROM Applied AS a WHERE a.Document = Transactions.TransNum), 0) AS Due,"
    " Number, TransNum FROM Transactions WHERE Paid = False AND Type = 'Bill' AND Account = 'AP1' AND Due > 0";

constexpr const char* orders[] = {"DueDate, Name, TransNum", "Name, DueDate, TransNum", "Due, DueDate, TransNum"};

}  // namespace

std::vector<UnpaidBill> Unpaid_Bills(Session& session, BillOrder order) {
  std::vector<UnpaidBill> bills;
  session.dbCompany->each(
      std::string(unpaid) + " ORDER BY " + orders[static_cast<size_t>(order)], {}, [&](const store::Row& row) {
        bills.push_back(
            {row.date(0), std::string(row.text(1)), row.money(2), std::string(row.text(3)), row.integer(4)});
      });
  return bills;
}

std::vector<PayingCategory> Paying_Categories(Session& session, PayBy way) {
  std::vector<PayingCategory> categories;
  session.dbCompany->each("SELECT CatID, AccountName FROM Accounts WHERE AccountType = ?",
                          {way == PayBy::Check ? "Bank" : "Credit Card"}, [&](const store::Row& row) {
                            categories.push_back({std::string(row.text(0)), std::string(row.text(1))});
                          });
  return categories;
}

// --- paying ----------------------------------------------------------------------------------------------

Money BillPayment::amount(const UnpaidBill& bill) const {
  const auto part = parts.find(bill.RefNum);
  return part == parts.end() ? bill.AmountDue : part->second;
}

Money BillPayment::total() const {
  Money sum;
  for (const UnpaidBill& bill : bills) sum += amount(bill);
  return sum;
}

namespace {

/// A vendor, and the selected bills that one payment pays.
struct VendorTotal {
  std::string Vendor;
  Money total;
  std::vector<const UnpaidBill*> bills;
};

std::vector<VendorTotal> Vendor_Totals(const BillPayment& payment) {
  std::vector<VendorTotal> totals;
  CaselessMap<size_t> places;
  for (const UnpaidBill& bill : payment.bills) {
    const auto [place, is_first] = places.try_emplace(bill.Vendor, totals.size());
    if (is_first) totals.push_back({bill.Vendor, {}, {}});
    VendorTotal& total = totals[place->second];
    total.total += payment.amount(bill);
    total.bills.push_back(&bill);
  }
  return totals;
}

/// The first selected bill that does not stand as it was listed.
const UnpaidBill* Overtaken(Session& session, const BillPayment& payment) {
  std::map<int64_t, UnpaidBill> now;
  for (UnpaidBill& bill : Unpaid_Bills(session, BillOrder::DueDate)) now[bill.RefNum] = std::move(bill);
  const auto stands = [&](const UnpaidBill& bill) {
    const auto found = now.find(bill.RefNum);
    return found != now.end() && found->second == bill;
  };
  const auto changed = std::ranges::find_if_not(payment.bills, stands);
  return changed == payment.bills.end() ? nullptr : &*changed;
}

/// Where the vendor's checks go to; nowhere for one that is in no list.
std::string Address_Of(Session& session, const std::string& Vendor) {
  return session.dbCompany->value("SELECT ShippingAddress FROM Vendors WHERE Name = ?", {Vendor}).text();
}

int64_t Write_Payment(Session& session, const BillPayment& payment, const VendorTotal& vendor) {
  const bool check = payment.way == PayBy::Check;
  Transaction_Writer rows(session, {.Type = check ? "Billcheck" : "Ledger Entry",
                                    .Date = payment.PayDate,
                                    .Number = check ? "Print" : "",
                                    .Name = vendor.Vendor,
                                    .Address = Address_Of(session, vendor.Vendor)});
  rows.add({.Account = payment.CatID, .Category = accounts_payable, .Credit = vendor.total, .Amount = vendor.total});
  rows.add({.Account = accounts_payable, .Category = payment.CatID, .Debit = vendor.total, .Amount = vendor.total});
  rows.commit();
  return rows.number();
}

std::string Title(const BillPayment& payment, const std::vector<VendorTotal>& vendors) {
  const std::string who = vendors.size() == 1 ? vendors.front().Vendor : std::to_string(vendors.size()) + " vendors";
  return "Paid bills, " + who + ", " + Dollar_Text(payment.total()) +
         (payment.way == PayBy::Check ? " by check" : " by card");
}

std::optional<Fault> Payment_Fault(const BillPayment& payment) {
  if (payment.CatID.empty()) return Mistake("Please Select a Place to withdraw from.", "No Selection", "cmbCat");
  if (payment.bills.empty()) return Mistake("Please Select a Bill to Pay.", "No Selection", "grdBills");
  for (const UnpaidBill& bill : payment.bills)
    if (const Money paid = payment.amount(bill); paid <= Money() || paid > bill.AmountDue)
      return Mistake("Of " + Spoken("bill", bill.Number, bill.Vendor, bill.AmountDue) + " " + Dollar_Text(paid) +
                         " cannot be paid.",
                     "Bill Payment", "txtPart");
  return std::nullopt;
}

}  // namespace

SaveResult Pay_Bills(Session& session, const BillPayment& payment) {
  if (auto fault = Payment_Fault(payment)) return {.fault = fault};
  store::Database& db = *session.dbCompany;
  std::string overtaken;
  SaveResult result;
  result.conflict = Save_Or_Conflict([&] {
    const auto vendors = Vendor_Totals(payment);
    store::Transaction run(db, Title(payment, vendors));
    if (const UnpaidBill* bill = Overtaken(session, payment)) {
      overtaken = Spoken("Bill", bill->Number, bill->Vendor, bill->AmountDue);
      throw store::Error(store::errors::data_changed, "The bill was paid or changed.");
    }
    for (const VendorTotal& vendor : vendors) {
      const int64_t number = Write_Payment(session, payment, vendor);
      for (const UnpaidBill* bill : vendor.bills) Apply(db, number, bill->RefNum, payment.amount(*bill));
    }
    run.commit();
  });
  if (!overtaken.empty()) result.conflict->box.detail = overtaken + " was paid or changed. Nothing was paid now.";
  result.written = !result.conflict;
  return result;
}

}  // namespace tallymere
