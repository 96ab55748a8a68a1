#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "payroll/pay_items.h"

/// Where the amounts of a paycheck post, under the company's choice between the old pattern and books that balance.
/// This file and its source are all of the difference; docs/bookkeeping.md tells it to an owner.
namespace tallymere {

/// The preference "PayrollPosting". Plain: both categories of an item on fixed sides, whatever the amount's sign, and a
/// company contribution paid out with the check. Balanced: debits equal credits. New companies are Balanced; a company
/// without the preference is Plain, as it always was.
enum class PayrollPosting { Plain, Balanced };
PayrollPosting Posting_Rule(store::Database& company);

enum class Summary { Employee, Company };

/// Whether an item that is paid beside the wages stands in the Company Summary: the company's cost, not the employee's pay.
bool Is_Companys(PayrollPosting rule, const PayItem& item);

struct PostedSide {
  std::string Account;
  Money Debit, Credit;
};
/// The rows that an amount of a summary makes: none for an item without categories.
std::vector<PostedSide> Sides_Of(PayrollPosting rule, const PayItem& item, Money amount, Summary summary);

/// The category that takes the other side of a liability adjustment of an item the employee pays: "" under Plain, where
/// it has none.
std::string Adjustment_Other_Side(PayrollPosting rule);

/// By how much debits exceed credits for an amount of a summary, its part of the net pay included.
Money Off_Balance(PayrollPosting rule, const PayItem& item, Money amount, Summary summary);
/// Why, in words for an owner; "" when it balances.
std::string Why_Off_Balance(PayrollPosting rule, const PayItem& item, Money amount, Summary summary);

}  // namespace tallymere
