#include "app/windows.h"

#include "entry/frmCheck.h"
#include "entry/frmRegister.h"
#include "lists/frmAccounts.h"
#include "lists/frmClass.h"
#include "lists/frmModAccount.h"
#include "lists/frmNewPayee.h"
#include "lists/frmOtherNames.h"
#include "shell/frmMain.h"

namespace tallymere {

/// A window's row: {"frmCheck", Make_Window<frmCheck>}.
const WindowTable& Windows() {
  static const WindowTable windows = {
      {"frmAccounts", Make_Window<frmAccounts>}, {"frmCheck", Make_Window<frmCheck>},
      {"frmClass", Make_Window<frmClass>},       {"frmModAccount", Make_Window<frmModAccount>},
      {"frmNewPayee", Make_Window<frmNewPayee>}, {"frmOtherNames", Make_Window<frmOtherNames>},
      {"frmRegister", Make_Window<frmRegister>},
  };
  return windows;
}

std::unique_ptr<frmMain> Make_Frame(Session& session) {
  return std::make_unique<frmMain>(session, Windows());
}

}  // namespace tallymere
