#pragma once

#include "lists/RowForm.h"
#include "lists/categories.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace tallymere {

class SSDBCombo;

/// Makes or changes a category. Asked with its mode as `number`, and as `key` the CatID to change or the name
/// that was typed into an entry window; its answer is the CatID.
class frmModAccount : public RowForm {
  Q_OBJECT

 public:
  explicit frmModAccount(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;

 protected:
  void show_row() override;
  RowSave save_row() override;
  std::string saved_key() const override { return form_.CatID; }

 private:
  void build();
  CategoryForm read() const;
  void fill_parents();
  void Check1_Click();
  void cmbType_Change();
  void cmbSubCat_Change();
  void cmbSubCat_LostFocus();

  AccountMode mode_ = AccountMode::New;
  std::string typed_;  ///< the name that was typed into an entry window
  CategoryForm form_;
  QLineEdit *txtName, *txtAcctNum, *txtDescripiton;
  SSDBCombo *cmbType, *cmbSubCat;
  QCheckBox *Check1, *chkDormant;
  QLabel* lblParentID;
};

}  // namespace tallymere
