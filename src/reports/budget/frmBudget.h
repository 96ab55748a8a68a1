#pragma once

#include <array>

#include "reports/budget/budget.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class MoneyEdit;
class QuillbrookDatePick;
class SSDBCombo;

/// Twelve monthly amounts of a category's year. It stays open for the next category.
class frmBudget : public Form {
  Q_OBJECT

 public:
  explicit frmBudget(Shell& shell_of_frame);

  void load() override;
  bool may_close() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void cmbCat_Click();
  void dteYear_Change();
  void Load_List();
  void show_amounts(const Budget_Amounts& amounts);
  Budget_Amounts read() const;
  bool is_typed() const { return read() != shown_; }
  /// Whether what was typed may go: it was saved, or the user let it go.
  bool typed_may_go();
  bool save();
  void cmdOk_AfterClick();
  void cmdFill_AfterClick();
  void cmdActual_AfterClick();

  int year_;
  std::string CatID_;
  Budget_Amounts loaded_, shown_;
  QuillbrookDatePick* dteYear;
  SSDBCombo* cmbCat;
  QLabel* lblBankID;
  std::array<MoneyEdit*, months_of_a_year> months_;
  QPushButton *cmdFill, *cmdActual, *cmdOk, *cmdCancel;
};

}  // namespace tallymere
