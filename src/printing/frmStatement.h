#pragma once

#include "entry/sales/finance_charge.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class QuillbrookDatePick;
class SSDBGrid;

/// One customer's statement and finance charge: how the charge comes about, the paper, then the posting. Asked for with
/// the customer as `key`.
class frmStatement : public Form {
  Q_OBJECT

 public:
  explicit frmStatement(Shell& shell_of_frame);

  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void Reckon();
  void show_charge();
  void cmdPrint_AfterClick();
  void cmdOk_AfterClick();

  FinanceCharge charge_;
  bool shown_ = false;  ///< the statement was looked at as it is now
  QLabel *lblCustomer, *lblBalance, *lblFAPR, *lblFCat, *lblCatID, *lblFAmount;
  QuillbrookDatePick* DTPicker1;
  SSDBGrid* grdReckoning;
  QPushButton *cmdFinance, *cmdPrint, *cmdOk, *cmdCancel;
};

}  // namespace tallymere
