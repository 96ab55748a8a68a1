#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/values/date.h"
#include "core/values/money.h"

namespace tallymere::store {

/// What a field holds. Money is kept in the file as whole ten-thousandths, a date as yyyy-mm-dd, a flag as 0 or -1.
enum class FieldType { Text, Memo, Long, Integer, Money, Double, Date, Flag };

/// One field's content. Null and empty text read alike: blank() is true, text() is "", money() is zero.
/// A reader that asks for a kind the content cannot be turned into gets Error 3421.
class Value {
 public:
  Value() = default;
  Value(std::nullptr_t) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(std::string_view text) : content_(std::string(text)) {}
  Value(const char* text) : content_(std::string(text)) {}
  Value(int number) : content_(int64_t{number}) {}
  Value(int64_t number) : content_(number) {}
  Value(double number) : content_(number) {}
  Value(Money amount) : content_(amount) {}
  Value(Date day) : content_(day) {}
  Value(bool flag) : content_(flag) {}
  template <typename T>
  Value(const std::optional<T>& maybe) {
    if (maybe) *this = Value(*maybe);
  }

  bool is_null() const { return std::holds_alternative<std::monostate>(content_); }
  bool blank() const;

  std::string text() const;  ///< "" when blank; amounts plain, dates m/d/yyyy, flags "True"/"False"
  Money money() const;       ///< zero when blank
  int64_t integer() const;   ///< 0 when blank
  double number() const;     ///< 0 when blank
  bool flag() const;         ///< false when blank
  Date date() const;         ///< Error 3421 when blank
  std::optional<Date> maybe_date() const;

  /// The same content as a field of this type would hold it; text that does not fit is Error 3421.
  Value as(FieldType type) const;

  const auto& content() const { return content_; }
  friend bool operator==(const Value&, const Value&) = default;

 private:
  template <typename T>
  const T* get() const {
    return std::get_if<T>(&content_);
  }
  std::variant<std::monostate, std::string, int64_t, double, Money, Date, bool> content_;
};

}  // namespace tallymere::store
