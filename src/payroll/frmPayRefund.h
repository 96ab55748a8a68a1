#pragma once

#include "entry/document/EntryForm.h"

class QLabel;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBDropDown;

/// Deposit Tax Refunds: what an agency paid back, into a bank.
class frmPayRefund : public EntryForm {
  Q_OBJECT

 public:
  explicit frmPayRefund(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override {}

 private:
  void build();
  void fill_items();
  void fill_banks();

  DropDowns* lists_;
  SSDBDropDown* drpItems;
  QuillbrookDatePick *dteRefund, *dteEndPeriod;
  SSDBCombo *cmbVendor, *cmbDeposit;
  QLabel* lblCatID;
  SSDBGrid* grdItems;
};

}  // namespace tallymere
