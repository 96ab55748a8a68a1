#include "demo/payroll.h"

#include <algorithm>
#include <cstdio>

#include "demo/rows.h"

namespace tallymere::demo {
namespace {

constexpr int friday = 6;
constexpr int days_from_period_to_payday = 5;  // the period ends on the Sunday before
constexpr int pay_periods = 26;

Money Cents_Of(Money base, double rate) { return base.times(rate).rounded_to_cents(); }

std::string Padded(Date day) {
  char text[16];
  std::snprintf(text, sizeof text, "%02u/%02u/%04d", day.month(), day.day(), day.year());
  return text;
}

bool Is_Quarterly(std::string_view item) {
  return item == pay_items::federal_unemployment || item == pay_items::state_unemployment ||
         item == pay_items::training;
}

}  // namespace

Payroll::Payroll(Books& books, store::Database& accounts) : books_(books), accounts_(accounts), staff_(books) {}

void Payroll::Write_Lists() {
  staff_.Write_Employees(books_.db);
  staff_.Learn_Facts(books_.db, accounts_);
}

// --- paychecks -----------------------------------------------------------------------------------

void Payroll::Pay_If_Payday() {
  if (books_.day.weekday() != friday || days_between(books_.plan.first, books_.day) / 7 % 2 != 0) return;
  for (Employee& person : staff_.employees) {
    if (person.released && *person.released < books_.day) continue;
    if (person.year != books_.day.year()) person.year = books_.day.year(), person.facts.earned_this_year = {};
    const Paycheck check = Work_Out(person, books_.day);
    Write_Paycheck(person, check);
    for (const EarningRow& row : check.grdEarnings)
      for (const SummaryRow& line : check.grdEmployee)
        if (line.Name == row.Name) Earned(person, row.Name, line.amount().cents());
  }
  Write_History(books_.day.plus_days(-days_from_period_to_payday));
}

void Payroll::Earned(Employee& person, std::string_view item, Money amount) {
  person.facts.earned_this_year.add({std::string(item), person.ss_num, person.year, 0, {amount, 0, 1}});
}

Paycheck Payroll::Work_Out(Employee& person, Date payday) {
  Paycheck check;
  Add_Earnings(check, person, payday);
  for (const EmployeeLine& line : person.facts.employee.adjustments)
    check.grdOtherItems.push_back({line.item, line.AmountRate.value_or(""), "", ""});
  Calculate(check, person.facts);
  return check;
}

void Payroll::Add_Earnings(Paycheck& check, const Employee& person, Date payday) {
  Random& random = books_.random;
  auto add = [&check](std::string_view wage, Money rate, double hours) {
    check.grdEarnings.push_back({std::string(wage), rate.to_text(), Exact::of(hours).text()});
  };
  if (person.salaried) {
    check.grdEarnings.push_back({std::string(pay_items::salary), (Exact(person.rate) / pay_periods).cell(), ""});
  } else {
    const double sick = random.chance(6) ? 8 : 0, extra = random.chance(20) ? random.between(1, 8) : 0;
    add(pay_items::hourly, person.rate, 80 - sick);
    if (sick > 0) add(pay_items::sick, person.rate, sick);
    if (extra > 0) add(pay_items::overtime, person.rate.times(1.5), extra);
  }
  if (payday.month() == 12 && payday.day() > 7 && payday.day() <= 21)
    check.grdOtherItems.push_back({std::string(pay_items::bonus), "250.00", "", ""});
}

void Payroll::Post(Document& check, const Share& share, std::string_view bank, Summary summary) {
  const Pay_Item& item = staff_.item(share.item);
  const PayItem& known = staff_.employees.front().facts.items->item(share.item);
  for (const PostedSide& side : Sides_Of(PayrollPosting::Balanced, known, share.amount, summary)) {
    const bool owed = side.Account == item.liability;
    Posting& row = check.add({.account = owed ? std::string_view(item.liability) : std::string_view(item.expense),
                              .category = bank,
                              .debit = side.Debit,
                              .credit = side.Credit});
    row.payroll_item = item.name;
    if (known.type() == ItemType::Wage) row.hours = share.hours;
    if (owed) Owe(item.name, side.Credit - side.Debit);
  }
}

void Payroll::Write_Paycheck(const Employee& person, const Paycheck& slip) {
  const std::string_view bank = books_.chart.checking;
  const Date end = books_.day.plus_days(-days_from_period_to_payday);
  Document& check = books_.Open_Check("Paycheck", person.name, person.address);
  check.ss_num = person.ss_num;
  check.class_name = person.class_name;
  check.pay_period = Padded(end.plus_days(-13)) + " - " + Padded(end);
  std::string_view memo;
  for (const OtherItemRow& row : slip.grdOtherItems)
    if (const Pay_Item& item = staff_.item(row.Item); !item.number.empty()) memo = item.number;
  check.add({.account = bank, .category = break_down, .credit = slip.lblTotal, .memo = memo});
  for (size_t at = 0; at < slip.grdEmployee.size(); ++at) {
    const double hours =
        at < slip.grdEarnings.size() ? First_Number(slip.grdEarnings[at].Hours).money().to_double() : 0;
    Post(check, {slip.grdEmployee[at].Name, slip.grdEmployee[at].amount().cents(), hours}, bank, Summary::Employee);
  }
  for (const SummaryRow& row : slip.grdCompany) Post(check, {row.Name, row.amount().cents()}, bank, Summary::Company);
  books_.Close(check);
}

void Payroll::Write_History(Date period_end) {
  for (const Employee& person : staff_.employees) {
    const bool paid = !person.released || *person.released >= books_.day;
    Add_Row(books_.db, "PayHistory",
            {{"Employee", person.name},
             {"PayPeriod", "BiWeekly"},
             {"PayEndDate", period_end},
             {"PayCheckDate", books_.day},
             {"Paid", paid ? "Yes" : "No"}});
  }
}

// --- what came before the books ------------------------------------------------------------------

void Payroll::Set_Up_Year() {
  const Date first = books_.plan.first;
  const int periods = std::max(1, days_between(Date(first.year(), 1, 1), first) / 14);
  for (Employee& person : staff_.employees) {
    const Money earned =
        (person.salaried ? person.rate.times(1.0 / pay_periods) : person.rate.times(80)).times(periods);
    const Money gross = earned.rounded_to_cents(), social = Cents_Of(gross, 0.062), medicare = Cents_Of(gross, 0.0145);
    Document& set_up = books_.Open("YTD Adjust");
    set_up.name = person.name;
    set_up.ss_num = person.ss_num;
    const std::string_view wage = person.salaried ? pay_items::salary : pay_items::hourly;
    Post(set_up, {wage, gross}, opening_equity, Summary::Employee);
    Post(set_up, {pay_items::social_employee, -social}, opening_equity, Summary::Employee);
    Post(set_up, {pay_items::medicare_employee, -medicare}, opening_equity, Summary::Employee);
    Post(set_up, {pay_items::social_company, -social}, opening_equity, Summary::Company);
    Post(set_up, {pay_items::medicare_company, -medicare}, opening_equity, Summary::Company);
    set_up.add({.account = opening_equity, .category = break_down, .credit = gross - social - medicare});
    person.year = first.year();
    Earned(person, wage, gross);
    books_.Close(set_up);
  }
}

// --- liabilities ---------------------------------------------------------------------------------

void Payroll::Month_Has_Ended() { due_ = owed_; }

void Payroll::Pay_Agencies(bool quarter) {
  std::vector<std::string> agencies;
  for (const Pay_Item& item : staff_.items) {
    const bool today = !Is_Quarterly(item.name) || quarter;
    if (!today) due_.erase(item.name);
    if (today && !item.agency.empty() && std::ranges::find(agencies, item.agency) == agencies.end())
      agencies.push_back(item.agency);
  }
  for (const std::string& agency : agencies) Pay_Agency(agency);
  due_.clear();
}

void Payroll::Pay_Agency(const std::string& agency) {
  std::vector<std::pair<const Pay_Item*, Money>> ticked;
  Money total;
  for (const Pay_Item& item : staff_.items) {
    const auto due = due_.find(item.name);
    if (item.agency != agency || due == due_.end() || due->second <= Money()) continue;
    ticked.emplace_back(&item, due->second);
    total += due->second;
  }
  if (ticked.empty()) return;
  const Vendor& vendor = books_.parties.vendor(agency);
  const std::string_view bank = books_.chart.checking;
  Document& check = books_.Open_Check("Liabilitycheck", vendor.name, "");
  check.shipping_address = vendor.address;
  check.paid_through = books_.day.first_of_month().plus_days(-1);
  check.add({.account = bank, .category = break_down, .credit = total, .memo = ticked.front().first->number});
  for (const auto& [item, amount] : ticked) {
    check.add({.account = item->liability,
               .category = bank,
               .debit = amount,
               .memo = item->federal ? federal_id : std::string_view(item->number),
               .payroll_item = item->name});
    Owe(item->name, -amount);
  }
  books_.Close(check);
}

void Payroll::Correct_Rate() {
  const Pay_Item& item = staff_.item(pay_items::state_unemployment);
  const Money amount = books_.between(20, 60);
  Document& adjustment = books_.Open("Liability Adjust");
  adjustment.memo = "Payroll Liability Adjustment";
  adjustment.add({.account = item.liability, .category = break_down, .debit = amount, .payroll_item = item.name});
  adjustment.add({.account = item.expense, .category = break_down, .credit = amount, .payroll_item = item.name});
  books_.Close(adjustment);
  books_.On(books_.day.plus_days(24), [this, &item, amount] {
    Document& refund = books_.Open("Liability Adjust");
    refund.name = books_.parties.vendor(item.agency).name;
    refund.memo = "Payroll Liability Refund";
    refund.paid_through = books_.day.first_of_month().plus_days(-1);
    const std::string_view bank = books_.chart.checking;
    refund.add({.account = bank, .category = break_down, .debit = amount});
    refund.add({.account = item.liability, .category = bank, .credit = amount, .payroll_item = item.name});
    books_.Close(refund);
  });
}

}  // namespace tallymere::demo
