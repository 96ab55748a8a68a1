#pragma once

#include <vector>

#include "demo/books.h"

namespace tallymere::demo {

/// What the company owes and buys: bills, receipts, credits, purchase orders, bill payments, plain checks,
/// the card.
class Purchases {
 public:
  explicit Purchases(Books& books) : books_(books) {}

  void Monthly_Overhead();  ///< on each workday: what falls due on it
  void Supplier_Bill();     ///< materials or a subcontractor, by bill
  void Expense_Check();     ///< one for what is bought over the counter
  void Item_Check();        ///< a check on its Items tab
  void Card_Charge();
  void Vendor_Credit();
  void Reorder_Stock();  ///< parts that run low: order, receipt, bill
  void Order_Ahead();    ///< the part of which there is least
  void Pay_Bills();      ///< all that fall due within a week, one payment per vendor
  void Pay_Card();
  /// Two users pay one bill; the vendor sends the second payment back.
  void Pay_Twice();

  int64_t check_template() const { return check_template_; }  ///< the rent check
  int64_t bill_template() const { return bill_template_; }
  Money check_amount() const { return check_amount_; }
  Money bill_amount() const { return bill_amount_; }

 private:
  struct Due {
    const Vendor* vendor;
    std::vector<Document*> bills;
  };
  Document& Open_Bill(std::string_view type, const Vendor& vendor);
  void Close_Bill(Document& bill, std::string_view memo = {});
  void Order_Part(Item& part);
  int64_t Pay(const Vendor& vendor, const std::vector<Document*>& bills, bool by_card);
  std::vector<Due> Due_Bills(Date until);
  void Card_Entry(std::string_view category, Money amount, std::string_view name, std::string_view memo);
  std::string_view class_name();

  Books& books_;
  std::vector<Document*> unpaid_;
  Money card_balance_;
  int next_order_ = 1;
  int64_t check_template_ = 0, bill_template_ = 0;
  Money check_amount_, bill_amount_;
};

}  // namespace tallymere::demo
