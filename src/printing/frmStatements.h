#pragma once

#include "entry/sales/finance_charge.h"
#include "shell/widgets/Form.h"

class QPushButton;

namespace tallymere {

class QuillbrookDatePick;
class SSDBGrid;

/// Statements of all customers who owe anything: one document for those selected, then their finance charges in one
/// posting.
class frmStatements : public Form {
  Q_OBJECT

 public:
  explicit frmStatements(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void Load_List();
  std::vector<FinanceCharge> selected() const;
  bool any_selected();  ///< a box otherwise
  void cmdPrint_AfterClick();
  void cmdOk_AfterClick();

  std::vector<FinanceCharge> charges_;  ///< a row each
  std::vector<FinanceCharge> shown_;    ///< those of the document that was looked at
  QuillbrookDatePick* DTPicker1;
  SSDBGrid* grdCustomers;
  QPushButton *cmdFinance, *cmdPrint, *cmdOk, *cmdCancel;
};

}  // namespace tallymere
