#pragma once

#include <map>
#include <string>

namespace tallymere {

class Form;
class Shell;

/// Every window that can be asked for by name. A window that is missing here is not part of this version: its
/// commands stand greyed.
using WindowTable = std::map<std::string, Form* (*)(Shell&), std::less<>>;

template <typename Window>
Form* Make_Window(Shell& shell) {
  return new Window(shell);
}

}  // namespace tallymere
