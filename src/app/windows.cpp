#include "app/windows.h"

#include "entry/frmRegister.h"
#include "shell/frmMain.h"

namespace tallymere {

/// A window's row: {"frmCheck", Make_Window<frmCheck>}.
const WindowTable& Windows() {
  static const WindowTable windows = {{"frmRegister", Make_Window<frmRegister>}};
  return windows;
}

std::unique_ptr<frmMain> Make_Frame(Session& session) {
  return std::make_unique<frmMain>(session, Windows());
}

}  // namespace tallymere
