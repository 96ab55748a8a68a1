#pragma once

#include <string>

namespace tallymere::drive {

/// Why a step of a script cannot go on: what happened, what was expected, what was seen instead.
struct Failed {
  std::string what;
  std::string expected = {};
  std::string seen = {};

  std::string text() const {
    std::string line = what;
    if (!expected.empty()) line += " / expected " + expected;
    if (!seen.empty()) line += " / seen " + seen;
    return line;
  }
};

inline std::string Shown(const std::string& text) { return '"' + text + '"'; }

}  // namespace tallymere::drive
