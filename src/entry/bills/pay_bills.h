#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "entry/document/document.h"

/// Paying bills: several at once, one payment to each vendor.
namespace tallymere {

/// A bill with something left to pay: a line of grdBills.
struct UnpaidBill {
  std::optional<Date> DueDate = {};
  std::string Vendor = {};
  Money AmountDue = {};  ///< more than nothing; less than the bill's amount where some of it was paid
  std::string Number = {};
  int64_t RefNum = 0;  ///< its TransNum

  friend bool operator==(const UnpaidBill&, const UnpaidBill&) = default;
};

enum class BillOrder { DueDate, Vendor, AmountDue };
std::vector<UnpaidBill> Unpaid_Bills(Session& session, BillOrder order);

enum class PayBy { CreditCard, Check };

/// A category that money can be taken from: what cmbCat offers.
struct PayingCategory {
  std::string CatID, AccountName;
};
std::vector<PayingCategory> Paying_Categories(Session& session, PayBy way);

/// What frmPayBills shows.
struct BillPayment {
  Date PayDate;
  PayBy way = PayBy::Check;
  std::string CatID = {};              ///< lblBankID
  std::vector<UnpaidBill> bills = {};  ///< those selected, as they were listed
  /// What is paid of bills that are not paid whole, by RefNum: more than nothing, less than what is due.
  std::map<int64_t, Money> parts = {};

  Money amount(const UnpaidBill& bill) const;
  Money total() const;
};

/// Writes one payment a vendor, numbered in the order in which the bills name them, and marks the bills as paid by it,
/// once nothing is left to pay: all in one store transaction. A bill that another user paid or changed since it was listed is a conflict that says
/// which one, and nothing is paid.
SaveResult Pay_Bills(Session& session, const BillPayment& payment);

}  // namespace tallymere
