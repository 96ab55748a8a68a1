#pragma once

#include <array>

#include "lists/RowForm.h"
#include "payroll/employees.h"

class QButtonGroup;
class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBDropDown;
class SSDBGrid;

/// Makes or changes an employee, with the earnings, adjustments and other taxes that hang on the number. All of it is
/// written with Ok, nothing with Cancel.
class frmModEmployee : public RowForm {
  Q_OBJECT

 public:
  explicit frmModEmployee(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void show_row() override;
  RowSave save_row() override;
  std::string saved_key() const override;
  void announce() override;

 private:
  void build();
  QWidget* person_page();
  QLayout* person_side();
  QLayout* job_side();
  QWidget* earnings_page();
  QWidget* taxes_page();
  QLayout* federal_side();
  QLayout* state_side();
  QWidget* leave_page();
  QLayout* leave_side(const char* kind, const char* as_of, const std::array<const char*, 5>& controls);
  QWidget* notes_page();
  SSDBCombo* choice(QFormLayout* fields, const char* name, const char* label, std::initializer_list<const char*> rows);
  SSDBCombo* states(QFormLayout* fields, const char* name, const char* label);
  void line(QFormLayout* fields, const char* name, const char* label);
  void tick(QFormLayout* fields, const char* name, const char* caption);
  SSDBGrid* lines_grid(size_t at, const char* item, const char* rate, SSDBDropDown* list);
  void connect_controls();

  void show_custom_fields();
  void show_lines(size_t at);
  void fill_items();
  EmployeeForm read() const;
  std::vector<EmployeeGridRow> read_lines(const SSDBGrid& grid) const;
  std::string number_typed() const;
  void chkReleased_Click();
  void cmbStateWorked_Click();
  void Grid_BeforeUpdate(SSDBGrid& grid, int row, bool& cancel);
  void drpItems_CloseUp(SSDBGrid& grid, int row, int column);
  void Grid_MouseUp(SSDBGrid& grid, int row, const char* menu);
  void cmdDefine_AfterClick();
  void cmdPrintNotes_AfterClick();

  EmployeeForm form_;  ///< as it was read
  DropDowns* lists_;
  std::array<SSDBDropDown*, 3> items_;  ///< what the grids choose from
  std::array<SSDBGrid*, 3> grids_;
  QTabWidget* SSTab1;
  QLabel* lblSSNum;
  SSDBCombo* cmbStateWorked;
  QCheckBox* chkReleased;
  QuillbrookDatePick* dteRelease;
  std::array<QLabel*, 4> lblCust;
  std::array<QLineEdit*, 4> txtCust;
  QPushButton *cmdDefine, *cmdPrintNotes;
};

}  // namespace tallymere
