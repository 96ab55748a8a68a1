#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

/// What customers are charged for paying late, reckoned from their open invoices and entered as a "Statement".
namespace tallymere {

/// What one open invoice adds to a charge.
struct ChargeLine {
  std::string Number = {};
  tallymere::Date Date;
  int days = 0;  ///< between the invoice and the statement, whichever is first
  Money AmountReceived = {};
  Money charge = {};  ///< in ten-thousandths: only the sum is rounded to cents

  friend bool operator==(const ChargeLine&, const ChargeLine&) = default;
};

struct FinanceCharge {
  std::string customer = {};
  tallymere::Date Date;
  std::string APR = {};         ///< as the preferences say it: "18%" and "18" reckon differently
  std::string FinanceCat = {};  ///< "" when there is none, or the category is gone
  Money balance = {};           ///< all that the customer owes: each invoice is charged on the whole of it
  std::vector<ChargeLine> lines = {};
  Money amount = {};

  friend bool operator==(const FinanceCharge&, const FinanceCharge&) = default;
};

/// With "%" in the rate an invoice adds (balance - received) x rate / 100 / 365 x days; without, (balance - received) x
/// rate / 100 / 365 less days x received. Both are as they have always been.
FinanceCharge Reckon_Finance_Charge(Session& session, const std::string& customer, Date date);
/// Of every customer whose open invoices come to something, by name.
std::vector<FinanceCharge> Reckon_Finance_Charges(Session& session, Date date);

/// Whether statements can be made: the settings are there, and the paper was looked at first.
std::optional<Fault> Statement_Fault(const FinanceCharge& charge, bool shown);

/// Enters those charges that are above zero, all or none of them. Asks first where a customer was charged on that day
/// already; where a charge is another by now than was shown, says so and enters nothing. true: the window may close.
bool Post_Statements(Session& session, const std::vector<FinanceCharge>& charges);

}  // namespace tallymere
