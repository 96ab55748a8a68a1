#pragma once

#include "entry/document/WalkForm.h"
#include "entry/papers/paper.h"

class QLabel;
class QLineEdit;

namespace tallymere {

class AddressEdit;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBDropDown;
class DropDowns;

/// The window of estimates, purchase orders and package slips. It posts nothing.
class frmPaper : public WalkForm {
  Q_OBJECT

 public:
  frmPaper(Shell& shell_of_frame, PaperKind kind);

  void load() override;
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override;
  void step(bool forward) override;
  void show_new() override;

 private:
  void build_fields();
  void build_lines();
  void build();
  void fill_parties();
  void fill_items();
  void show(PaperDocument paper);
  PaperDocument read() const;
  PaperLine read_line(int row) const;
  void set_line(int row, const PaperLine& line);
  void cmbVendor_CloseUp();
  void line_updated(int row, int column);
  void PO_Total();
  void cmdPrint_Click();

  const PaperTable& table_;
  PaperDocument paper_;  ///< as it was loaded or last saved
  DropDowns* lists_;
  SSDBDropDown* drpItems;
  SSDBCombo* cmbVendor;
  AddressEdit* txtAddress;
  QuillbrookDatePick* DTPicker1;
  QLineEdit *txtPONum, *txtMemo, *txtIndex;
  QLabel* lblTotal;
  SSDBGrid* grdPOItems;
  QPushButton *cmdCancel, *cmdPrint;
};

struct frmEstimate : frmPaper {
  explicit frmEstimate(Shell& shell_of_frame) : frmPaper(shell_of_frame, PaperKind::Estimate) {}
};
struct frmPOs : frmPaper {
  explicit frmPOs(Shell& shell_of_frame) : frmPaper(shell_of_frame, PaperKind::PO) {}
};
struct frmPackageSlips : frmPaper {
  explicit frmPackageSlips(Shell& shell_of_frame) : frmPaper(shell_of_frame, PaperKind::Slip) {}
};

}  // namespace tallymere
