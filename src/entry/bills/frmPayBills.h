#pragma once

#include "entry/bills/pay_bills.h"
#include "entry/document/EntryForm.h"

class QButtonGroup;
class QLabel;

namespace tallymere {

class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// Pay Bills: all that is unpaid; what is selected is paid in one step, one payment to each vendor.
class frmPayBills : public EntryForm {
  Q_OBJECT

 public:
  explicit frmPayBills(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;
  bool may_close() override { return true; }  ///< nothing is written here that could be lost

 protected:
  bool enter() override;
  void load_again() override { Load_List(); }

 private:
  void build();
  void build_fields();
  PayBy way() const;
  BillPayment read() const;
  void fill_categories();
  void Load_List();
  void show_selected();
  std::optional<Money> part_of(const UnpaidBill& bill) const;
  void optPayBy_Click();
  void txtPart_LostFocus();

  std::vector<UnpaidBill> bills_;   ///< as they are listed
  std::map<int64_t, Money> parts_;  ///< what is paid of those that are not paid whole, by RefNum

  QuillbrookDatePick* dtePayDate;
  QButtonGroup* optPayBy;
  SSDBCombo *cmbCat, *cmbSort;
  QLabel *lblBankID, *lblSelected;
  SSDBGrid* grdBills;
  MoneyEdit* txtPart;  ///< of the one bill that is selected
  QPushButton* SSDBCommand1;
};

}  // namespace tallymere
