#include "app/drive/launch.h"

#include "app/windows.h"
#include "core/company/company.h"
#include "shell/frmMain.h"

namespace tallymere::drive {

namespace {

class Desktop_Program : public Program {
 public:
  explicit Desktop_Program(Session& session) : frame_(Make_Frame(session)) { frame_->Start(); }

 private:
  std::unique_ptr<frmMain> frame_;
};

}  // namespace

std::unique_ptr<Program> Launch(Session& session) {
  Main(session);
  return std::make_unique<Desktop_Program>(session);
}

}  // namespace tallymere::drive
