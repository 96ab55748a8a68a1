#include "core/values/reckon.h"

#include <stdexcept>

#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::string_view signs = "+-*/";

/// Reads a reckoning from left to right. Each step throws std::invalid_argument where no number stands.
class Reckoning {
 public:
  explicit Reckoning(std::string_view typed) : left_(typed) {}

  Money sum() {
    Money total = product();
    while (!left_.empty()) {
      const char sign = take_sign();
      const Money next = product();
      total = sign == '+' ? total + next : total - next;
    }
    return total;
  }

 private:
  /// Ends before a + or - or at the end.
  Money product() {
    Money value = number();
    bool alone = true;
    for (; !left_.empty() && (left_.front() == '*' || left_.front() == '/'); alone = false) {
      const char sign = take_sign();
      const Money factor = number();
      const Money one = Money::dollars(1);
      value = sign == '*' ? value.share(factor, one) : value.share(one, factor);
    }
    return alone ? value : value.rounded_to_cents();
  }

  /// A sign may stand before the first digit, and belongs to the number.
  Money number() {
    size_t begin = left_.find_first_not_of(' ');
    if (begin == std::string_view::npos) throw std::invalid_argument("no number");
    const bool signed_number = left_[begin] == '-' || left_[begin] == '+';
    const size_t end = std::min(left_.find_first_of(signs, begin + (signed_number ? 1 : 0)), left_.size());
    const auto amount = Money::parse(left_.substr(0, end));
    if (!amount) throw std::invalid_argument("no number");
    left_.remove_prefix(end);
    return *amount;
  }

  char take_sign() {
    const char sign = left_.front();
    left_.remove_prefix(1);
    return sign;
  }

  std::string_view left_;
};

}  // namespace

std::optional<Money> Reckon(std::string_view typed) {
  if (const auto amount = Money::parse(typed)) return amount;
  try {
    return Reckoning(typed).sum();
  } catch (const std::logic_error&) {  // no number, or a division by zero
  } catch (const std::overflow_error&) {
  }
  return std::nullopt;
}

}  // namespace tallymere
