#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/values/amount_in_words.h"
#include "entry/document/deletion.h"
#include "entry/document/lines.h"

/// The check book: checks, and the three kinds of check that other windows write.
namespace tallymere {

/// A bank as the check shows it.
struct Bank {
  std::string CatID = {};
  std::string AccountName = {};
  Money Balance = {};
};

/// A bill that a Billcheck paid: a line of grdBills.
struct PaidBill {
  std::optional<Date> DueDate = {};
  std::string Number = {};
  std::string Vendor = {};
  Money Amount = {};
  std::optional<Date> BillDate = {};
};

/// A line of grdLiabilities.
struct LiabilityLine {
  std::string PayrollItem = {};  ///< or the item of a sales tax payment
  Money Amount = {};
};

/// What frmCheck shows.
struct Check {
  int64_t TransNum = 0;     ///< txtIndex
  std::string Type = {};    ///< "Check", "Billcheck", "Paycheck", "Liabilitycheck"; empty: new
  std::string BankID = {};  ///< lblBankID
  tallymere::Date Date;
  std::string Number = "Print";
  std::string Name = {};
  std::string Address = {};
  std::string Memo = {};
  std::optional<Money> Amount = {};  ///< negative: money that comes in
  bool Cleared = false;
  bool Valid = true;  ///< the category, item or payee typed last is one of its list
  LineTab Tab = LineTab::Expenses;
  std::vector<ExpenseLine> expenses = {};
  std::vector<ItemLine> items = {};

  std::vector<PaidBill> bills = {};             ///< of a Billcheck
  std::string PayPeriod = {};                   ///< of a Paycheck, as is Hours
  double Hours = 0;                             ///< the sum over its rows
  std::vector<LiabilityLine> liabilities = {};  ///< of a Liabilitycheck, as the next two
  std::optional<tallymere::Date> PaidThrough = {};
  bool has_payroll_items = false;  ///< pays payroll items, else sales tax

  KeptRow kept = {};  ///< the bank's row as it was loaded, and its date
  std::optional<tallymere::Date> loaded = {};
  Probe probe = {};

  bool is_new() const { return Type.empty(); }
  /// Written by another window: only Number, or Number and Date, or these and Name may change here.
  bool is_narrow() const { return !is_new() && Type != "Check"; }
};

/// The banks that cmbAccount offers, and one of them by its CatID.
std::vector<Bank> Banks(Session& session);
Bank Read_Bank(Session& session, const std::string& CatID);

/// What frmCheck opens with, after the banks' balances are brought up to date: the check asked for, or a
/// blank one.
Check Open_Checks(Session& session, int64_t TransNum = 0);
/// A blank check on the default bank, numbered one past the highest TransNum of the ledger.
Check New_Check(Session& session);
/// The check under this number; nothing when it is no check or another user has deleted it.
std::optional<Check> Load_Check(Session& session, int64_t TransNum);

/// The address of a payee, its lines parted by CR LF; "" when there is none or it is incomplete.
std::string Load_Address_Box(Session& session, const std::string& name);
/// The address box without the line end it may close with.
std::string Without_Last_Line_End(std::string address);

/// Saves what frmCheck shows. Afterwards `check` has the number, type and probe for the next save.
SaveResult Enter_Check(Session& session, Check& check);

/// Which fields of a check the check book may change; its number always.
struct CheckFields {
  bool Date = true;
  bool Name = true;
  bool others = true;
};
CheckFields Editable_Fields(const Check& check);
/// Why the rest of a check cannot be changed here, in one line; "" where all can.
std::string Locked_Why(const Check& check);

/// "Print" is no number to print a check under.
std::optional<Fault> Cannot_Print(const Check& check);

/// Checks, for the walk from one to the next.
extern const DocumentKind<Check> Check_Kind;

/// Asks, frees the bills that this check alone paid, and deletes its rows, all in one step.
Deleted<Check> Delete_Check(Session& session, const Check& check);

}  // namespace tallymere
