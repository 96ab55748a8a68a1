#include "demo/purchases.h"

#include <algorithm>
#include <array>

#include "demo/rows.h"
#include "demo/words.h"

namespace tallymere::demo {
namespace {

enum class By { Bill, Check };

/// What comes every month, or every third.
struct Overhead {
  std::string_view vendor;
  std::string Chart::*category;
  int low, high;  // dollars
  unsigned day;
  By by;
  bool quarterly;
  std::string_view memo;
};
constexpr std::array overheads = {
    Overhead{landlord, &Chart::rent, 1850, 1850, 1, By::Check, false, "Yard and office rent"},
    Overhead{telephone_company, &Chart::telephone, 165, 190, 5, By::Bill, false, "Telephone"},
    Overhead{electric_company, &Chart::electricity, 140, 320, 8, By::Bill, false, "Electricity"},
    Overhead{gas_company, &Chart::heating, 60, 420, 9, By::Bill, false, "Gas"},
    Overhead{water_company, &Chart::water, 45, 90, 12, By::Bill, false, "Water and sewer"},
    Overhead{insurer, &Chart::liability_insurance, 640, 640, 14, By::Bill, true, "Liability insurance"},
    Overhead{insurer, &Chart::workers_insurance, 480, 620, 14, By::Bill, true, "Workers' compensation"},
    Overhead{insurer, &Chart::property_insurance, 310, 310, 14, By::Bill, true, "Property insurance"},
    Overhead{insurer, &Chart::vehicle_insurance, 540, 540, 21, By::Bill, true, "Vehicle insurance"},
    Overhead{bookkeeper, &Chart::accounting, 250, 350, 20, By::Bill, false, "Bookkeeping"},
};

struct Small_Expense {
  std::string Chart::*category;
  int low, high;
};
constexpr std::array counter_purchases = {
    Small_Expense{&Chart::office, 15, 120},      Small_Expense{&Chart::tools, 30, 260},
    Small_Expense{&Chart::repairs, 90, 640},     Small_Expense{&Chart::postage, 12, 60},
    Small_Expense{&Chart::maintenance, 60, 350}, Small_Expense{&Chart::licenses, 35, 150},
    Small_Expense{&Chart::advertising, 80, 420}};
constexpr std::array card_purchases = {Small_Expense{&Chart::fuel, 35, 140}, Small_Expense{&Chart::meals, 14, 85},
                                       Small_Expense{&Chart::computer, 20, 160}, Small_Expense{&Chart::travel, 60, 480},
                                       Small_Expense{&Chart::dues, 25, 120}};

constexpr int look_ahead = 7;  // days

bool Falls_On(const Overhead& overhead, Date day) {
  if (overhead.quarterly && day.month() % 3 != 1) return false;
  return Workday_From(Date(day.year(), day.month(), overhead.day)) == day;
}

std::string Bill_Number(Random& random) {
  const std::string digits = std::to_string(random.between(1000, 89999));
  return random.chance(30) ? "INV-" + digits : digits;
}

}  // namespace

std::string_view Purchases::class_name() { return books_.random.chance(60) ? books_.random.pick(words::classes) : ""; }

// --- bills ---------------------------------------------------------------------------------------

Document& Purchases::Open_Bill(std::string_view type, const Vendor& vendor) {
  Document& bill = books_.Open(type);
  bill.reference = Bill_Number(books_.random);
  bill.name = vendor.name;
  bill.terms = vendor.term;
  bill.due = books_.day.plus_days(vendor.days);
  bill.add({.account = payable});
  return bill;
}

/// Fills the payable row from the rows behind it, and queues the bill for payment.
void Purchases::Close_Bill(Document& bill, std::string_view memo) {
  const bool credit = bill.type == "Credit";
  const bool breaks_down = bill.rows.size() > 2 || !bill.rows[1].item.empty();
  bill.total = Money();
  for (const Posting& row : bill.rows) bill.total += row.amount();
  Posting& head = bill.rows.front();
  head.category = breaks_down ? break_down : bill.rows[1].account;
  (credit ? head.debit : head.credit) = bill.total;
  head.memo = memo;
  books_.Close(bill);
  if (bill.type == "Bill") unpaid_.push_back(&bill);
}

void Purchases::Monthly_Overhead() {
  for (const Overhead& overhead : overheads) {
    if (!Falls_On(overhead, books_.day)) continue;
    const Vendor& vendor = books_.parties.vendor(overhead.vendor);
    const std::string_view category = books_.chart.*overhead.category;
    const Money amount = books_.sized(books_.between(overhead.low, overhead.high)).rounded_to_cents();
    if (overhead.by == By::Check) {
      const std::string_view bank = books_.chart.checking;
      Document& check = books_.Open_Check("Check", vendor.name, vendor.address);
      check.add({.account = bank, .category = category, .credit = amount, .memo = overhead.memo});
      check.add(
          {.account = category, .category = bank, .debit = amount, .memo = overhead.memo, .class_name = "Office"});
      check_template_ = check.number, check_amount_ = amount;
      books_.Close(check);
      continue;
    }
    Document& bill = Open_Bill("Bill", vendor);
    bill.add(
        {.account = category, .category = payable, .debit = amount, .memo = overhead.memo, .class_name = "Office"});
    Close_Bill(bill, overhead.memo);
    if (overhead.category == &Chart::telephone) bill_template_ = bill.number, bill_amount_ = amount;
  }
}

void Purchases::Supplier_Bill() {
  Random& random = books_.random;
  const bool labor = random.chance(35);
  const Vendor& vendor = *random.pick(labor ? books_.parties.subcontractors : books_.parties.suppliers);
  const std::string_view category = labor ? books_.chart.subcontractors : books_.chart.materials;
  Document& bill = Open_Bill("Bill", vendor);
  const int lines = random.between(1, 4);
  for (int line = 0; line < lines; ++line) {
    const Customer& job = random.pick(books_.parties.customers);
    bill.add({.account = category,
              .category = payable,
              .debit = books_.plan.bulk ? books_.between(150, 1000) : books_.between(60, labor ? 580 : 420),
              .class_name = class_name(),
              .source_name = random.chance(50) ? std::string_view(job.name) : ""});
  }
  if (!labor && random.chance(35))
    bill.add(
        {.account = books_.chart.freight, .category = payable, .debit = books_.between(18, 85), .memo = "Freight"});
  Close_Bill(bill);
}

void Purchases::Vendor_Credit() {
  Document& credit = Open_Bill("Credit", *books_.random.pick(books_.parties.suppliers));
  credit.add({.account = books_.chart.materials,
              .category = payable,
              .credit = books_.between(20, 140),
              .memo = "Returned material"});
  Close_Bill(credit, "Returned material");
}

// --- stock ---------------------------------------------------------------------------------------

void Purchases::Reorder_Stock() {
  constexpr int orders_a_day = 3;
  int orders = 0;
  for (Item* part : books_.items.parts)
    if (part->stock < part->reorder && orders++ < orders_a_day) Order_Part(*part);
}

void Purchases::Order_Ahead() { Order_Part(**std::ranges::min_element(books_.items.parts, {}, &Item::stock)); }

/// The order; some days later the goods, and with them or soon after the bill under the receipt's number.
void Purchases::Order_Part(Item& part) {
  const double qty = 2 * part.reorder + books_.random.between(4, 12);
  const Money amount = part.cost.times(qty);
  const Vendor& vendor = books_.parties.vendor(part.vendor);
  const int number = next_order_++;
  const bool on_the_way = books_.recent(6);
  Add_Row(books_.db, "POItems",
          {{"POIndex", number},
           {"Item", part.name},
           {"Description", part.purchase_description},
           {"Qty", qty},
           {"Rate", part.cost},
           {"Amount", amount}});
  Add_Row(books_.db, "POs",
          {{"Index", number},
           {"Open", on_the_way},
           {"Vendor", vendor.name},
           {"VendorAddress", vendor.address},
           {"PONumber", std::to_string(number)},
           {"Date", books_.day},
           {"Total", amount}});
  part.stock += qty;  // a day-to-day business sells from what comes in
  const bool receipt_first = books_.recent(21) || books_.random.chance(40);
  Document& bill = Open_Bill(receipt_first ? "Item Receipt" : "Bill", vendor);
  bill.add({.account = part.asset,
            .category = payable,
            .debit = amount,
            .item = part.name,
            .item_description = part.purchase_description,
            .qty = qty,
            .sale_price = part.cost});
  Close_Bill(bill);
  if (!receipt_first) return;
  books_.On(books_.day.plus_days(books_.random.between(9, 20)), [this, &bill] {
    bill.type = "Bill";
    unpaid_.push_back(&bill);
  });
}

// --- paying --------------------------------------------------------------------------------------

std::vector<Purchases::Due> Purchases::Due_Bills(Date until) {
  std::vector<Due> due;
  for (Document* bill : unpaid_) {
    if (bill->due > until) continue;
    auto found = std::ranges::find(due, bill->name, [](const Due& d) { return std::string_view(d.vendor->name); });
    if (found == due.end()) found = due.insert(due.end(), {&books_.parties.vendor(bill->name), {}});
    found->bills.push_back(bill);
  }
  std::erase_if(unpaid_, [until](const Document* bill) { return bill->due <= until; });
  return due;
}

void Purchases::Pay_Bills() {
  for (const Due& due : Due_Bills(books_.day.plus_days(look_ahead)))
    Pay(*due.vendor, due.bills, books_.random.chance(12));
}

int64_t Purchases::Pay(const Vendor& vendor, const std::vector<Document*>& bills, bool by_card) {
  Money total;
  for (const Document* bill : bills) total += bill->total;
  const std::string_view source = by_card ? books_.chart.card : books_.chart.checking;
  Document& payment = by_card ? books_.Open("Ledger Entry") : books_.Open_Check("Billcheck", vendor.name, "");
  payment.name = vendor.name;
  payment.address = vendor.address;
  payment.add({.account = source, .category = payable, .credit = total});
  payment.add({.account = payable, .category = source, .debit = total});
  for (Document* bill : bills) {
    bill->paid = true;
    bill->settle(payment, bill->total);
  }
  if (by_card) card_balance_ += total;
  books_.Close(payment);
  return payment.number;
}

void Purchases::Pay_Twice() {
  if (unpaid_.empty()) return;
  Document* bill = unpaid_.front();
  const Vendor& vendor = books_.parties.vendor(bill->name);
  unpaid_.erase(unpaid_.begin());
  Pay(vendor, {bill}, false);
  Pay(vendor, {bill}, false);
  const Money amount = bill->total;
  books_.On(books_.day.plus_days(12), [this, &vendor, amount] {
    books_.Entry(books_.chart.checking, payable, amount, "Second payment returned", vendor.name);
  });
}

// --- checks and the card -------------------------------------------------------------------------

void Purchases::Expense_Check() {
  Random& random = books_.random;
  const Vendor& vendor = *random.pick(books_.parties.suppliers);
  const std::string_view bank = books_.chart.checking;
  const std::string_view memo = random.pick(words::check_memos);
  Document& check = books_.Open_Check("Check", vendor.name, vendor.address);
  check.add({.account = bank, .memo = memo});
  const int lines = random.chance(20) ? 2 : 1;
  for (int line = 0; line < lines; ++line) {
    const Small_Expense& expense = random.pick(counter_purchases);
    const Money amount = books_.between(expense.low, expense.high);
    check.add(
        {.account = books_.chart.*expense.category, .category = bank, .debit = amount, .class_name = class_name()});
    check.total += amount;
  }
  check.rows[0].credit = check.total;
  check.rows[0].category = lines > 1 ? break_down : check.rows[1].account;
  books_.Close(check);
}

void Purchases::Item_Check() {
  Item& part = *books_.random.pick(books_.items.parts);
  const Vendor& vendor = books_.parties.vendor(part.vendor);
  const double qty = books_.random.between(2, 6);
  const Money amount = part.cost.times(qty);
  const std::string_view bank = books_.chart.checking;
  part.stock += qty;
  Document& check = books_.Open_Check("Check", vendor.name, vendor.address);
  check.add({.account = bank, .category = break_down, .credit = amount, .memo = "Counter purchase"});
  check.add({.account = part.asset,
             .category = bank,
             .debit = amount,
             .item = part.name,
             .item_description = part.purchase_description,
             .qty = qty,
             .sale_price = part.cost});
  books_.Close(check);
}

void Purchases::Card_Entry(std::string_view category, Money amount, std::string_view name, std::string_view memo) {
  Document& charge = books_.Open("Ledger Entry");
  charge.name = name;
  charge.memo = memo;
  charge.add({.account = books_.chart.card, .category = category, .credit = amount});
  charge.add({.account = category, .category = books_.chart.card, .debit = amount});
  card_balance_ += amount;
  books_.Close(charge);
}

void Purchases::Card_Charge() {
  const Small_Expense& expense = books_.random.pick(card_purchases);
  const Vendor& vendor = *books_.random.pick(books_.parties.suppliers);
  Card_Entry(books_.chart.*expense.category, books_.between(expense.low, expense.high), vendor.name, "");
}

void Purchases::Pay_Card() {
  if (card_balance_ <= Money()) return;
  const Vendor& vendor = books_.parties.vendor(card_bank);
  const std::string_view bank = books_.chart.checking, card = books_.chart.card;
  Document& check = books_.Open_Check("Check", vendor.name, vendor.address);
  check.add({.account = bank, .category = card, .credit = card_balance_, .memo = vendor.account_num});
  check.add({.account = card, .category = bank, .debit = card_balance_});
  card_balance_ = Money();
  books_.Close(check);
}

}  // namespace tallymere::demo
