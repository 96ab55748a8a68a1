#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"

/// Paying the sales tax that was collected: what is owed per tax item, and one check per agency.
namespace tallymere {

/// A line of the list: a sales tax, its agency, and what is owed, negative when more was paid than collected.
struct SalesTaxLine {
  bool Select = false;
  std::string Item;
  std::string Vendor;
  Money Amount;
};

/// A run of payments, or the one check that is being changed.
struct SalesTaxPayment {
  std::string BankID;
  tallymere::Date PayDate;
  tallymere::Date PaidThrough;  ///< the liability as of this day
  std::vector<SalesTaxLine> lines = {};
  int64_t TransNum = 0;  ///< of the check being changed; 0: new ones
  std::string Number = {};
  bool Cleared = false;
  Probe probe = {};
};

/// The last day of the month before a payment; of February always the 28th.
Date Liability_Date(Date payment);

/// What is owed per sales tax item as of a day, by the company's sales tax basis: on "Cash" an unpaid invoice's tax is not owed
/// yet. What was paid counts as paid whatever its day.
std::vector<SalesTaxLine> Sales_Tax_Owed(Session& session, Date as_of);

SalesTaxPayment New_Sales_Tax_Payment(Session& session);
/// A check that was written here; nothing when it is gone or none of these.
std::optional<SalesTaxPayment> Edit_Sales_Tax_Payment(Session& session, int64_t TransNum);

struct SalesTaxResult {
  std::optional<Fault> fault = {};
  std::optional<Conflict> conflict = {};
  std::vector<int64_t> written = {};  ///< the checks; none when nothing was selected
};
/// Writes one check per agency, all of them or none. An agency with nothing to be paid, or less, is refused. A changed check keeps
/// its number; with no line selected it stays as it is.
SalesTaxResult Pay_Sales_Tax(Session& session, const SalesTaxPayment& payment);

}  // namespace tallymere
