#include "core/values/completion.h"

#include "core/values/text.h"

namespace tallymere {

std::string_view Without_Indent(std::string_view name) {
  const size_t start = name.find_first_not_of(' ');
  return start == std::string_view::npos ? std::string_view() : name.substr(start);
}

Completion Complete(std::string_view typed, int count, const std::function<std::string_view(int row)>& name) {
  const std::string_view start = Without_Indent(typed);
  if (!start.empty()) {
    for (int row = 0; row < count; ++row) {
      const std::string_view candidate = Without_Indent(name(row));
      if (const auto same = same_text_start(candidate, start)) return {row, std::string(candidate), *same};
    }
  }
  return {-1, std::string(typed), typed.size()};
}

int Find_Whole(std::string_view text, int count, const std::function<std::string_view(int row)>& name) {
  const std::string_view whole = Without_Indent(text);
  if (whole.empty()) return -1;
  for (int row = 0; row < count; ++row)
    if (same_text(Without_Indent(name(row)), whole)) return row;
  return -1;
}

}  // namespace tallymere
