#pragma once

#include "printing/check_run_paint.h"
#include "shell/widgets/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBCombo;
class SSDBGrid;

/// The queue of checks that wait to be printed on one bank: gives them numbers and prints them.
class frmPrintChecks : public Form {
  Q_OBJECT

 public:
  explicit frmPrintChecks(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void Load_List();
  void cmbBank_CloseUp();
  void cmdAll_AfterClick();
  void cmdPreview_AfterClick();
  void cmdPrint_AfterClick();
  bool may_print();  ///< what was typed and selected; a box otherwise
  void grdChecks_SelChange();
  std::vector<int64_t> selected() const;
  void tell(const CheckRun& run);

  std::vector<int> order_;  ///< selected rows in the order they were selected, which is that of the numbers
  SSDBCombo* cmbBank;
  QLabel* lblBankID;
  QLineEdit* txtFirstCheck;
  SSDBGrid* grdChecks;
  QPushButton *cmdAll, *cmdPreview, *cmdPrint, *cmdCancel;
};

}  // namespace tallymere
