#pragma once

#include <memory>
#include <string>

#include "core/store/recordset.h"

namespace tallymere {

/// The long-lived table-type sets, one each, open from Set_Recordsets to Close_Sets. They stay where the last user left
/// them, so every caller begins with MoveFirst or Seek.
struct RecordSets {
  using Set = std::unique_ptr<store::Table>;
  Set Colors, GeneralPrefs, Items, Customers, Vendors, Accounts, CompanyInfo, PaymentMethod, Terms, VIA, RepNames,
      Class, Employees, EmployeeEarnings, EmployeeAdjustments, EmployeeTaxes, PayrollItems, TaxTracking, PreTaxTable,
      PreWageTable, PreDeducTable, FedWithholdAllowance, RepeatTrans, Threshold, POs, POItems, PSlips, PSlipItems,
      Estimates, EstItems, SavedReports, CustomerMessages;
};

}  // namespace tallymere
