#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tallymere {

/// What a box shows after a key: the whole text and where the proposed part, shown selected, begins (in bytes
/// of its UTF-8). row is the list's row, or -1 when nothing begins so: then text is
/// what was typed.
struct Completion {
  int row = -1;
  std::string text;
  size_t typed = 0;
  bool found() const { return row >= 0; }
};

/// A list's name as a box holds it: without the blanks that indent a sub-category.
std::string_view Without_Indent(std::string_view name);

/// The first of `count` names, in list order, that begins with what was typed, ignoring case and indentation.
/// Empty text matches nothing. The typed letters are kept as typed only in length; the name's own letters
/// replace them.
Completion Complete(std::string_view typed, int count, const std::function<std::string_view(int row)>& name);

/// The first name that is the whole text, ignoring case and indentation; -1: none.
int Find_Whole(std::string_view text, int count, const std::function<std::string_view(int row)>& name);

}  // namespace tallymere
