#pragma once

#include "payroll/paychecks.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;
class SSDBGrid;

/// Payroll: who can be paid for a period that ends on a day, and one paycheck after the other for those selected.
class frmPayRoll : public Form {
  Q_OBJECT

 public:
  explicit frmPayRoll(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void fill_banks();
  void dtePayEnd_Change();
  void cmbBank_LostFocus();
  void cmdCreate_AfterClick();
  enum class Went { On, EndsTheRun };
  Went pay(const PayRunHead& run, const PayRunRow& row);
  bool may_pay(const PayRunRow& row, const PayEmployee& employee, const PayPeriod& period);
  std::vector<std::string> selected() const;  ///< names
  PayRunHead head() const;

  std::vector<PayRunRow> rows_;  ///< of grdEmployees
  QuillbrookDatePick *dtePayEnd, *dtePayDate;
  SSDBCombo* cmbBank;
  QLabel* lblBank;
  SSDBGrid* grdEmployees;
  QPushButton *cmdCreate, *cmdCancel;
};

}  // namespace tallymere
