#pragma once

#include "shell/widgets/Form.h"

class QDoubleSpinBox;
class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBCombo;
class SSDBGrid;

/// The layouts that documents are printed on: puts one out to be changed, prints a test page for pre-printed stock, keeps how far
/// each printer is off, and which banks' checks go on blank stock.
class frmLayouts : public Form {
  Q_OBJECT

 public:
  explicit frmLayouts(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void show_list();
  std::string chosen() const;  ///< the layout's name; "" when none is current
  void cmdWrite_AfterClick();
  void cmdTest_AfterClick();
  QWidget* build_bank_line();
  void show_bank_line();
  void cmdBankLine_AfterClick();

  SSDBGrid* grdLayouts;
  QDoubleSpinBox *txtRight, *txtDown;
  SSDBCombo* cmbBank;
  QLineEdit *txtRouting, *txtAccount;
  QPushButton *cmdWrite, *cmdTest, *cmdBankLine, *cmdClose;
};

}  // namespace tallymere
