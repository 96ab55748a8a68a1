#include "demo/demo.h"

#include <array>

#include "core/ledger/numbers.h"
#include "demo/general.h"
#include "demo/payroll.h"
#include "demo/purchases.h"
#include "demo/sales.h"
#include "demo/standing.h"

namespace tallymere {
namespace demo {
namespace {

constexpr int days_in_memory = 150;     // longer than the slowest customer takes to pay
constexpr int waiting_for_deposit = 4;  // days: the last payments still lie in the drawer

/// The people of the company and what each does on a day.
class Year {
 public:
  Year(Books& books, store::Database& accounts)
      : books_(books), sales_(books), purchases_(books), payroll_(books, accounts), general_(books) {}

  void Run();

 private:
  void Begin();
  void Work();
  void Scheduled();
  void Business();
  void One_Of_Many();
  void Write_Lists();
  bool first_workday_from(unsigned day) const {
    return Workday_From(Date(books_.day.year(), books_.day.month(), day)) == books_.day;
  }

  Books& books_;
  Sales sales_;
  Purchases purchases_;
  Payroll payroll_;
  General general_;
};

void Year::Run() {
  Begin();
  for (; books_.day <= books_.plan.last; books_.day = books_.day.plus_days(1)) {
    if (books_.day.day() == 1) {
      payroll_.Month_Has_Ended();
      general_.Month_Has_Ended();
    }
    if (Is_Workday(books_.day)) Work();
    books_.loader.Write_Before(books_.day.plus_days(-days_in_memory));
  }
  books_.loader.Write_All();
  Write_Standing_Work(books_, sales_, purchases_);
}

void Year::Begin() {
  Write_Small_Lists(books_.db);
  books_.parties.Write(books_.db, books_.chart);
  books_.items.Write(books_.db, books_.plan.first);
  payroll_.Write_Lists();
  general_.Begin();
  payroll_.Set_Up_Year();
}

void Year::Work() {
  books_.Run_Due();
  Scheduled();
  const bool small_day = books_.day.weekday() == 3 || books_.day.weekday() == 6;
  if ((small_day || books_.plan.bulk) && !books_.recent(waiting_for_deposit)) sales_.Deposit_Waiting();
  if (books_.day.weekday() == 6) {
    purchases_.Pay_Bills();
    general_.Use_What_Is_Over();
  }
  purchases_.Reorder_Stock();
  general_.Borrow_If_Short();
  if (books_.day == books_.plan.last_workday) {
    sales_.Leave_A_Check();
    purchases_.Expense_Check();
  }
  Business();
}

void Year::Scheduled() {
  const unsigned month = books_.day.month();
  payroll_.Pay_If_Payday();
  purchases_.Monthly_Overhead();
  if (first_workday_from(10)) general_.Pay_Loan();
  if (first_workday_from(15)) payroll_.Pay_Agencies(month % 3 == 1);
  if (first_workday_from(18)) general_.Pay_Sales_Tax();
  if (first_workday_from(22)) purchases_.Pay_Card();
  if (first_workday_from(25)) general_.End_Month();
  if (first_workday_from(26)) sales_.Charge_Late_Customers();
  if (first_workday_from(27) && month % 3 == 0) general_.Count_Stock();
  if (first_workday_from(16) && month % 3 == 2) sales_.Credit_Memo(), purchases_.Vendor_Credit();
  if (first_workday_from(20) && month == 4) payroll_.Correct_Rate();
  if (first_workday_from(12) && month == 9) purchases_.Pay_Twice();
  if (first_workday_from(7)) sales_.Package_Slip();
  if (books_.day == Workday_From(books_.plan.last.plus_days(-7))) purchases_.Order_Ahead();
}

void Year::One_Of_Many() {
  struct Habit {
    int percent;
    void (*act)(Year&);
  };
  constexpr std::array habits = {
      Habit{58, [](Year& year) { year.sales_.Invoice_Somebody(); }},
      Habit{15, [](Year& year) { year.purchases_.Supplier_Bill(); }},
      Habit{12, [](Year& year) { year.purchases_.Expense_Check(); }},
      Habit{11, [](Year& year) { year.purchases_.Card_Charge(); }},
      Habit{2, [](Year& year) { year.purchases_.Item_Check(); }},
      Habit{2, [](Year& year) { year.sales_.Estimate(); }},
  };
  int drawn = books_.random.below(100);
  for (const Habit& habit : habits)
    if ((drawn -= habit.percent) < 0) return habit.act(*this);
}

void Year::Business() {
  while (books_.behind()) One_Of_Many();
}

/// Loading many rows is quicker, and leaves the file smaller, when the indexes of the ledger are made
/// afterwards.
class Without_Indexes {
 public:
  Without_Indexes(store::Database& db, bool worth_it) : db_(db) {
    if (worth_it) made_by_ = db.drop_indexes("Transactions");
  }
  void Make_Again() { db_.create_indexes(made_by_); }

 private:
  store::Database& db_;
  std::vector<std::string> made_by_;
};

}  // namespace
}  // namespace demo

void Write_Demo_Company(Session& session, const DemoOptions& options) {
  store::Database& db = *session.dbCompany;
  store::Transaction load(db, "Demo company", store::Transaction::History::Summary);
  demo::Write_Company_Info(db, options.name);
  demo::Books books(db, options);
  demo::Without_Indexes ledger(db, books.plan.bulk);
  demo::Year(books, *session.dbAccounts).Run();
  ledger.Make_Again();
  Note_All_Numbers(db);
  load.commit();
}

}  // namespace tallymere
