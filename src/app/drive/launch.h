#pragma once

#include <memory>

#include "core/company/session.h"

namespace tallymere::drive {

/// The running program, put away when this goes.
class Program {
 public:
  virtual ~Program() = default;
};

/// Shows frmMain and frmStart on this session, without splash and update check.
std::unique_ptr<Program> Launch(Session& session);

}  // namespace tallymere::drive
