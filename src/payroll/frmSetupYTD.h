#pragma once

#include "entry/document/EntryForm.h"

class QButtonGroup;
class QLabel;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;
class SSDBDropDown;

/// Setup/Adjust Year-To-Date Amounts: an employee's totals from before the books began, or a correction of them.
class frmSetupYTD : public EntryForm {
  Q_OBJECT

 public:
  explicit frmSetupYTD(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override {}

 private:
  void build();
  void fill_lists();
  void optApply_Click();

  SSDBDropDown* drpItems;
  SSDBCombo *cmbEmployee, *cmbBank;
  QLabel *lblSSNum, *lblBankID;
  QuillbrookDatePick* QuillbrookDatePick1;
  QButtonGroup* optApply;
  SSDBGrid* grdIncome;
};

}  // namespace tallymere
