#include "payroll/posting_rule.h"

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

/// Wages and additions are the company's expense; all else in the Employee Summary is withheld.
bool Is_Pay(const PayItem& item) {
  return item.type() == ItemType::Wage || item.type() == ItemType::Addition || item.type() == ItemType::Commision;
}

/// Whether an amount's sign is the other than its item has by nature: a withholding given back, a wage taken back.
bool Is_Reversed(const PayItem& item, Money amount) {
  const bool taken = Is_Tax(item.type()) || item.type() == ItemType::Deduction;
  return !taken ? amount.is_negative() : amount > Money();
}

void Add_Side(std::vector<PostedSide>& sides, const std::string& account, bool debit, Money amount) {
  if (account.empty()) return;
  sides.push_back(debit ? PostedSide{account, amount.abs(), {}} : PostedSide{account, {}, amount.abs()});
}

}  // namespace

PayrollPosting Posting_Rule(store::Database& company) {
  return Preference(company, preference::PayrollPosting) == "Balanced" ? PayrollPosting::Balanced
                                                                       : PayrollPosting::Plain;
}

bool Is_Companys(PayrollPosting rule, const PayItem& item) {
  return rule == PayrollPosting::Balanced && item.type() == ItemType::CompanyContribution;
}

std::vector<PostedSide> Sides_Of(PayrollPosting rule, const PayItem& item, Money amount, Summary summary) {
  std::vector<PostedSide> sides;
  const bool balanced = rule == PayrollPosting::Balanced;
  const bool reversed = balanced && Is_Reversed(item, amount);
  const bool employees = balanced && summary == Summary::Employee;
  if (!employees || Is_Pay(item)) Add_Side(sides, item.ExpenseAcct, !reversed, amount);
  if (!employees || !Is_Pay(item)) Add_Side(sides, item.LiabilityAcct, reversed, amount);
  return sides;
}

std::string Adjustment_Other_Side(PayrollPosting rule) {
  return rule == PayrollPosting::Balanced ? opening_balance : "";
}

Money Off_Balance(PayrollPosting rule, const PayItem& item, Money amount, Summary summary) {
  Money off = summary == Summary::Employee ? -amount : Money();
  for (const PostedSide& side : Sides_Of(rule, item, amount, summary)) off += side.Debit - side.Credit;
  return off;
}

std::string Why_Off_Balance(PayrollPosting rule, const PayItem& item, Money amount, Summary summary) {
  if (Off_Balance(rule, item, amount, summary).is_zero()) return "";
  const std::string what = item.Name + " (" + Money_Text(amount) + ")";
  const bool expense = !item.ExpenseAcct.empty(), liability = !item.LiabilityAcct.empty();
  if (!expense && !liability) return what + " has no category: nothing is posted for it.";
  if (summary == Summary::Company) return what + " has only one of its two categories.";
  if (item.type() == ItemType::CompanyContribution)
    return what + " is paid out with the check and owed to its agency as well.";
  if (expense && liability) return what + " posts to both of its categories beside the net pay.";
  if (Is_Reversed(item, amount)) return what + " is given back, but posts as if it was taken.";
  return what + " has not the category it needs.";
}

}  // namespace tallymere
