#include "demo/sales.h"

#include <algorithm>

#include "demo/rows.h"
#include "demo/words.h"

namespace tallymere::demo {
namespace {

Line Line_Of(const Item& item, double qty) { return {&item, qty, item.price.times(qty), item.taxable}; }

/// Rounded to cents with a nudge of a tenth of a cent, as the invoice reckons its tax lines.
Money Tax_On(Money taxable, Money rate) {
  return (taxable.times(rate.to_double()) + Money::from_units(10)).rounded_to_cents();
}

Money Sum_Of(const std::vector<Line>& lines) {
  Money sum;
  for (const Line& line : lines)
    if (line.amount && line.item->type != "Subtotal") sum += *line.amount;
  return sum;
}

}  // namespace

std::vector<Line> Sales::Make_Lines() {
  Random& random = books_.random;
  std::vector<Line> lines;
  if (random.chance(12)) {
    Add_Service(lines);  // a contract: one line, the same again next month
    return lines;
  }
  const int wanted = random.between(2, 6);
  for (int line = 0; line < wanted; ++line) {
    const int kind = random.below(100);
    if (kind < 35) Add_Service(lines);
    if (kind >= 35 && kind < 92) Add_Goods(lines);
    if (kind >= 92) Add_Part(lines);
  }
  if (random.chance(3)) Add_Group(lines);
  if (random.chance(20)) lines.push_back(Line_Of(*books_.items.delivery, 1));
  if (random.chance(4)) lines.push_back(Line_Of(*books_.items.discount, 1));
  return lines;
}

void Sales::Add_Service(std::vector<Line>& lines) {
  const Item& item = *books_.random.pick(books_.items.services);
  lines.push_back(Line_Of(item, books_.plan.bulk ? books_.random.between(1, 5) : books_.random.between(4, 20)));
}

void Sales::Add_Goods(std::vector<Line>& lines) {
  const Item& item = *books_.random.pick(books_.items.goods);
  const int cheap = item.price < Money::dollars(10) ? 20 : 1;
  const int qty = books_.plan.bulk ? books_.random.between(1, 4) : books_.random.between(2, 9);
  lines.push_back(Line_Of(item, cheap * qty));
}

void Sales::Add_Part(std::vector<Line>& lines) {
  Item& part = *books_.random.pick(books_.items.parts);
  const double qty = std::min<double>(books_.random.between(1, 6), part.stock);
  if (qty < 1) return Add_Goods(lines);
  part.stock -= qty;
  lines.push_back(Line_Of(part, qty));
}

void Sales::Add_Group(std::vector<Line>& lines) {
  ItemList& items = books_.items;
  if (items.light->stock < lights_in_group) return Add_Goods(lines);
  items.light->stock -= lights_in_group;
  lines.push_back({items.group, {}, {}, false});
  lines.push_back(Line_Of(*items.light, lights_in_group));
  lines.push_back(Line_Of(*items.lighting_work, hours_in_group));
  lines.push_back({items.subtotal, {}, Sum_Of(lines), false});
}

void Sales::Add_Totals(std::vector<Line>& lines, const Customer& customer) {
  Money taxable;
  for (const Line& line : lines)
    if (line.taxable && line.amount) taxable += *line.amount;
  if (taxable <= Money()) return;
  const ItemList& items = books_.items;
  lines.push_back({items.state_tax, {}, Tax_On(taxable, items.state_tax->price), false});
  if (customer.in_city) lines.push_back({items.city_tax, {}, Tax_On(taxable, items.city_tax->price), false});
}

void Sales::Write_Line(Document& invoice, const Line& line) {
  const Item& item = *line.item;
  const Money amount = item.type == "Subtotal" ? Money() : line.amount.value_or(Money());
  Posting row{.account = item.posting_category(), .category = receivable};
  (amount.is_negative() ? row.debit : row.credit) = amount.abs();
  row.item = item.name;
  row.item_description = item.description;
  row.qty = -line.qty.value_or(0) + 0.0;  // never a negative zero
  row.sale_price = item.price;
  row.taxable = line.taxable;
  if (!item.is_part()) {
    invoice.add(row);
    return;
  }
  // Stock goes out to cost of goods at what it cost, income takes the sale.
  Posting sale = row;
  sale.account = item.category;
  sale.source_name = "Inventory Part";
  row.sale = amount.abs();
  row.debit = {};
  row.credit = item.cost.times(line.qty.value_or(0));
  invoice.add(row);
  row.source_name = "Inventory Part";
  row.account = item.cost_category;
  std::swap(row.debit, row.credit);
  invoice.add(row);
  invoice.add(sale);
}

Document& Sales::Write_Invoice(Customer& customer, const std::vector<Line>& lines) {
  Random& random = books_.random;
  Document& invoice = books_.Open("Invoice");
  invoice.reference = std::to_string(next_invoice_++);
  invoice.name = customer.name;
  invoice.rep = customer.rep;
  invoice.terms = customer.term;
  invoice.class_name = words::classes[static_cast<size_t>(random.below(3))];
  invoice.source_name = random.chance(80) ? "Product" : "Service";
  if (random.chance(30)) invoice.memo = random.pick(words::messages);
  if (random.chance(12)) invoice.po_num = std::to_string(random.between(2000, 9999));
  if (invoice.source_name == "Product") {
    invoice.ship_date = books_.day;
    invoice.via = random.pick(words::shipping_methods);
  }
  invoice.keeps_received = true;
  invoice.total = Sum_Of(lines);
  Posting head{.account = receivable, .category = break_down};
  (invoice.total > Money() ? head.debit : head.credit) = invoice.total.abs();
  invoice.add(head);
  for (const Line& line : lines) Write_Line(invoice, line);
  books_.Close(invoice);
  return invoice;
}

void Sales::Invoice_Somebody() {
  Customer& customer = books_.random.pick(books_.parties.customers);
  std::vector<Line> lines = Make_Lines();
  Add_Totals(lines, customer);
  if (Sum_Of(lines) <= Money()) return;
  Document& invoice = Write_Invoice(customer, lines);
  if (invoice.rows.size() == 2) repeat_template_ = invoice.number, repeat_amount_ = invoice.total;
  Plan_Payment(customer, invoice);
}

void Sales::Credit_Memo() {
  Customer& customer = books_.random.pick(books_.parties.customers);
  const Item& item = *books_.random.pick(books_.items.goods);
  Line line = Line_Of(item, 1);
  line.qty = -1;
  line.amount = -item.price;
  Write_Invoice(customer, {line});
}

// --- payments ------------------------------------------------------------------------------------

void Sales::Plan_Payment(Customer& customer, Document& invoice) {
  customer.open.push_back(&invoice);
  const int days = std::clamp(customer.days + customer.habit + books_.random.between(-3, 3), 0, 100);
  const bool in_parts = invoice.total > Money::dollars(200) && books_.random.chance(10);
  if (!in_parts) {
    books_.On(books_.day.plus_days(days), [this, &customer, &invoice] { Receive(customer, invoice, invoice.open()); });
    return;
  }
  const Money half = invoice.total.times(0.4).rounded_to_cents();
  books_.On(books_.day.plus_days(days), [this, &customer, &invoice, half] { Receive(customer, invoice, half); });
  books_.On(books_.day.plus_days(days + 18),
            [this, &customer, &invoice] { Receive(customer, invoice, invoice.open()); });
}

Document& Sales::Open_Payment(const Customer& customer, bool by_check) {
  Random& random = books_.random;
  const int other_way = random.below(10) - 6;  // seven of ten are checks
  const size_t method = by_check || other_way < 0 ? 0 : static_cast<size_t>(other_way);
  Document& payment = books_.Open("Payment");
  payment.name = customer.name;
  payment.pay_method = words::payment_methods[method];
  if (payment.pay_method == "Check") payment.reference = std::to_string(random.between(101, 9899));
  return payment;
}

void Sales::Receive(Customer& customer, Document& first, Money amount, bool by_check) {
  if (first.paid || amount <= Money()) return;
  std::vector<std::pair<Document*, Money>> applied = {{&first, std::min(amount, first.open())}};
  if (amount == first.open() && books_.random.chance(25))
    for (Document* other : customer.open)
      if (other != &first && other->date < first.date) applied.emplace_back(other, other->open());
  Document& payment = Open_Payment(customer, by_check);
  for (auto& [invoice, share] : applied) {
    payment.total += share;
    invoice->received += share;
    invoice->paid = invoice->open().is_zero();
    invoice->settle(payment, share);
  }
  std::erase_if(customer.open, [](const Document* invoice) { return invoice->paid; });
  const bool held = payment.pay_method == "Check" || payment.pay_method == "Cash";
  const std::string_view account = held ? undeposited : std::string_view(books_.chart.checking);
  payment.paid = !held;
  payment.add({.account = account, .category = receivable, .debit = payment.total});
  payment.add({.account = receivable, .category = account, .credit = payment.total});
  if (held) waiting_.push_back(&payment);
  books_.Close(payment);
}

void Sales::Deposit_Waiting() {
  constexpr size_t slip_lines = 12;
  for (size_t at = 0; at < waiting_.size(); at += slip_lines)
    Write_Deposit(std::span(waiting_).subspan(at, std::min(slip_lines, waiting_.size() - at)));
  waiting_.clear();
}

void Sales::Leave_A_Check() {
  if (!waiting_.empty()) return;
  for (Customer& customer : books_.parties.customers) {
    const auto open = std::ranges::find(customer.open, std::string_view("Invoice"), &Document::type);
    if (open != customer.open.end()) return Receive(customer, **open, (*open)->open(), true);
  }
}

void Sales::Write_Deposit(std::span<Document* const> payments) {
  Document& deposit = books_.Open("Ledger Entry");
  for (const Document* payment : payments) deposit.total += payment->total;
  const bool single = payments.size() == 1;
  deposit.add({.account = books_.chart.checking,
               .category = single ? undeposited : break_down,
               .debit = deposit.total,
               .memo = "Deposit",
               .name = single ? payments.front()->name : std::string_view()});
  for (Document* payment : payments) {
    payment->paid = true;
    payment->settle(deposit, payment->total);
    deposit.add(
        {.account = undeposited, .category = books_.chart.checking, .credit = payment->total, .name = payment->name});
  }
  books_.Close(deposit);
}

// --- finance charges -----------------------------------------------------------------------------

/// As the customer list shows it: invoices less payments, finance charges left out.
Money Sales::Balance_Of(const Customer& customer) const {
  Money balance;
  for (const Document* document : customer.open)
    if (document->type == "Invoice") balance += document->open();
  return balance;
}

void Sales::Charge_Late_Customers() {
  constexpr double yearly_rate = 0.18;
  constexpr int patience = 45;
  size_t most = 2 + books_.parties.customers.size() / 20;
  for (Customer& customer : books_.parties.customers) {
    const bool late = std::ranges::any_of(customer.open, [&](const Document* document) {
      return document->type == "Invoice" && days_between(document->date, books_.day) > patience;
    });
    if (!late) continue;
    if (most-- == 0) return;
    const Money balance = Balance_Of(customer);
    Money charge;
    for (const Document* invoice : customer.open)
      if (invoice->type == "Invoice")
        charge += (balance - invoice->received)
                      .times(yearly_rate * days_between(invoice->date, books_.day))
                      .share(Money::dollars(1), Money::dollars(365));
    Document& statement = books_.Open("Statement");
    statement.name = customer.name;
    statement.memo = "Finanace Charge";
    statement.keeps_received = true;
    statement.total = charge.rounded_to_cents();
    const std::string_view income = books_.chart.finance;
    statement.add({.account = receivable, .category = income, .debit = statement.total});
    statement.add({.account = income, .category = receivable, .credit = statement.total});
    books_.Close(statement);
    customer.open.push_back(&statement);
    books_.On(books_.day.plus_days(books_.random.between(20, 40)),
              [this, &customer, &statement] { Receive(customer, statement, statement.open()); });
  }
}

// --- papers that do not post ---------------------------------------------------------------------

void Sales::Estimate() {
  const Customer& customer = books_.random.pick(books_.parties.customers);
  const Item& service = *books_.random.pick(books_.items.services);
  const Item& good = *books_.random.pick(books_.items.goods);
  const int number = next_estimate_++;
  Money total;
  for (const Line& line :
       {Line_Of(service, books_.random.between(8, 60)), Line_Of(good, books_.random.between(5, 40))}) {
    total += *line.amount;
    Add_Row(books_.db, "EstItems",
            {{"EstimateIndex", number},
             {"Item", line.item->name},
             {"Description", line.item->description},
             {"Qty", *line.qty},
             {"Rate", line.item->price},
             {"Amount", *line.amount}});
  }
  Add_Row(books_.db, "Estimates",
          {{"Index", number},
           {"Open", books_.recent(30)},
           {"Customer", customer.name},
           {"CustomerAddress", customer.address},
           {"EstimateNumber", std::to_string(number)},
           {"Date", books_.day},
           {"Total", total}});
}

void Sales::Package_Slip() {
  const Customer& customer = books_.random.pick(books_.parties.customers);
  const int number = next_slip_++;
  const Line line = Line_Of(*books_.random.pick(books_.items.parts), books_.random.between(1, 4));
  Add_Row(books_.db, "PSlipItems",
          {{"POIndex", number},
           {"Item", line.item->name},
           {"Description", line.item->description},
           {"Qty", *line.qty},
           {"Rate", line.item->price},
           {"Amount", *line.amount}});
  Add_Row(books_.db, "PSlips",
          {{"Index", number},
           {"Open", books_.recent(30)},
           {"Vendor", customer.name},
           {"VendorAddress", customer.address},
           {"PONumber", std::to_string(number)},
           {"Date", books_.day},
           {"Total", *line.amount}});
}

}  // namespace tallymere::demo
