#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"
#include "payroll/calc/calculate.h"
#include "payroll/pay_history.h"
#include "payroll/periods.h"

/// Opening a paycheck: a new one out of the employee's records and time sheets, an old one out of its rows.
namespace tallymere {

/// What frmPayRoll hands to each check of a run.
struct PayRunHead {
  Date pay_end;
  Date pay_date;
  std::string BankID = {};
};

/// What frmPayCheck shows and saves.
struct PaycheckEntry {
  int64_t TransNum = 0;  ///< 0: new
  Date date;             ///< of the check
  Date pay_end;          ///< the day of the run, under which PayHistory knows it
  std::string BankID = {};
  std::string Number = "Print";
  std::string Class = {};
  bool Cleared = false;
  PayPeriod period = {};
  Paycheck check = {};
  PayFacts facts = {};
  Probe probe = {};

  bool is_new() const { return TransNum == 0; }
};

/// What a calculation for this employee goes by; `own_number` is the check itself, when it stands in the ledger.
PayFacts Pay_Facts(Session& session, PayEmployee employee, int64_t own_number = 0);

/// "No Bank" before a run; nothing when it may begin.
std::optional<Fault> Run_Fault(const PayRunHead& run);

/// A check of the run, calculated as it first comes up. The box says why the run ends there: the pay period has no
/// bounds. Error 3021 when the employee or one of his items is gone.
struct NewPaycheck {
  std::optional<PaycheckEntry> entry;
  std::optional<Box> box;
};
NewPaycheck New_Paycheck(Session& session, const PayRunHead& run, const PayRunRow& row);

/// A check of the ledger as its rows say; nothing is calculated. Nothing when there is no such paycheck.
std::optional<PaycheckEntry> Open_Paycheck(Session& session, int64_t TransNum);

/// The step the first calculation begins with, in place of Add_Earnings: the employee's regular wages and lines.
void Fill_From_Employee(Paycheck& check, const PayFacts& facts, const std::vector<double>& hours);

}  // namespace tallymere
