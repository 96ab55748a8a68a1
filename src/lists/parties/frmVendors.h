#pragma once

#include "lists/ListForm.h"

class QCheckBox;

namespace tallymere {

/// Vendors with what they are owed, and the commands of mnuVendors on their rows.
class frmVendors : public ListForm {
  Q_OBJECT

 public:
  explicit frmVendors(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  std::string name() const;  ///< of the vendor in the current row
  void mnuDeleteVen_Click();

  SSDBGrid*& grdVendors = grid_;
  QCheckBox* chkShowDormant;
};

}  // namespace tallymere
