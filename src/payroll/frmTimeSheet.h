#pragma once

#include <array>

#include "payroll/time_sheet.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBDropDown;
class SSDBGrid;

/// Time Sheet: an employee's hours of one week by customer, item and payroll item. A row is written when it is left.
class frmTimeSheet : public Form {
  Q_OBJECT

 public:
  explicit frmTimeSheet(Shell& shell_of_frame);

  void load() override;
  bool may_close() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  QLayout* build_head();
  QLayout* build_totals();
  void connect_controls();
  void fill_lists();
  void follow_employee();
  void go_to_week(Date day);
  void Set_Captions();
  void choose_employee(const std::string& SSNum);
  void cmbEmployee_LostFocus();
  void read_sheet();
  void Calc_Hours();
  TimeRow row_at(int row) const;
  void grdTimeSheet_BeforeUpdate(int row, bool& cancel);
  void grdTimeSheet_AfterUpdate(int row);
  void grdTimeSheet_BeforeDelete(int row, bool& cancel);
  void cmdCancel_AfterClick();

  Date first_;                  ///< of the week on show
  std::vector<TimeRow> shown_;  ///< the rows as they are written, by the grid's rows
  DropDowns* lists_;
  SSDBDropDown* drpPayItems;
  SSDBCombo* cmbEmployee;
  QLabel *lblSSNum, *lblStartDate, *lblEndDate;
  std::array<QLabel*, 8> totals_;
  QuillbrookDatePick* dteFirstDay;
  SSDBGrid* grdTimeSheet;
  QPushButton *cmdChangeDate, *cmdChangeStartDate, *cmdCancel, *cmdOk;
};

}  // namespace tallymere
