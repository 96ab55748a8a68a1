#pragma once

#include "entry/document/EntryForm.h"
#include "payroll/paychecks.h"

class QLabel;
class QPushButton;

namespace tallymere {

class DropDowns;
class ListCombo;
class SSDBDropDown;

/// Create PayCheck: one paycheck in four grids, of a pay run or opened again from the check window. Leaving the earnings or the
/// other items calculates it, once the check is new or something in them was changed; leaving a summary adds it up.
class frmPayCheck : public EntryForm {
  Q_OBJECT

 public:
  explicit frmPayCheck(Shell& shell_of_frame);

  /// A check of a pay run, before the window loads.
  void open(PaycheckEntry entry);

  void load() override;
  /// `number`: the paycheck to open again; with `start` it takes that date, the number `key` and the bank `parent`, as
  /// they stand in the check window.
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 protected:
  bool enter() override;
  void load_again() override;

 private:
  void build();
  void build_grids();
  QLayout* build_head();
  QLayout* build_foot();
  void connect_controls();
  void fill_lists();

  void show_check();
  void show_labels();
  void say_what_it_says();
  Paycheck read() const;

  void watch_focus(QWidget* now);
  SSDBGrid* grid_of(QWidget* widget) const;
  bool commit_grids();
  bool settle();
  void drpEarnings_AfterClick(int row, int column);
  void drpOthers_AfterClick(int row, int column);
  void grdOtherItems_AfterInsert(int row);

  PaycheckEntry entry_;
  bool due_ = false;               ///< a new check is calculated once more before it is created
  SSDBGrid* entered_ = nullptr;    ///< the grid the cursor is in, or was last
  std::vector<std::string> said_;  ///< boxes that were shown already
  DropDowns* lists_;
  SSDBDropDown *drpEarnings, *drpOthers;
  QLabel *lblName, *lblPayPeriodStart, *lblPayPeriodEnd, *lblSick, *lblVac, *lblTotal, *lblNotes;
  QLabel *lblSSNum, *lblNet, *lblYearEarnings, *lblRegSal, *lblFedHold, *lblMemo;  // never shown
  ListCombo* txtClass;
  SSDBGrid *grdEarnings, *grdOtherItems, *grdEmployee, *grdCompany;
  QPushButton* cmdCancel;
};

}  // namespace tallymere
