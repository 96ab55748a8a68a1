#pragma once

#include "lists/ListForm.h"

class QCheckBox;

namespace tallymere {

/// What the company sells and buys, and the commands of mnuItems on its rows.
class frmItems : public ListForm {
  Q_OBJECT

 public:
  explicit frmItems(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  std::string name() const;  ///< of the item in the current row
  void mnuDeleteItem_Click();

  SSDBGrid*& grdAccounts = grid_;
  QCheckBox* chkDormant;
};

}  // namespace tallymere
