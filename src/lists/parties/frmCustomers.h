#pragma once

#include "lists/ListForm.h"

class QCheckBox;

namespace tallymere {

/// Customers, below each its jobs, with what they owe, and the commands of mnuCustomers on its rows.
class frmCustomers : public ListForm {
  Q_OBJECT

 public:
  explicit frmCustomers(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  std::string name() const;  ///< of the customer in the current row
  void mnuDeleteCus_Click();

  SSDBGrid*& grdCustomers = grid_;
  QCheckBox* chkShowDormant;
};

}  // namespace tallymere
