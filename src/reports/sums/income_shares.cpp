#include "reports/sums/income_shares.h"

#include <algorithm>
#include <span>

namespace tallymere {
namespace {

std::vector<int64_t> Each_Once(std::vector<int64_t> numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

}  // namespace

// --- first rows

void HeadRows::add(int64_t TransNum, std::optional<Date> day, Money Amount) {
  if (heads_.empty() || heads_.back().TransNum != TransNum) heads_.push_back({TransNum, day, Amount});
}

void HeadRows::settle() {
  std::stable_sort(heads_.begin(), heads_.end(), [](auto& a, auto& b) { return a.TransNum < b.TransNum; });
  auto same = [](auto& a, auto& b) { return a.TransNum == b.TransNum; };
  heads_.erase(std::unique(heads_.begin(), heads_.end(), same), heads_.end());
}

const HeadRows::Head* HeadRows::find(int64_t TransNum) const {
  auto found = std::lower_bound(heads_.begin(), heads_.end(), TransNum,
                                [](const Head& head, int64_t number) { return head.TransNum < number; });
  return found == heads_.end() || found->TransNum != TransNum ? nullptr : &*found;
}

// --- shares

void IncomeShares::add(size_t category, int64_t TransNum, std::string_view PaidBy, bool is_credit, Money Amount) {
  if (PaidBy != PaidBy_) {
    PaidBy_ = PaidBy;
    first_payment_ = payments_.size();
    for (int64_t payment : Payments_Of(PaidBy)) payments_.push_back(payment);
  }
  if (const size_t count = payments_.size() - first_payment_)
    rows_.push_back({category, TransNum, is_credit, Amount, first_payment_, count});
}

void IncomeShares::clear() { *this = {}; }

std::vector<int64_t> IncomeShares::payments() const { return Each_Once(payments_); }

std::vector<int64_t> IncomeShares::invoices() const {
  std::vector<int64_t> numbers;
  for (const Row& row : rows_)
    if (numbers.empty() || numbers.back() != row.TransNum) numbers.push_back(row.TransNum);
  return Each_Once(std::move(numbers));
}

void IncomeShares::share_out(const HeadRows& payments, const HeadRows& receivables, const TakeAmount& take) const {
  for (const Row& row : rows_) {
    const HeadRows::Head* head = receivables.find(row.TransNum);
    const Money receivable = head ? head->Amount : Money();
    for (int64_t number : std::span(payments_).subspan(row.first_payment, row.payment_count)) {
      const HeadRows::Head* payment = payments.find(number);
      if (!payment || !payment->day) continue;
      const bool in_part = receivable > payment->Amount && !receivable.is_zero();
      const Money share = in_part ? row.Amount.share(payment->Amount, receivable) : row.Amount;
      take({row.category, *payment->day, row.is_credit ? share : -share});
    }
  }
}

}  // namespace tallymere
