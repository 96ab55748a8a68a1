#pragma once

#include "lists/categories.h"
#include "shell/widgets/Form.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBCombo;

/// Makes or changes a category. Asked with its mode as `number`, and as `key` the CatID to change or the name
/// that was typed into an entry window; its answer is the CatID.
class frmModAccount : public Form {
  Q_OBJECT

 public:
  explicit frmModAccount(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;

 private:
  void build();
  void show_form();
  CategoryForm read() const;
  void fill_parents();
  void Check1_Click();
  void cmbType_Change();
  void cmbSubCat_Change();
  void cmbSubCat_LostFocus();
  void cmdOk_AfterClick();

  CategoryForm form_;
  QLineEdit *txtName, *txtAcctNum, *txtDescripiton;
  SSDBCombo *cmbType, *cmbSubCat;
  QCheckBox *Check1, *chkDormant;
  QLabel* lblParentID;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
