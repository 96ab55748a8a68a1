#include "shell/settings/frmInfo.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "shell/settings/password_boxes.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmInfo::frmInfo(Shell& shell_of_frame) : Form(shell_of_frame, "frmInfo", Place::Above) {
  setWindowTitle(QStringLiteral("Company Info"));
  build();
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmInfo::build() {
  const auto line = [this](const char* name) { return named(name, new QLineEdit); };
  const auto month = [this](const char* name) {
    auto* box = named(name, new QComboBox);
    for (const char* of_year : Month_Names) box->addItem(QLatin1String(of_year));
    return box;
  };
  txtName = line("txtName");
  txtAddress = named("txtAddress", new AddressEdit);
  txtLegalName = line("txtLegalName");
  txtLegalAddress = line("txtLegalAddress");
  txtLegalCity = line("txtLegalCity");
  txtLegalState = line("txtLegalState");
  txtLegalZip = line("txtLegalZip");
  txtFederalID = line("txtFederalID");
  cmbFiscal = month("cmbFiscal");
  cmbTax = month("cmbTax");
  txtPassword = line("txtPassword");
  txtRePassword = line("txtRePassword");
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  for (QWidget* wide : {static_cast<QWidget*>(txtAddress), static_cast<QWidget*>(txtLegalName)})
    wide->setMinimumWidth(28 * theme::unit);
  auto* left = form_layout();
  add_field(left, QStringLiteral("Company &Name:"), txtName);
  add_field(left, QStringLiteral("&Address:"), txtAddress);
  add_field(left, QStringLiteral("First month of &Fiscal Year:"), cmbFiscal);
  add_field(left, QStringLiteral("First month of &Tax Year:"), cmbTax);
  auto* right = form_layout();
  add_field(right, QStringLiteral("&Legal Name:"), txtLegalName);
  add_field(right, QStringLiteral("L&egal Address:"), txtLegalAddress);
  add_field(right, QStringLiteral("C&ity:"), txtLegalCity);
  add_field(right, QStringLiteral("&State:"), txtLegalState);
  add_field(right, QStringLiteral("&Zip:"), txtLegalZip);
  add_field(right, QStringLiteral("Fe&deral ID:"), txtFederalID);
  add_field(right, QStringLiteral("&Password:"), txtPassword);
  add_field(right, QStringLiteral("&Re-Type Password:"), txtRePassword);
  auto* halves = row_layout();
  halves->setSpacing(2 * theme::margin);
  halves->addLayout(left, 1);
  halves->addLayout(right, 1);
  auto* column = column_layout(this);
  column->addLayout(halves);
  column->addStretch(1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
}

void frmInfo::load() {
  before_ = Read_Company_Info(session);
  txtName->setText(qt(before_.Name));
  txtAddress->set_text(before_.Address);
  txtLegalName->setText(qt(before_.LegalName));
  txtLegalAddress->setText(qt(before_.LegalAddress));
  txtLegalCity->setText(qt(before_.LegalCity));
  txtLegalState->setText(qt(before_.LegalState));
  txtLegalZip->setText(qt(before_.LegalZip));
  txtFederalID->setText(qt(before_.FedID));
  cmbFiscal->setCurrentIndex(cmbFiscal->findText(qt(before_.FiscalMonth), Qt::MatchFixedString));
  cmbTax->setCurrentIndex(cmbTax->findText(qt(before_.TaxMonth), Qt::MatchFixedString));
  const std::string kept = session.dbCompany->value("SELECT Password FROM CompanyInfo").text();
  Show_Password_Boxes(*txtPassword, *txtRePassword, !kept.empty());
  go_to(txtName);
}

CompanyInfo frmInfo::read() const {
  CompanyInfo info = before_;
  info.Name = utf8(txtName->text());
  info.Address = txtAddress->text();
  info.LegalName = utf8(txtLegalName->text());
  info.LegalAddress = utf8(txtLegalAddress->text());
  info.LegalCity = utf8(txtLegalCity->text());
  info.LegalState = utf8(txtLegalState->text());
  info.LegalZip = utf8(txtLegalZip->text());
  info.FedID = utf8(txtFederalID->text());
  if (cmbFiscal->currentIndex() >= 0) info.FiscalMonth = utf8(cmbFiscal->currentText());
  if (cmbTax->currentIndex() >= 0) info.TaxMonth = utf8(cmbTax->currentText());
  return info;
}

void frmInfo::cmdOk_AfterClick() {
  if (const auto fault = Save_Company_Info(session, before_, read(), Read_Password(*txtPassword, *txtRePassword)))
    return show_fault(*fault);
  shell.changed("CompanyInfo");
  finish(true);
}

}  // namespace tallymere
