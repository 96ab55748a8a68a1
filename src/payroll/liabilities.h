#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"

/// What is owed to the agencies, and how it is paid, corrected and refunded.
namespace tallymere {

/// A line of grdItems: an item, whom it is owed to, and how much.
struct OwedItem {
  bool Select = false;
  std::string PayrollItem = {}, PayTo = {};
  Money Amount = {};
  std::string AcctNum = {};  ///< our number with the agency
};

/// What each item with a liability category owes as of a day, by type and then as entered; items without any rows are not
/// in it. Rows of payments and refunds (with a PaidThrough) count whatever their date, all others up to the day.
std::vector<OwedItem> Load_List(store::Database& company, Date as_of);

/// What frmPayLiabilites shows.
struct LiabilityPayment {
  int64_t TransNum = 0;  ///< 0: new
  std::string BankID = {};
  Date PayDate;  ///< of the checks
  Date QtrDate;  ///< "Liability as of:"
  std::string Number = "Print";
  bool Cleared = false;
  std::vector<OwedItem> items = {};
  Probe probe = {};
};
LiabilityPayment New_Liability_Payment(Session& session);
/// A check of the ledger with its items ticked; nothing when it pays no payroll items.
std::optional<LiabilityPayment> Edit_Liability_Payment(Session& session, int64_t TransNum);

/// How a save of this file ended: nothing is written unless ok().
struct LiabilityResult {
  std::optional<Fault> fault = {};
  std::optional<Conflict> conflict = {};
  std::vector<int64_t> numbers = {};  ///< what was written
  bool ok() const { return !fault && !conflict; }
};

/// One check an agency for the ticked items, all in one store transaction. A changed payment keeps its number for the first.
LiabilityResult Pay_Liabilities(Session& session, const LiabilityPayment& payment);

/// A row of grdAdjustments. A positive amount lowers what is owed.
struct LiabilityCorrection {
  std::string PayrollItem = {};
  Money Amount = {};
  std::string Employee = {};  ///< name; of items that the employee pays
};
/// Whether the item can be posted, and the employee stands where he must and not where he must not.
std::optional<Fault> Correction_Fault(store::Database& company, const LiabilityCorrection& row);
/// One transaction for all rows. What an employee pays gets its other side by the posting rule.
LiabilityResult Adjust_Liabilities(Session& session, Date date, const std::vector<LiabilityCorrection>& rows);

/// Where a refund can go: banks and "Undeposited Funds".
struct RefundPlace {
  std::string AccountName, CatID;
};
std::vector<RefundPlace> Refund_Places(store::Database& company);

struct RefundLine {
  std::string PayrollItem = {};
  Money Amount = {};
};
struct LiabilityRefund {
  Date date;
  Date period_end;
  std::string Vendor = {};
  std::string CatID = {};  ///< where the money goes
  std::vector<RefundLine> lines = {};
};
LiabilityResult Refund_Liabilities(Session& session, const LiabilityRefund& refund);

}  // namespace tallymere
