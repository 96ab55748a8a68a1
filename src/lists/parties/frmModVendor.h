#pragma once

#include "lists/NamedRowForm.h"
#include "lists/parties/vendors.h"

class QButtonGroup;
class QPlainTextEdit;

namespace tallymere {

class AddressEdit;
class DropDowns;
class ListCombo;
class SSDBCombo;
class SSDBGrid;

/// Makes or changes a vendor, with what a 1099 reports of its payments.
class frmModVendor : public NamedRowForm {
  Q_OBJECT

 public:
  explicit frmModVendor(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void show_row() override;
  RowSave save_row() override;

 private:
  void build();
  QLayout* left_side();
  QLayout* right_side();
  QWidget* make_1099();
  void show_1099(const VendorForm& form);
  void chk1099_Click();
  void fill_boxes(const std::vector<std::string>& selected);
  Form1099 form_1099() const;
  std::vector<std::string> boxes() const;
  VendorForm read() const;

  DropDowns* lists_;
  std::string kept_category_;            ///< CatID that a cleared chk1099 keeps
  std::vector<std::string> kept_boxes_;  ///< and what was selected
  QLineEdit *txtContact, *txtPhone, *txtAltPhone, *txtFax, *txtEmail, *txtAccount, *txtCheck, *txtTaxID;
  ListCombo* txtTerms;
  AddressEdit* txtBillAddress;
  QPlainTextEdit* txtNotes;
  QCheckBox* chk1099;
  SSDBCombo* cmbCategory;
  QButtonGroup* optForm;
  SSDBGrid* lstBoxes;
};

}  // namespace tallymere
