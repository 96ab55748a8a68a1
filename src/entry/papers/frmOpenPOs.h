#pragma once

#include "entry/document/PickForm.h"

namespace tallymere {

/// The open purchase orders of a vendor, for a bill to take up. Asked with the name as key.
class frmOpenPOs : public PickForm {
  Q_OBJECT

 public:
  explicit frmOpenPOs(Shell& shell_of_frame);

  void take(const Request& request) override;
};

}  // namespace tallymere
