#pragma once

#include "entry/checks/check.h"
#include "entry/document/DocumentForm.h"

class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace tallymere {

class AddressEdit;
class DropDowns;
class TabbedGrid;
class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// The check book: a paper check over the rows of one transaction. It writes plain checks and shows the three
/// kinds that other windows write.
class frmCheck : public DocumentForm<Check> {
  Q_OBJECT

 public:
  explicit frmCheck(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void show_document(const Check& check) override;
  void shown() override;
  Check read() const override;
  bool settle() override;
  void entered(const SaveResult& result) override;

 private:
  // --- the screen (frmCheck_build.cpp)
  void build();
  void build_fields();
  QFrame* build_check();
  QGroupBox* build_bill();
  QGroupBox* build_paycheck();
  QGroupBox* build_liability();
  void connect_controls();
  void order_tabs();

  // --- document to screen and back
  void show_head(const Check& check);
  void show_other_kinds(const Check& check);
  void set_editable(const Check& check);
  void allow(QPushButton* button, const char* window, const char* command);

  // --- what happens while it is filled in
  void set_bank(const std::string& CatID);
  void show_balance();
  void cmbAccount_LostFocus();
  void Load_Address_Box();
  void Check_New_Payee();
  bool txtAmount_LostFocus();
  std::optional<Money> amount_of_lines() const;
  void show_assigned();

  // --- commands
  void cmdDelete_Click();
  void cmdPrint_Click();
  void cmdRepeat_Click();
  void edit_in(const char* window);
  void cmdEditPayCheck_Click();
  void cmdLiaEdit_Click();

  std::string addressed_;  ///< the payee whose address was last asked for
  std::string in_words_;   ///< the text of txtAmount that lblAmount and the remainder stand for
  DropDowns* lists_;

  QFrame* fraCheck;
  SSDBCombo *cmbAccount, *cmbPayee;
  QLabel *lblCompany, *lblBankID, *lblBalance, *lblAmount, *lblPayPeriod, *lblHours, *lblPaidThrough, *lblLocked;
  QLineEdit *txtIndex, *txtNumber, *txtMemo;
  QuillbrookDatePick* DTPicker1;
  MoneyEdit* txtAmount;
  AddressEdit* txtAddress;
  QStackedWidget* pages_;
  TabbedGrid* SSTab1;
  QGroupBox *fraBill, *fraPaycheck, *fraLiability;
  SSDBGrid *grdBills, *grdLiabilities;
  QPushButton *cmdPrint, *cmdDelete, *cmdRepeat, *cmdEditPayCheck, *cmdLiaEdit;
};

}  // namespace tallymere
