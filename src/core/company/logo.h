#pragma once

#include <string>

#include "core/store/database.h"

namespace tallymere {

/// The company's logo, the bytes of a picture file; "" when it has none. It lies in the company, so that it prints on every
/// machine and goes along with a backup.
std::string Company_Logo(store::Database& company);
/// Inside a Transaction. "" takes it away.
void Set_Company_Logo(store::Database& company, const std::string& picture);

inline constexpr size_t Largest_Logo = 2 * 1024 * 1024;  ///< in bytes

}  // namespace tallymere
