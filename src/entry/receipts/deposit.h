#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/document.h"

/// Deposits: payments that were held and other receipts, put into a bank.
namespace tallymere {

/// A line of grdPayments.
struct DepositLine {
  std::string Customer = {};
  std::optional<Money> Amount = {};
  std::string Memo = {};
  std::string Category = {};
  std::string Class = {};
  std::string CatID = {};
  int64_t Payment = 0;  ///< the held payment it is; such a line keeps customer, amount and category
};

/// What frmDeposits shows.
struct Deposit {
  int64_t TransNum = 0;  ///< fixed as the window opens; if another user took it meanwhile the next free one
  tallymere::Date Date;
  std::string Number = {};
  std::string BankID = {};
  std::vector<DepositLine> lines = {};

  Money total() const;
};
Deposit New_Deposit(Session& session);

/// Banks, Undeposited Funds aside: AccountName, CatID.
std::vector<std::pair<std::string, std::string>> Deposit_Banks(Session& session);

/// Held payments as lines; those that wait no more are left out.
std::vector<DepositLine> Held_Lines(Session& session, const std::vector<int64_t>& payments);

/// Writes the deposit and marks its payments, all in one commit. A payment that another user deposited, changed or
/// deleted meanwhile is a fault, and nothing is written.
SaveResult Enter_Deposit_Form(Session& session, Deposit& deposit);

}  // namespace tallymere
