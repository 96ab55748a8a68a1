#pragma once

#include <string>

namespace tallymere {

/// What frmStart and frmCreate ask of the frame: the ways a company becomes current. Each is true when one
/// did.
class CompanyCommands {
 public:
  virtual ~CompanyCommands() = default;
  virtual bool Open_Company_At_Start() = 0;
  virtual void Create_Company_At_Start() = 0;  ///< shows frmCreate
  virtual bool Restore_Company_At_Start() = 0;
  virtual bool Open_Recent_At_Start(const std::string& path) = 0;
  virtual bool Create_Company(const std::string& name) = 0;
};

}  // namespace tallymere
