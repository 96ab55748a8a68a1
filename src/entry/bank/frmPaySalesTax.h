#pragma once

#include "entry/bank/sales_tax.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;
class SSDBGrid;

/// Pay Sales Tax: what is owed per tax as of a day, and one check per agency for what is selected. Asked for with the number of
/// such a check it changes that check.
class frmPaySalesTax : public Form {
  Q_OBJECT

 public:
  explicit frmPaySalesTax(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void show_payment();
  void show_balance();
  void Load_List();
  void dtePayDate_Change();
  void cmbBankAcct_LostFocus();
  void cmdCreate_AfterClick();
  SalesTaxPayment read() const;
  bool is_edit() const { return payment_.TransNum != 0; }

  SalesTaxPayment payment_;
  SSDBCombo* cmbBankAcct;
  QLabel *lblBankID, *lblBalance;
  QuillbrookDatePick *dtePayDate, *dteQtrDate;
  SSDBGrid* SSDBGrid1;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
