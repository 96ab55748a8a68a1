#pragma once

#include "demo/books.h"

namespace tallymere::demo {

/// The entries that belong to no customer, vendor or employee: how the books begin, the end of each month,
/// stock counts, sales tax, and the owner who sees to it that the bank neither runs dry nor fills up.
class General {
 public:
  explicit General(Books& books) : books_(books) {}

  void Begin();
  void End_Month();
  void Month_Has_Ended();  ///< the sales tax collected up to now is what the next payment pays
  void Pay_Sales_Tax();
  void Pay_Loan();
  void Count_Stock();
  void Borrow_If_Short();
  void Use_What_Is_Over();  ///< repays the bank first, then the owner draws

 private:
  void Owner_Deposit(Money amount, std::string_view memo);
  struct Tax {
    const Item* item;
    std::string_view vendor;
    Money due;
  };

  Books& books_;
  std::vector<Tax> taxes_;
  Money loan_;
  Money borrowed_;
  Money equipment_;
};

}  // namespace tallymere::demo
