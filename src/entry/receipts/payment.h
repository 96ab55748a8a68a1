#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/deletion.h"
#include "entry/document/lines.h"

/// Customers' payments: money that settles invoices and statements, put into a bank or held until it is deposited.
namespace tallymere {

/// A line of grdHistory: something the customer owes, or owed until this payment.
struct OpenItem {
  bool Recieved = false;
  std::optional<tallymere::Date> Date = {};
  std::string Number = {};
  Money Total = {};           ///< negative: a credit memo, which no payment settles
  Money AmountRecieved = {};  ///< of all payments, this one too
  Money before = {};          ///< of the other payments
  int64_t TransNum = 0;
  Probe probe = {};  ///< another user's payment must not be paid over

  Money open() const { return Total - before; }            ///< what this payment may settle
  Money share() const { return AmountRecieved - before; }  ///< what it does settle, where the line is ticked
};

/// What frmPayments shows.
struct Payment {
  int64_t TransNum = 0;  ///< txtIndex
  std::string Name = {};
  tallymere::Date Date;
  std::optional<Money> Amount = {};
  std::string PayMethod = {};
  std::string Number = {};  ///< txtCheckNum
  std::string Memo = {};
  std::string CatID = {};  ///< lblDepositCat
  std::vector<OpenItem> items = {};

  bool Cleared = false;            ///< any row, as loaded
  int64_t deposit = 0;             ///< the deposit that it lies in
  bool deposited = false;          ///< it left Undeposited Funds, be the deposit known or not
  bool unrecorded = false;         ///< documents name it as their payment, but not how much it paid of them
  std::vector<KeptRow> kept = {};  ///< its rows as they were loaded
  Probe probe = {};

  bool is_new() const { return probe.is_new(); }
};

/// Where money can go: banks and Undeposited Funds.
std::vector<std::pair<std::string, std::string>> Deposit_Categories(Session& session);  ///< AccountName, CatID

Payment New_Payment(Session& session);
std::optional<Payment> Load_Payment(Session& session, int64_t TransNum);

/// Lists what the customer owes, oldest first, and what this payment settled.
void List_Open_Items(Session& session, Payment& payment);

/// Applies an amount as txtAmount does when it is left: to the first open item of exactly this total, else from the
/// oldest on. What remains.
Money Apply_Automatically(std::vector<OpenItem>& items, Money amount);
/// lblApply after a line was changed by hand: the amount less what the ticked lines take of it.
Money Left_To_Apply(const std::vector<OpenItem>& items, Money amount);
/// A line was ticked by hand: it takes what is left, at most what is open.
void Tick(OpenItem& item, Money left);

SaveResult Enter_Payment(Session& session, Payment& payment);

/// Why a payment can neither be changed nor deleted, in one line; "" where it can.
std::string Locked_Why(Session& session, const Payment& payment);

extern const DocumentKind<Payment> Payment_Kind;

/// Asks and deletes it; what it settled is open again by exactly that.
Deleted<Payment> Delete_Payment(Session& session, const Payment& payment);

/// A payment that waits in Undeposited Funds.
struct WaitingPayment {
  int64_t TransNum = 0;
  std::string Name = {};
  Money Amount = {};
  tallymere::Date Date;
};
std::vector<WaitingPayment> Waiting_Payments(Session& session);

}  // namespace tallymere
