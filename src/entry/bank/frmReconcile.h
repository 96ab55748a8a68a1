#pragma once

#include <memory>

#include "entry/bank/reconcile.h"
#include "shell/widgets/Form.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace tallymere {

class MoneyEdit;
class SSDBGrid;

/// A bank's or card's statement against the rows of its category: what the bank has cleared is marked until the difference is
/// zero, then stamped.
class frmReconcile : public Form {
  Q_OBJECT

 public:
  explicit frmReconcile(Shell& shell_of_frame);

  void take(const Request& request) override;  ///< `key` is the category's CatID
  void on_changed(const std::string& table) override;

 private:
  void build();
  QLayout* build_balances();
  SSDBGrid* build_list(const char* name, const char* caption, Side side);
  void connect_controls();
  void Load_Lists();
  void show_list(SSDBGrid& grid, Side side);
  void show_figures();
  void toggled(SSDBGrid& grid, Side side, int row);
  void mark_all(bool marked);
  void txtEnd_LostFocus();
  void cmdRefreshValues_AfterClick();
  void cmdGoTo_AfterClick();
  void cmdBalance_AfterClick();

  std::unique_ptr<Reconciliation> reconciliation_;
  SSDBGrid* highlighted_ = nullptr;  ///< the list in which a line was highlighted last
  MoneyEdit *txtOpen, *txtEnd;
  QLabel *lblEndBalance, *lblClearedBalance, *lblDifference, *lblDepositCount, *lblDepositTotal, *lblPaymenyCount,
      *lblPayTotal;
  SSDBGrid *grdDeposits, *grdPayments;
  QPushButton *cmdBalance, *cmdMark, *cmdUnMark, *cmdRefreshValues, *cmdGoTo, *cmdCancel;
};

}  // namespace tallymere
