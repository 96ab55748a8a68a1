#pragma once

#include <vector>

#include "demo/books.h"

namespace tallymere::demo {

/// One line of an invoice or estimate, before it posts.
struct Line {
  const Item* item;
  std::optional<double> qty;
  std::optional<Money> amount;  ///< empty: the head line of a group
  bool taxable = false;
};

/// What customers are told they owe and what they pay: invoices, credit memos, payments, deposits, finance
/// charges.
class Sales {
 public:
  explicit Sales(Books& books) : books_(books) {}

  void Invoice_Somebody();
  void Credit_Memo();
  void Estimate();
  void Package_Slip();
  void Deposit_Waiting();  ///< what lies in Undeposited Funds goes to the bank
  void Leave_A_Check();    ///< somebody pays by check if nothing waits for a deposit
  void Charge_Late_Customers();
  int64_t repeat_template() const { return repeat_template_; }  ///< an invoice worth repeating
  Money repeat_amount() const { return repeat_amount_; }

 private:
  std::vector<Line> Make_Lines();
  void Add_Service(std::vector<Line>& lines);
  void Add_Goods(std::vector<Line>& lines);
  void Add_Part(std::vector<Line>& lines);
  void Add_Group(std::vector<Line>& lines);
  void Add_Totals(std::vector<Line>& lines, const Customer& customer);
  Document& Write_Invoice(Customer& customer, const std::vector<Line>& lines);
  void Write_Line(Document& invoice, const Line& line);
  void Plan_Payment(Customer& customer, Document& invoice);
  void Receive(Customer& customer, Document& first, Money amount, bool by_check = false);
  Document& Open_Payment(const Customer& customer, bool by_check);
  void Write_Deposit(std::span<Document* const> payments);
  Money Balance_Of(const Customer& customer) const;

  Books& books_;
  std::vector<Document*> waiting_;  ///< payments in Undeposited Funds
  int next_invoice_ = 1001;
  int next_slip_ = 1;
  int next_estimate_ = 1;
  int64_t repeat_template_ = 0;
  Money repeat_amount_;
};

}  // namespace tallymere::demo
