#pragma once

#include "entry/document/EntryForm.h"
#include "entry/stock/adjustment.h"

class QLabel;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;

/// Adjust Quantity in Stock: what was counted, part by part, against a category.
class frmInvAdjust : public EntryForm {
  Q_OBJECT

 public:
  explicit frmInvAdjust(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override;

 private:
  void build();
  void show_parts(const std::vector<StockCount>& parts);
  Adjustment read() const;
  void New_Qty_Changed(int row);
  void show_value();

  std::vector<StockCount> parts_;  ///< as they are listed

  DropDowns* lists_;
  QuillbrookDatePick* DTPicker1;
  SSDBCombo* cmbCat;
  QLabel *lblCatID, *lblValue;
  SSDBGrid* grdInventory;
  QPushButton* cmdCancel;
};

}  // namespace tallymere
