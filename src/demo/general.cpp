#include "demo/general.h"

#include <algorithm>

#include "demo/words.h"

namespace tallymere::demo {
namespace {

constexpr Money loan_at_start = Money::dollars(38'000);
constexpr Money loan_payment = Money::dollars(745);
constexpr double loan_rate = 0.069;
constexpr Money least_cash = Money::dollars(9'000);
constexpr Money step_of_credit = Money::dollars(10'000);
constexpr Money comfortable = Money::dollars(55'000);
constexpr int months_to_depreciate = 84;

}  // namespace

void General::Owner_Deposit(Money amount, std::string_view memo) {
  Document& deposit = books_.Open("Deposit");
  const std::string_view bank = books_.chart.checking, equity = books_.chart.investment;
  deposit.add({.account = bank, .category = equity, .debit = amount, .memo = "Deposit"});
  deposit.add({.account = equity, .category = bank, .credit = amount, .memo = memo});
  books_.Close(deposit);
}

void General::Begin() {
  const Chart& chart = books_.chart;
  constexpr std::string_view memo = "Opening balance";
  equipment_ = books_.sized(Money::dollars(61'000));
  loan_ = loan_at_start;
  taxes_ = {{books_.items.state_tax, state_revenue, {}}, {books_.items.city_tax, city_hall, {}}};
  books_.Entry(chart.checking, opening_equity, books_.sized(Money::dollars(24'650)), memo);
  books_.Entry(chart.savings, opening_equity, Money::dollars(12'000), memo);
  books_.Entry(chart.equipment, opening_equity, equipment_, memo);
  books_.Entry(chart.vehicles, opening_equity, Money::dollars(46'500), memo);
  books_.Entry(opening_equity, chart.vehicle_loan, loan_, memo);
  books_.Entry(chart.inventory, opening_equity, books_.items.opening_value(), memo);
  Owner_Deposit(books_.sized(Money::dollars(20'000)), "Owner's contribution");
}

void General::End_Month() {
  const Chart& chart = books_.chart;
  const Money months_share = equipment_.times(1.0 / months_to_depreciate).rounded_to_cents();
  books_.Entry(chart.depreciation, chart.depreciated, months_share, "Depreciation of the month");
  books_.Entry(chart.bank_charges, chart.checking, Money::dollars(14), "Service charge");
  books_.Entry(chart.savings, chart.interest, books_.between(9, 31), "Interest");
}

void General::Pay_Loan() {
  if (loan_ <= loan_payment) return;
  const Chart& chart = books_.chart;
  const Money interest = loan_.times(loan_rate / 12).rounded_to_cents();
  const Vendor& vendor = books_.parties.vendor(bank_name);
  const std::string_view bank = chart.checking;
  Document& check = books_.Open_Check("Check", vendor.name, vendor.address);
  check.add({.account = bank, .category = break_down, .credit = loan_payment, .memo = "Vehicle loan"});
  check.add({.account = chart.vehicle_loan, .category = bank, .debit = loan_payment - interest, .memo = "Principal"});
  check.add({.account = chart.loan_interest, .category = bank, .debit = interest, .memo = "Interest"});
  loan_ -= loan_payment - interest;
  books_.Close(check);
}

// --- sales tax -----------------------------------------------------------------------------------

void General::Month_Has_Ended() {
  for (Tax& tax : taxes_) tax.due = books_.tax_owed(tax.item);
}

void General::Pay_Sales_Tax() {
  const std::string_view bank = books_.chart.checking;
  for (Tax& tax : taxes_) {
    if (tax.due <= Money()) continue;
    const Vendor& vendor = books_.parties.vendor(tax.vendor);
    Document& check = books_.Open_Check("Liabilitycheck", vendor.name, "");
    check.paid_through = books_.day.first_of_month().plus_days(-1);
    check.add({.account = bank, .category = break_down, .credit = tax.due});
    check.add({.account = tax.item->category,
               .category = bank,
               .debit = tax.due,
               .memo = vendor.account_num,
               .item = tax.item->name});
    books_.Close(check);
    tax.due = Money();
  }
}

// --- stock and cash ------------------------------------------------------------------------------

/// More turns up than is missing: a count that comes out negative keeps its sign on the first row and leaves
/// the two sides apart, which an example should not do.
void General::Count_Stock() {
  std::vector<Item*>& parts = books_.items.parts;
  Item& found = *books_.random.pick(parts);
  Item& missing = **std::ranges::min_element(parts, {}, &Item::cost);
  struct Difference {
    Item* part;
    double qty;
  };
  std::vector<Difference> differences = {{&found, static_cast<double>(books_.random.between(2, 4))}};
  if (&found != &missing && missing.stock >= 1) differences.push_back({&missing, -1});
  Money value;
  for (const auto& [part, qty] : differences) value += part->cost.times(qty);
  const std::string_view category = books_.chart.adjustments;
  Document& count = books_.Open("Inv Adjust");
  count.add({.account = category, .category = break_down, .credit = value});
  for (const auto& [part, qty] : differences) {
    const Money worth = part->cost.times(qty);
    Posting& row = count.add({.account = part->asset,
                              .category = category,
                              .item = part->name,
                              .item_description = part->description,
                              .qty = qty,
                              .sale_price = part->cost});
    (worth.is_negative() ? row.credit : row.debit) = worth.abs();
    part->stock += qty;
  }
  books_.Close(count);
}

void General::Borrow_If_Short() {
  const Money least = books_.sized(least_cash);
  if (books_.bank() >= least) return;
  const Money amount = std::max(books_.sized(step_of_credit), least - books_.bank()).rounded_to_cents();
  books_.Entry(books_.chart.checking, books_.chart.credit_line, amount, "Drawn on the line of credit");
  borrowed_ += amount;
}

void General::Use_What_Is_Over() {
  const Chart& chart = books_.chart;
  const Money over = (books_.bank() - books_.sized(comfortable)).rounded_to_cents();
  if (over <= Money()) return;
  if (borrowed_ > Money()) {
    const Money amount = std::min(borrowed_, over);
    books_.Entry(chart.credit_line, chart.checking, amount, "Line of credit repaid");
    borrowed_ -= amount;
    return;
  }
  const std::string_view bank = chart.checking;
  const Money amount = over.times(0.6).rounded_to_cents();
  if (amount.is_zero()) return;
  Document& check = books_.Open_Check("Check", words::owner, "");
  check.add({.account = bank, .category = chart.draw, .credit = amount, .memo = "Owner's draw"});
  check.add({.account = chart.draw, .category = bank, .debit = amount});
  books_.Close(check);
}

}  // namespace tallymere::demo
