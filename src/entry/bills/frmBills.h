#pragma once

#include "entry/bills/bill.h"
#include "entry/document/DocumentForm.h"

class QButtonGroup;
class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;

namespace tallymere {

class DropDowns;
class TabbedGrid;
class ListCombo;
class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// Bills: what is owed to vendors, the credits they give, and receipts of goods before their bill.
class frmBills : public DocumentForm<Bill> {
  Q_OBJECT

 public:
  explicit frmBills(Shell& shell_of_frame);

  void load() override;
  /// Beside a number: Bills_Items and Bills_Item_Receipt bring a blank bill or receipt of items.
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 protected:
  void show_document(const Bill& bill) override;
  void shown() override;
  Bill read() const override;
  bool settle() override;
  void entered(const SaveResult& result) override;

 private:
  // --- the screen (frmBills_build.cpp)
  void build();
  void build_fields();
  QFrame* build_sheet();
  void connect_controls();
  void order_tabs();

  // --- what happens while it is filled in
  std::optional<Money> shown_amount() const;
  void show_others_changes();
  void show_kind();
  void show_notice();
  bool cmbVendor_LostFocus();
  bool take_up_orders(Bill& bill);
  void txtTerms_LostFocus();
  bool txtAmount_LostFocus();

  // --- commands
  void cmdDelete_Click();
  void cmdRepeat_Click();

  std::string vendor_;       ///< the one that was dealt with
  Date dated_;               ///< the date from which dteDue was last reckoned, or as it was loaded
  std::string amount_text_;  ///< the text of txtAmount that was dealt with
  DropDowns* lists_;
  TabbedGrid* SSTab1;

  QFrame* fraBill;
  QLabel *lblBill, *lblReceipt, *lblNotice;
  QLineEdit *txtIndex, *txtNum, *txtMemo;
  SSDBCombo* cmbVendor;
  ListCombo* txtTerms;
  QuillbrookDatePick *dteDate, *dteDue;
  MoneyEdit* txtAmount;
  QButtonGroup* optBill;
  QCheckBox *chkRecipt, *chkPaid;
  QPushButton *cmdCan, *cmdDelete, *cmdRepeat;
};

}  // namespace tallymere
