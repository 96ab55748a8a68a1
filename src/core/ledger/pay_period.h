#pragma once

#include <cstdint>

#include "core/store/database.h"

namespace tallymere {

/// Before the rows of a paycheck go: PayHistory says again that its period is not paid, unless another check of the
/// employee pays it too. What is no paycheck is left alone. Inside the caller's Transaction; Delete_Transaction does this
/// for everybody.
void Unpay_Period(store::Database& db, int64_t TransNum);

}  // namespace tallymere
