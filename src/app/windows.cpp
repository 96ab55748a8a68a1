#include "app/windows.h"

#include "shell/frmMain.h"

namespace tallymere {

/// A window's row: {"frmCheck", Make_Window<frmCheck>}.
const WindowTable& Windows() {
  static const WindowTable windows = {};
  return windows;
}

std::unique_ptr<frmMain> Make_Frame(Session& session) {
  return std::make_unique<frmMain>(session, Windows());
}

}  // namespace tallymere
