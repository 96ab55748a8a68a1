#pragma once

#include "entry/document/PickForm.h"

namespace tallymere {

/// Receipts of goods whose bill has come: the one chosen opens in frmBills, to be made a bill there.
class frmInvBill : public PickForm {
  Q_OBJECT

 public:
  explicit frmInvBill(Shell& shell_of_frame);

  void take(const Request& request) override;
  void on_changed(const std::string& table) override;
  void unloading() override;
};

}  // namespace tallymere
