#pragma once

#include "entry/checks/check.h"
#include "entry/document/EntryForm.h"

class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTabWidget;

namespace tallymere {

class AddressEdit;
class DropDowns;
class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// The check book: a paper check over the rows of one transaction. It writes plain checks and shows the three
/// kinds that other windows write.
class frmCheck : public EntryForm {
  Q_OBJECT

 public:
  explicit frmCheck(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;  ///< `number`: the check to show
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void step(bool forward) override;
  void load_again() override;

 private:
  // --- the screen (frmCheck_build.cpp)
  void build();
  void build_fields();
  void build_lines();
  QFrame* build_check();
  QGroupBox* build_bill();
  QGroupBox* build_paycheck();
  QGroupBox* build_liability();
  void connect_controls();
  void connect_lines();
  void order_tabs();

  // --- document to screen and back
  void show_check(const Check& check);
  void show_head(const Check& check);
  void show_expenses(const std::vector<ExpenseLine>& lines);
  void show_items(const std::vector<ItemLine>& lines);
  void show_other_kinds(const Check& check);
  void set_editable(const Check& check);
  Check read() const;
  std::vector<ExpenseLine> read_expenses() const;
  std::vector<ItemLine> read_items() const;

  // --- what happens while it is filled in
  bool settle();  ///< what leaving the fields and lines sets off, before saving; false: something was refused
  void set_bank(const std::string& CatID);
  void cmbAccount_LostFocus();
  void Load_Address_Box();
  void Check_New_Payee();
  bool txtAmount_LostFocus();
  void propose_remainder(Money amount);
  void grdExpense_AfterColUpdate(int row, int column);
  void new_category();  ///< for a line that was left with text that is no category
  void grdItems_AfterColUpdate(int row, int column);
  void go_to_lines();
  void point_at_mistake();

  // --- commands
  void cmdDelete_Click();
  void cmdPrint_Click();
  void cmdRepeat_Click();
  void cmdEditPayCheck_Click();
  void cmdLiaEdit_Click();

  Check check_;            ///< as it was loaded or last saved
  bool valid_ = true;      ///< Valid: the category, item or payee last typed is one of its list
  std::string addressed_;  ///< the payee whose address was last asked for
  std::string in_words_;   ///< the text of txtAmount that lblAmount and the remainder stand for
  int left_line_ = -1;     ///< the expense line that was left last; -1: dealt with
  DropDowns* lists_;

  QFrame* fraCheck;
  SSDBCombo *cmbAccount, *cmbPayee;
  QLabel *lblCompany, *lblBankID, *lblBalance, *lblAmount, *lblPayPeriod, *lblHours, *lblPaidThrough;
  QLineEdit *txtIndex, *txtNumber, *txtMemo;
  QuillbrookDatePick* DTPicker1;
  MoneyEdit* txtAmount;
  AddressEdit* txtAddress;
  QStackedWidget* pages_;
  QTabWidget* SSTab1;
  QGroupBox *fraBill, *fraPaycheck, *fraLiability;
  SSDBGrid *grdExpense, *grdItems, *grdBills, *grdLiabilities;
  QPushButton *cmdPrint, *cmdDelete, *cmdRepeat, *cmdEditPayCheck, *cmdLiaEdit;
};

}  // namespace tallymere
