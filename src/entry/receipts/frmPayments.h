#pragma once

#include "entry/document/DocumentForm.h"
#include "entry/receipts/payment.h"

class QLabel;
class QLineEdit;

namespace tallymere {

class DropDowns;
class ListCombo;
class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// Customers' payments: an amount, applied to what the customer owes.
class frmPayments : public DocumentForm<Payment> {
  Q_OBJECT

 public:
  explicit frmPayments(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void show_document(const Payment& payment) override;
  void shown() override;
  Payment read() const override;
  bool settle() override;
  bool enter() override;
  void entered(const SaveResult& result) override;
  void load_again() override;

 private:
  void build_fields();
  void build();
  void connect_controls();

  void cmbCustomer_CloseUp();
  void txtAmount_LostFocus();
  void grdHistory_AfterColUpdate(int row, int column);
  void show_items(const std::vector<OpenItem>& items);
  std::vector<OpenItem> items() const;  ///< as the grid shows them
  void show_left(Money left);
  void set_editable(const Payment& payment);
  void cmdDelete_Click();

  DropDowns* lists_;
  std::string applied_;  ///< the text of txtAmount that was applied

  SSDBCombo *cmbCustomer, *cmbAccount;
  QuillbrookDatePick* DTPicker1;
  MoneyEdit* txtAmount;
  ListCombo* txtPayMethod;
  QLineEdit *txtIndex, *txtCheckNum, *txtMemo;
  QLabel *lblDepositCat, *lblApply, *lblLocked;
  SSDBGrid* grdHistory;
  QPushButton *cmdCancel, *cmdDelete;
};

}  // namespace tallymere
