#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "payroll/periods.h"

/// PayHistory: which periods have been opened for whom, and which are paid.
namespace tallymere {

/// A line of the pay run.
struct PayRunRow {
  std::string Employee;  ///< name
  std::string PayPeriod;
  bool Paid = false;
  Date PayCheckDate;
};

/// Everybody employed who can be paid for a period that ends on this day, by name. A day not used before lists all
/// employees, unpaid; their rows are written with the first check of that day, so that looking at a day leaves nothing.
std::vector<PayRunRow> Pay_Run(store::Database& company, Date pay_end);

/// Whether to ask first: the period is marked paid, or a check for this number and period exists.
bool Is_Already_Paid(store::Database& company, const PayRunRow& row, std::string_view ss_num, const PayPeriod& period);

// All of these write inside the caller's Transaction.

/// Opens a day for all employees, released ones too, if nobody has yet.
void Open_Pay_Period(store::Database& company, Date pay_end);
void Mark_Paid(store::Database& company, std::string_view employee, Date pay_end);
/// Somebody new is to be paid for every period opened so far.
void Seed_Pay_History(store::Database& company, std::string_view employee, std::string_view pay_period);

}  // namespace tallymere
