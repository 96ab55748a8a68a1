#pragma once

#include <map>

#include "demo/books.h"
#include "demo/staff.h"

namespace tallymere::demo {

/// Pays the staff every other Friday and the agencies every month or quarter.
class Payroll {
 public:
  explicit Payroll(Books& books);

  void Set_Up_Year();  ///< what was paid this year before the books began
  void Pay_If_Payday();
  void Month_Has_Ended();  ///< what is owed up to now is what the next liability checks pay
  void Pay_Agencies(bool quarter);
  void Correct_Rate();  ///< a lower unemployment rate, and the refund that follows
  void Write_Lists() { staff_.Write_Employees(books_.db); }

 private:
  struct Share {
    std::string_view item;
    Money amount;
    double hours = 0;
  };
  struct Slip {
    std::vector<Share> earned, withheld, company;
    Money gross() const;
    Money net() const;
  };

  Slip Work_Out(Employee& person, Date payday);
  void Add_Earnings(Slip& slip, const Employee& person, Date payday);
  void Add_Taxes(Slip& slip, const Employee& person);
  void Write_Paycheck(const Employee& person, const Slip& slip);
  void Post(Document& check, const Share& share, std::string_view bank, bool wage);
  void Pay_Agency(const std::string& agency);
  void Owe(std::string_view item, Money amount) { owed_[std::string(item)] += amount; }
  void Write_History(Date period_end);

  Books& books_;
  Staff staff_;
  std::map<std::string, Money> owed_, due_;  ///< by payroll item: now, and as of the last month's end
  std::map<std::string, Date> last_paid_;
};

}  // namespace tallymere::demo
