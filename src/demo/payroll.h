#pragma once

#include <map>

#include "demo/books.h"
#include "demo/staff.h"

namespace tallymere::demo {

/// Pays the staff every other Friday by the program's own calculation, and the agencies every month or quarter.
class Payroll {
 public:
  Payroll(Books& books, store::Database& accounts);  ///< `accounts` has the tax tables

  void Set_Up_Year();  ///< what was paid this year before the books began
  void Pay_If_Payday();
  void Month_Has_Ended();  ///< what is owed up to now is what the next liability checks pay
  void Pay_Agencies(bool quarter);
  void Correct_Rate();  ///< a lower unemployment rate, and the refund that follows
  void Write_Lists();

 private:
  /// What is said over and over on the rows of one check, as a payroll item says it.
  struct Share {
    std::string_view item;
    Money amount;
    double hours = 0;
  };

  Paycheck Work_Out(Employee& person, Date payday);
  void Add_Earnings(Paycheck& check, const Employee& person, Date payday);
  void Write_Paycheck(const Employee& person, const Paycheck& slip);
  void Post(Document& check, const Share& share, std::string_view bank, Summary summary);
  void Earned(Employee& person, std::string_view item, Money amount);
  void Pay_Agency(const std::string& agency);
  void Owe(std::string_view item, Money amount) { owed_[std::string(item)] += amount; }
  void Write_History(Date period_end);

  Books& books_;
  store::Database& accounts_;
  Staff staff_;
  std::map<std::string, Money> owed_, due_;  ///< by payroll item: now, and as of the last month's end
  std::map<std::string, Date> last_paid_;
};

}  // namespace tallymere::demo
