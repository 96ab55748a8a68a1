#pragma once

#include "core/company/company_settings.h"
#include "shell/widgets/Form.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tallymere {

class AddressEdit;

/// What the company says of itself on paper and to the agencies, its years and its password.
class frmInfo : public Form {
  Q_OBJECT

 public:
  explicit frmInfo(Shell& shell_of_frame);

  void load() override;

 private:
  void build();
  CompanyInfo read() const;
  void cmdOk_AfterClick();

  CompanyInfo before_;
  QLineEdit *txtName, *txtLegalName, *txtLegalAddress, *txtLegalCity, *txtLegalState, *txtLegalZip, *txtFederalID,
      *txtPassword, *txtRePassword;
  AddressEdit* txtAddress;
  QComboBox *cmbFiscal, *cmbTax;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
