#pragma once

#include "lists/ListForm.h"

namespace tallymere {

/// Payroll items in the order of their types, and the commands of mnuPayroll on them.
class frmPayrollItems : public ListForm {
  Q_OBJECT

 public:
  explicit frmPayrollItems(Shell& shell_of_frame);

  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  SSDBGrid*& grdPayItems = grid_;
};

}  // namespace tallymere
