#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"
#include "core/values/date.h"
#include "core/values/money.h"

namespace tallymere {

/// A line of an employee's additions, deductions, contributions or other taxes. No AmountRate is no text.
struct EmployeeLine {
  std::string item = {};
  std::optional<std::string> AmountRate = {};
  std::string Limit = {};
};

/// What a paycheck must know of an employee, with what hangs on the number.
struct PayEmployee {
  std::string SSNum = {}, Name = {}, AddressOne = {}, AddressTwo = {}, City = {}, State = {}, Zip = {}, Class = {};
  std::string PayPeriod = {}, FedStatus = {}, StateStatus = {}, StateWorked = {};
  int64_t FedAllow = 0, StateAllow = 0;
  Money FedWithHolding = {}, StateWithHolding = {};
  double SickHoursStart = 0, VacHoursStart = 0;
  bool SUIHold = false;
  std::optional<Date> ReleaseDate = {};

  struct Earning {
    std::string Wage;
    std::optional<Money> Rate;
  };
  std::vector<Earning> earnings = {};
  std::vector<EmployeeLine> adjustments = {}, taxes = {};

  /// As the envelope of the check has it.
  std::string address() const {
    return Name + "\r\n" + AddressOne + " " + AddressTwo + "\r\n" + City + ", " + State + " " + Zip;
  }
};

/// The first employee of that name or number; nothing when there is none.
std::optional<PayEmployee> Find_Employee_By_Name(store::Database& company, std::string_view name);
std::optional<PayEmployee> Find_Employee_By_Number(store::Database& company, std::string_view ss_num);

}  // namespace tallymere
