#pragma once

#include "payroll/liabilities.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;
class SSDBGrid;

/// Pay Liabilities: what each payroll item owes as of a day, and one check per agency for what is selected. Asked for with the
/// number of such a check it changes that check.
class frmPayLiabilites : public Form {
  Q_OBJECT

 public:
  explicit frmPayLiabilites(Shell& shell_of_frame);

  void load() override;
  /// `number`: the check; with `start` it takes that date, the number `key` and the bank `parent`, as they stand in the
  /// check window.
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void fill_banks();
  void show_payment();
  void show_items();
  void show_balance();
  void dteQtrDate_Change();
  void cmbBankAcct_Click();
  void grdItems_Click(int row, int column);
  void ask_for_agency(const std::string& item);
  void cmdCreate_AfterClick();
  LiabilityPayment read() const;
  bool is_edit() const { return payment_.TransNum != 0; }

  LiabilityPayment payment_;
  Money ending_;  ///< the bank's balance after the checks: "Ending Balance"
  SSDBCombo* cmbBankAcct;
  QLabel *lblBankID, *lblBalance;
  QuillbrookDatePick *dtePayDate, *dteQtrDate;
  SSDBGrid* grdItems;
  QPushButton *cmdCreate, *cmdCancel;
};

}  // namespace tallymere
