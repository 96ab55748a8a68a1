#pragma once

#include "forms/LinesForm.h"
#include "forms/form_941.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;

/// Create 941: the quarter's return of federal taxes, reckoned from its paychecks.
class frmCreate941 : public LinesForm {
  Q_OBJECT

 public:
  explicit frmCreate941(Shell& shell_of_frame);

  void load() override;

 private:
  QLayout* head();
  QLayout* left_side();
  QLayout* right_side();
  QButtonGroup* options(const char* name, QLayout* into, std::initializer_list<const char*> captions, int chosen);
  void build();
  void cmbDate_Click();
  void cmdPP_AfterClick();
  Entry941 read() const;
  TaxForm reckon() override { return Reckon_941(session, read()); }
  void after_reckoning(const TaxForm& form) override;
  FormPaper paper() override { return Paper_941(session, read()); }

  bool in_click_ = false;  ///< setting the date to the quarter's end is no other date
  QuillbrookDatePick *dteEnd, *dteFinalWage;
  SSDBCombo* cmbState;
  QLineEdit* txtEmpCount;
  QButtonGroup *optDeposit, *optOver;
  QCheckBox *chkAddDif, *chkSeason, *chkFutReturn, *chkApplyTaxableWage;
  QLabel *lblFinalWage, *lblScheduleB;
  QPushButton* cmdPP;
};

}  // namespace tallymere
