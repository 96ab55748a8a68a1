#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/values/date.h"
#include "core/values/money.h"

namespace tallymere::demo {

inline constexpr std::string_view break_down = "<-Break Down->";
inline constexpr std::string_view receivable = "AR1";
inline constexpr std::string_view payable = "AP1";
inline constexpr std::string_view undeposited = "UF1";
inline constexpr std::string_view opening_equity = "OE1";
inline constexpr std::string_view to_print = "Print";

/// One row of a transaction. Texts belong to the lists, which outlive every document.
struct Posting {
  std::string_view account = {};  ///< empty: a line without a category, a subtotal or the head of a group
  std::string_view category = {};
  Money debit = {};
  Money credit = {};
  std::string_view memo = {};
  std::string_view class_name = {};
  std::string_view source_name = {};
  std::string_view name = {};  ///< empty: the document's
  std::string_view item = {};
  std::string_view item_description = {};
  std::string_view payroll_item = {};
  std::optional<double> qty = {};
  std::optional<double> hours = {};
  std::optional<Money> sale_price = {};
  bool taxable = false;
  std::optional<Money> sale = {};  ///< of a sold part: its rows tell this as their Amount, whatever they post

  Money amount() const { return sale ? *sale : debit.is_zero() ? credit.abs() : debit.abs(); }
};

/// A transaction on its way to the ledger: what all its rows share, and the rows. It waits for a while, so
/// that payments can still mark it.
struct Document {
  int64_t number = 0;  ///< TransNum
  std::string_view type;
  Date date;
  std::string reference;  ///< Number
  std::string_view name, address, shipping_address;
  std::string_view terms, fob, via, rep, class_name, memo, source_name, pay_method, ss_num;
  std::string po_num;
  std::string pay_period;
  std::optional<Date> due, ship_date, paid_through;
  struct Payer {
    int64_t number;
    Money amount;
  };
  std::vector<Payer> payers;  ///< in the order of payment
  bool paid = false;
  bool keeps_received = false;  ///< invoices and statements: AmountReceived is told on every row
  Money total;
  Money received;
  std::vector<Posting> rows;

  explicit Document(Date day) : date(day) {}
  Posting& add(Posting row) { return rows.emplace_back(row); }
  Money open() const { return total - received; }
  void settle(const Document& payment, Money amount) { payers.push_back({payment.number, amount}); }
};

}  // namespace tallymere::demo
