#include "core/company/ss_number.h"

#include "core/company/rights.h"

namespace tallymere {

std::string Shown_SSNum(const Session& session, std::string_view number) {
  std::string shown(number);
  if (!session.MultiUser || session.CurrentUser == Administrator) return shown;
  constexpr size_t left_plain = 4;
  const size_t hidden = shown.size() > left_plain ? shown.size() - left_plain : shown.size();
  for (size_t at = 0; at < hidden; ++at)
    if (shown[at] >= '0' && shown[at] <= '9') shown[at] = '*';
  return shown;
}

}  // namespace tallymere
