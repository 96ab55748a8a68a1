#include "demo/payroll.h"

#include <algorithm>
#include <cstdio>

#include "demo/rows.h"
#include "demo/withholding.h"

namespace tallymere::demo {
namespace {

constexpr int friday = 6;
constexpr int days_from_period_to_payday = 5;  // the period ends on the Sunday before
constexpr Money social_limit = Money::dollars(184500);
constexpr Money federal_unemployment_limit = Money::dollars(7000);
constexpr Money state_unemployment_limit = Money::dollars(14250);

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

Payroll::Payroll(Books& books) : books_(books), staff_(books) {}

Money Payroll::Slip::gross() const {
  Money sum;
  for (const Share& share : earned) sum += share.amount;
  return sum;
}

Money Payroll::Slip::net() const {
  Money sum = gross();
  for (const Share& share : withheld) sum -= share.amount;
  return sum;
}

// --- paychecks -----------------------------------------------------------------------------------

void Payroll::Pay_If_Payday() {
  if (books_.day.weekday() != friday || days_between(books_.plan.first, books_.day) / 7 % 2 != 0) return;
  for (Employee& person : staff_.employees) {
    if (person.released && *person.released < books_.day) continue;
    if (person.year != books_.day.year()) person.year = books_.day.year(), person.year_gross = Money();
    const Slip slip = Work_Out(person, books_.day);
    Write_Paycheck(person, slip);
    person.year_gross += slip.gross();
  }
  Write_History(books_.day.plus_days(-days_from_period_to_payday));
}

Payroll::Slip Payroll::Work_Out(Employee& person, Date payday) {
  Slip slip;
  Add_Earnings(slip, person, payday);
  Add_Taxes(slip, person);
  return slip;
}

void Payroll::Add_Earnings(Slip& slip, const Employee& person, Date payday) {
  Random& random = books_.random;
  if (person.salaried) {
    slip.earned.push_back({pay_items::salary, person.rate.times(1.0 / pay_periods).rounded_to_cents(), 0});
  } else {
    const double sick = random.chance(6) ? 8 : 0, extra = random.chance(20) ? random.between(1, 8) : 0;
    slip.earned.push_back({pay_items::hourly, Cents_Of(person.rate, 80 - sick), 80 - sick});
    if (sick > 0) slip.earned.push_back({pay_items::sick, Cents_Of(person.rate, sick), sick});
    if (extra > 0) slip.earned.push_back({pay_items::overtime, Cents_Of(person.rate, 1.5 * extra), extra});
  }
  if (payday.month() == 12 && payday.day() > 7 && payday.day() <= 21)
    slip.earned.push_back({pay_items::bonus, Money::dollars(250), 0});
}

void Payroll::Add_Taxes(Slip& slip, const Employee& person) {
  const Money gross = slip.gross();
  const Money saved = person.in_plan ? Cents_Of(gross, retirement_rate) : Money();
  const Money taxable = gross - saved;
  auto withhold = [&slip](std::string_view item, Money amount) {
    if (!amount.is_zero()) slip.withheld.push_back({item, amount, 0});
  };
  auto contribute = [&slip](std::string_view item, Money amount) {
    if (!amount.is_zero()) slip.company.push_back({item, amount, 0});
  };
  withhold(pay_items::retirement, saved);
  withhold(pay_items::health, person.insured ? Money::dollars(85) : Money());
  withhold(pay_items::federal, Federal_Withholding(taxable, person.married, person.allowances));
  const Money social = Cents_Of(Under_Limit(gross, person.year_gross, social_limit), 0.062);
  withhold(pay_items::social_employee, social);
  withhold(pay_items::medicare_employee, Cents_Of(gross, 0.0145));
  withhold(pay_items::state_tax, Illinois_Withholding(taxable, person.allowances));
  contribute(pay_items::match, person.in_plan ? Cents_Of(gross, match_rate) : Money());
  contribute(pay_items::social_company, social);
  contribute(pay_items::medicare_company, Cents_Of(gross, 0.0145));
  const Money state_base = Under_Limit(gross, person.year_gross, state_unemployment_limit);
  contribute(pay_items::federal_unemployment,
             Cents_Of(Under_Limit(gross, person.year_gross, federal_unemployment_limit), 0.006));
  contribute(pay_items::state_unemployment, Cents_Of(state_base, state_unemployment_rate));
  contribute(pay_items::training, Cents_Of(state_base, training_rate));
}

void Payroll::Post(Document& check, const Share& share, std::string_view bank, bool wage) {
  const Pay_Item& item = staff_.item(share.item);
  if (!item.expense.empty()) {
    Posting& row = check.add({.account = item.expense, .category = bank, .debit = share.amount});
    row.payroll_item = item.name;
    if (wage) row.hours = share.hours;
  }
  if (item.liability.empty()) return;
  check.add({.account = item.liability, .category = bank, .credit = share.amount}).payroll_item = item.name;
  Owe(item.name, share.amount);
}

void Payroll::Write_Paycheck(const Employee& person, const Slip& slip) {
  const std::string_view bank = books_.chart.checking;
  const Date end = books_.day.plus_days(-days_from_period_to_payday);
  Document& check = books_.Open_Check("Paycheck", person.name, person.address);
  check.ss_num = person.ss_num;
  check.class_name = person.class_name;
  check.pay_period = Padded(end.plus_days(-13)) + " - " + Padded(end);
  check.add({.account = bank, .category = break_down, .credit = slip.net()});
  for (const Share& share : slip.earned) Post(check, share, bank, share.item != pay_items::bonus);
  for (const Share& share : slip.withheld) Post(check, share, bank, false);
  for (const Share& share : slip.company) Post(check, share, bank, false);
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
    Slip slip;
    slip.earned.push_back({person.salaried ? pay_items::salary : pay_items::hourly, gross, 0});
    slip.withheld = {{pay_items::social_employee, social}, {pay_items::medicare_employee, medicare}};
    slip.company = {{pay_items::social_company, social}, {pay_items::medicare_company, medicare}};
    for (const auto* shares : {&slip.earned, &slip.withheld, &slip.company})
      for (const Share& share : *shares) Post(set_up, share, opening_equity, false);
    set_up.add({.account = opening_equity, .category = break_down, .credit = slip.net()});
    person.year = first.year();
    person.year_gross = gross;
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
