#include "demo/loader.h"

#include <algorithm>
#include <array>

#include "core/ledger/settlement.h"
#include "demo/random.h"

namespace tallymere::demo {
namespace {

// The order of the columns in the statement; Write_Row fills them by these names.
enum Column : int {
  TransNum = 1,
  Type,
  Day,
  Number,
  Name,
  Address,
  ShippingAddress,
  Memo,
  Account,
  Category,
  Debit,
  Credit,
  Amount,
  Class,
  Cleared,
  Paid,
  PaidBy,
  AmountReceived,
  SourceName,
  Item,
  ItemDescription,
  Qty,
  SalePrice,
  Taxable,
  Terms,
  DueDate,
  PONum,
  ShipDate,
  FOB,
  Via,
  Rep,
  PayMethod,
  PaidThrough,
  SSNum,
  PayrollItem,
  PayPeriod,
  Hours,
  Last = Hours
};
constexpr std::string_view insert_head =
    "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Address, ShippingAddress, Memo, Account, "
    "Category,"
    " Debit, Credit, Amount, Class, Cleared, Paid, PaidBy, AmountReceived, SourceName, Item, "
    "ItemDescription, Qty,"
    " SalePrice, Taxable, Terms, DueDate, PONum, ShipDate, FOB, Via, Rep, PayMethod, PaidThrough, SSNum, "
    "PayrollItem,"
    " PayPeriod, Hours) VALUES (?";

constexpr int uncleared_days = 30;  // some checks reach the bank only with the next statement

/// Sets one row's columns; what is blank stays null.
struct Setter {
  store::Statement& statement;
  void text(Column column, std::string_view text) const {
    if (!text.empty()) statement.bind(column, text);
  }
  void text_or(Column column, std::string_view own, std::string_view shared) const {
    text(column, own.empty() ? shared : own);
  }
  void day(Column column, const std::optional<Date>& day) const {
    if (day) statement.bind(column, *day);
  }
  void flag(Column column, bool on) const { statement.bind(column, on); }
};

/// A payment that was deposited does not name its deposit.
std::string Payers_Of(const Document& document) {
  std::string payers;
  if (document.type != "Payment")
    for (const auto& payer : document.payers) payers += Paid_By(payer.number);
  return payers;
}

void Set_Head(const Setter& set, const Document& document) {
  set.text(Type, document.type);
  set.day(Day, document.date);
  set.text(Number, document.reference);
  set.text(Address, document.address);
  set.text(ShippingAddress, document.shipping_address);
  set.text(Terms, document.terms);
  set.day(DueDate, document.due);
  set.text(PONum, document.po_num);
  set.day(ShipDate, document.ship_date);
  set.text(FOB, document.fob);
  set.text(Via, document.via);
  set.text(Rep, document.rep);
  set.text(PayMethod, document.pay_method);
  set.day(PaidThrough, document.paid_through);
  set.text(SSNum, document.ss_num);
  set.text(PayPeriod, document.pay_period);
  set.text(PaidBy, Payers_Of(document));
  set.flag(Paid, document.paid);
}

void Set_Posting(const Setter& set, const Posting& row) {
  set.text(Account, row.account);
  set.text(Category, row.category);
  set.text(Item, row.item);
  set.text(ItemDescription, row.item_description);
  set.text(PayrollItem, row.payroll_item);
  set.statement.bind(Debit, row.debit).bind(Credit, row.credit).bind(Amount, row.amount());
  if (row.qty) set.statement.bind(Qty, *row.qty);
  if (row.hours) set.statement.bind(Hours, *row.hours);
  if (row.sale_price) set.statement.bind(SalePrice, *row.sale_price);
  set.flag(Taxable, row.taxable);
}

}  // namespace

Loader::Loader(store::Database& db, std::vector<std::string_view> reconciled, Date through)
    : db_(db), reconciled_(std::move(reconciled)), through_(through), insert_(insert_head) {
  for (int column = 2; column <= Last; ++column) insert_ += ", ?";
  insert_ += ")";
}

Document& Loader::Add(Date date, std::string_view type) {
  auto& document = waiting_.emplace_back(std::make_unique<Document>(date));
  document->number = next_++;
  document->type = type;
  return *document;
}

void Loader::Write_Before(Date day) {
  while (!waiting_.empty() && waiting_.front()->date < day) {
    Write(*waiting_.front());
    waiting_.pop_front();
  }
}

void Loader::Write_All() {
  for (const auto& document : waiting_) Write(*document);
  waiting_.clear();
}

void Loader::Write(const Document& document) {
  for (const Posting& row : document.rows) Write_Row(document, row);
  for (const auto& payer : document.payers)
    db_.Execute("INSERT INTO Applied (Payment, Document, Amount) VALUES (?, ?, ?)",
                {payer.number, document.number, payer.amount});
  rows_ += static_cast<int64_t>(document.rows.size());
}

void Loader::Write_Row(const Document& document, const Posting& row) {
  store::Statement statement = db_.connection().prepare(insert_);
  const Setter set{statement};
  statement.bind(TransNum, document.number);
  Set_Head(set, document);
  Set_Posting(set, row);
  set.text_or(Name, row.name, document.name);
  set.text_or(Memo, row.memo, document.memo);
  set.text_or(Class, row.class_name, document.class_name);
  set.text_or(SourceName, row.source_name, document.source_name);
  set.flag(Cleared, Is_Cleared(document, row));
  if (document.keeps_received)
    statement.bind(AmountReceived,
                   document.received.is_zero() ? Money() : row.amount().share(document.received, document.total.abs()));
  statement.run();
}

bool Loader::Is_Cleared(const Document& document, const Posting& row) const {
  if (document.date > through_ || document.reference == to_print) return false;
  if (std::ranges::find(reconciled_, row.account) == reconciled_.end()) return false;
  const bool late = Random::Mix(static_cast<uint64_t>(document.number)) % 20 == 0;
  return !late || document.date < through_.plus_days(-uncleared_days);
}

}  // namespace tallymere::demo
