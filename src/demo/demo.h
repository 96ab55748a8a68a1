#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/company/session.h"

namespace tallymere {

struct DemoOptions {
  std::string name = "Sample Company";
  int years = 3;  ///< of business, the last one ending today; at least 1
  std::optional<int64_t> transactions =
      {};  ///< about this many over all years, at least 400 a year; empty: 1,250 a year
  uint32_t seed = 1;
  Date today;
};

/// Fills the session's company, fresh from the model, with a landscaping business: lists, and every kind of
/// transaction with its links. The same options give the same rows on every machine. It is one store
/// transaction and one line of history; cached balances are left to the next balance pass.
void Write_Demo_Company(Session& session, const DemoOptions& options);

}  // namespace tallymere
