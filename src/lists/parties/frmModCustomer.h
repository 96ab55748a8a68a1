#pragma once

#include "lists/NamedRowForm.h"
#include "lists/parties/customers.h"

class QPlainTextEdit;

namespace tallymere {

class AddressEdit;
class DropDowns;
class ListCombo;
class SSDBCombo;

/// Makes or changes a customer, or a job of one.
class frmModCustomer : public NamedRowForm {
  Q_OBJECT

 public:
  explicit frmModCustomer(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void show_row() override;
  RowSave save_row() override;

 private:
  void build();
  QLayout* left_side();
  QLayout* right_side();
  void chkSubJob_Click();
  CustomerForm read() const;

  DropDowns* lists_;
  QLineEdit *txtContact, *txtPhone, *txtAltPhone, *txtAltContact, *txtFax, *txtEmail, *txtAccount;
  ListCombo* txtRep;
  AddressEdit *txtBillAddress, *txtShipAddress;
  QPushButton* cmdSend;
  QPlainTextEdit* txtNotes;
  QCheckBox* chkSubJob;
  SSDBCombo* cmbCustomers;
};

}  // namespace tallymere
