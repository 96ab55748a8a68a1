#pragma once

#include "forms/tax_form.h"
#include "shell/widgets/Form.h"

class QLabel;
class QPushButton;

namespace tallymere {

class SSDBGrid;

/// The paychecks and payments that made a line of a form, with what each of their rows counts there.
class frmFormTrace : public Form {
  Q_OBJECT

 public:
  frmFormTrace(Shell& shell_of_frame, const FormLine& line);

  void load() override;

 private:
  void build();
  void cmdGoto_AfterClick();

  FormLine line_;
  std::vector<TracedRow> rows_;
  SSDBGrid* grdRows;
  QLabel* lblTotal;
  QPushButton *cmdGoto, *cmdClose;
};

}  // namespace tallymere
