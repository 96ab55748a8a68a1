#pragma once

#include "lists/ListForm.h"
#include "lists/categories.h"

class QCheckBox;

namespace tallymere {

/// The chart of accounts as an indented tree with balances, and the commands of mnuAccount on its rows.
class frmAccounts : public ListForm {
  Q_OBJECT

 public:
  explicit frmAccounts(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  AccountRow row() const;
  void cmdNew_Click();
  void mnuEdit_Click();
  void mnuDelete_Click();
  void mnuRegister_Click();
  void mnuReconcile_Click();
  void mnuCatReport_Click();

  SSDBGrid*& grdAccounts = grid_;
  QCheckBox* chkDormant;
};

}  // namespace tallymere
