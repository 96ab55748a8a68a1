#pragma once

#include "entry/document/EntryForm.h"
#include "entry/receipts/deposit.h"

class QLabel;
class QLineEdit;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;

/// A deposit: held payments and other receipts that go to the bank together. It is saved once and closes.
class frmDeposits : public EntryForm {
  Q_OBJECT

 public:
  explicit frmDeposits(Shell& shell_of_frame);

  void load() override;
  /// `key`: the held payments to put in, "7;12;".
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override {}  // it was never stored

 private:
  void build();
  void build_grid();
  void connect_controls();
  Deposit read() const;
  void add_held(const std::vector<int64_t>& payments);
  void cmdSelect_Click();
  void grdPayments_AfterUpdate(int row);
  void show_total();

  DropDowns* lists_;
  Deposit deposit_;
  QuillbrookDatePick* dteDate;
  QLineEdit* txtNum;
  SSDBCombo* cmbBank;
  QLabel *lblBankID, *lblTotal;
  SSDBGrid* grdPayments;
  QPushButton *cmdSelect, *cmdCancel;
};

}  // namespace tallymere
