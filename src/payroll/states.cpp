#include "payroll/states.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {

const UsState* Find_State(std::string_view wanted) {
  const auto found = std::ranges::find_if(us_states, [wanted](const UsState& state) {
    return same_text(state.letters, wanted) || same_text(state.name, wanted);
  });
  return found == us_states.end() ? nullptr : &*found;
}

}  // namespace tallymere
