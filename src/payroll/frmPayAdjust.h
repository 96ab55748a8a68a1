#pragma once

#include "entry/document/EntryForm.h"
#include "payroll/liabilities.h"

class QButtonGroup;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBDropDown;

/// Adjust Liabilites: corrections of what is owed, all of them one transaction. A positive amount lowers it.
class frmPayAdjust : public EntryForm {
  Q_OBJECT

 public:
  explicit frmPayAdjust(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override {}

 private:
  void build();
  void fill_items();
  LiabilityCorrection row_at(int row) const;
  void drpItems_AfterClick(int row, int column);
  void grdAdjustments_BeforeUpdate(int row, bool& cancel);

  DropDowns* lists_;
  SSDBDropDown* drpItems;
  QuillbrookDatePick* DTPicker1;
  QButtonGroup* optApply;
  SSDBGrid* grdAdjustments;
};

}  // namespace tallymere
