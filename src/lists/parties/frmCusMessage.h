#pragma once

#include "lists/ListForm.h"

namespace tallymere {

/// The messages that invoices offer.
class frmCusMessage : public ListForm {
  Q_OBJECT

 public:
  explicit frmCusMessage(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  void mnuCusMessageNew_Click();
  void mnuCusMesDelete_Click();

  SSDBGrid*& grdNames = grid_;
};

}  // namespace tallymere
