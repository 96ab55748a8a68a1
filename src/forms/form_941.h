#pragma once

#include <array>

#include "forms/tax_form.h"

/// The federal quarterly return of withheld taxes, with its daily record of what was owed.
namespace tallymere {

/// The lines of the 941, in its order.
std::span<const FormLineDef> Lines_941();
DateRange Quarter_Of(Date day);               ///< first and last day of the calendar's quarter
DateRange Quarter_Of(int year, int quarter);  ///< from 1 to 4

/// What frmCreate941 holds: the quarter, what the user typed, the boxes.
struct Entry941 {
  enum Deposit { Semiweekly, Monthly };
  enum Over { Refund, Apply };

  Date dteEnd;  ///< the last day of the quarter
  Corrections typed = {};
  std::string txtEmpCount = {}, cmbState = {};
  Deposit optDeposit = Monthly;
  Over optOver = Refund;
  bool chkAddDif = false, chkSeason = false, chkApplyTaxableWage = false;
  std::optional<Date> dteFinalWage = {};  ///< no further returns: when the last wages were paid
};

/// Error 3021 when Social Security or Medicare of employees is no payroll item any more.
TaxForm Reckon_941(Session& session, const Entry941& entry);
/// "x 12.4% =": both halves of "Social Security Employee" or "Medicare Employee".
std::string Rate_Label(const PayItems& items, std::string_view employee_item);
/// Employees whose pay period holds the 12th of the quarter's last month.
int Employees_On_The_12th(store::Database& company, Date quarter_end);
/// "No State" and "No Count" before it is shown on paper.
std::optional<Fault> Print_Fault(const Entry941& entry);

/// What was owed day by day. The months run from one quarter's end, less whole months, to the next: the 31st may stand in
/// the month that follows.
struct ScheduleB {
  std::array<std::array<Money, 31>, 3> days = {};  ///< by day of the month
  std::array<Money, 3> months = {};
  Money total = {};
};
ScheduleB Reckon_Schedule_B(store::Database& company, Date quarter_end);
/// "Schedule B: $1,200.00, which is $3.10 less than line 13."
std::string Schedule_B_Words(const ScheduleB& schedule, Money line_13);

FormPaper Paper_941(Session& session, const Entry941& entry);
FormPaper Paper_Schedule_B(Session& session, const Entry941& entry);

}  // namespace tallymere
