#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "core/values/date.h"

/// How often people are paid, which days a pay period covers, and the hours worked in it.
namespace tallymere {

struct PayFrequency {
  std::string_view name;           ///< as in Employees.PayPeriod; case does not count
  std::string_view federal_table;  ///< in Accounts.mdb
  int salary_divisor;              ///< the annual salary is divided by it; 0: a new check shows no amount
};

/// Salaries of the two longest periods have always come without an amount, to be typed on each check.
inline constexpr std::array<PayFrequency, 8> pay_frequencies = {{{"Daily", "FedDaily", 365},
                                                                 {"Weekly", "FedWeekly", 52},
                                                                 {"BiWeekly", "FedBiWeekly", 26},
                                                                 {"SemiMonthly", "FedSemiMonthly", 24},
                                                                 {"Monthly", "FedMonthly", 12},
                                                                 {"Quarterly", "FedQuarterly", 4},
                                                                 {"SemiAnnually", "FedSemiAnnual", 0},
                                                                 {"Annually", "FedAnnual", 0}}};
inline constexpr std::array<std::string_view, 8> pay_period_names = {
    "Daily", "Weekly", "BiWeekly", "SemiMonthly", "Monthly", "Quarterly", "SemiAnnually", "Annually"};

const PayFrequency* Find_Frequency(std::string_view pay_period);  ///< nullptr when it is none

/// A pay period as a paycheck states it. The first day is text, since a monthly period paid in January begins in a
/// month 00, which is shown as it is.
struct PayPeriod {
  std::string start, end;     ///< "mm/dd/yyyy"
  std::optional<Date> first;  ///< nothing when there is no such day
  std::optional<Date> last;

  std::string text() const { return start + " - " + end; }  ///< Transactions.PayPeriod
};

/// The days a check covers, of the day a period ends and the day it is paid; nothing for a frequency that has none,
/// "SemiAnnually" among them. Of the longer periods the first day is reckoned from the day of payment.
std::optional<PayPeriod> Period_Bounds(std::string_view pay_period, Date pay_end, Date pay_date);

/// Transactions.PayPeriod read back; both ends are `day` when the text is none.
PayPeriod Read_Pay_Period(std::string_view text, Date day);

/// The hours on the weekly time sheets for one employee's wage in a pay period, by the days of the frequency: one for
/// "Daily", up to seven for "Weekly", fourteen for "BiWeekly", those of the period otherwise.
double Get_Hours(Session& session, std::string_view wage, std::string_view ss_num, const PayPeriod& period,
                 std::string_view pay_period);

}  // namespace tallymere
