#pragma once

#include "lists/ListForm.h"

class QCheckBox;

namespace tallymere {

/// Employees by name, and the commands of mnuEmployee on them.
class frmEmployees : public ListForm {
  Q_OBJECT

 public:
  explicit frmEmployees(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  std::string number() const;  ///< of the employee in the current row
  void mnuDelEmp_Click();

  SSDBGrid*& grdEmployees = grid_;
  QCheckBox* chkReleased;
};

}  // namespace tallymere
