#pragma once

#include <string>

#include "core/values/money.h"
#include "core/values/text.h"

/// How numbers and addresses are written on paper.
namespace tallymere {

/// Hours or pieces: "7.5", "80".
inline std::string Number_Text(double number) { return Money::from_double(number).to_text(); }

/// An address without its first line where that is the name which stands above it already.
inline std::string Below_Name(const std::string& address, const std::string& name) {
  const size_t end = address.find_first_of("\r\n");
  if (!same_text(trim(address.substr(0, end)), trim(name))) return address;
  const size_t next = end == std::string::npos ? end : address.find_first_not_of("\r\n", end);
  return next == std::string::npos ? "" : address.substr(next);
}

}  // namespace tallymere
