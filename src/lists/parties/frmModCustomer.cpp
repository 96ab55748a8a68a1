#include "lists/parties/frmModCustomer.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/values/text.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmModCustomer::frmModCustomer(Shell& shell_of_frame)
    : NamedRowForm(shell_of_frame, "frmModCustomer", Customer_Rows, NameList::Customers,
                   {"New Customer", "Edit Customer"}),
      lists_(new DropDowns(session, this)) {
  lists_->small_list(RepNames_List);
  build();
  on(cmdSend, "cmdSend_Click", [this] { txtShipAddress->set_text(txtBillAddress->text()); });
  on(chkSubJob, "chkSubJob_Click", [this] { chkSubJob_Click(); });
}

void frmModCustomer::build() {
  auto* sides = row_layout();
  sides->setSpacing(theme::margin);
  sides->addLayout(left_side(), 1);
  sides->addLayout(right_side(), 1);
  auto* job = row_layout();
  job->addWidget(chkSubJob);
  job->addWidget(cmbCustomers, 1);
  job->addSpacing(theme::margin);
  job->addWidget(chkDormant);
  auto* column = column_layout(this);
  column->addLayout(sides, 1);
  column->addLayout(job);
  column->addSpacing(theme::gap);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  tab_order({txtName, chkCarry, txtContact, txtPhone, txtAltPhone, txtAltContact, txtFax, txtEmail, txtAccount, txtRep,
             txtBillAddress, cmdSend, txtShipAddress, txtNotes, chkSubJob, cmbCustomers, chkDormant, cmdOk, cmdCancel});
}

QLayout* frmModCustomer::left_side() {
  auto* fields = form_layout();
  const auto line = [&](const char* name, const char* label) {
    auto* edit = named(name, new QLineEdit);
    add_field(fields, QString::fromLatin1(label), edit);
    return edit;
  };
  add_field(fields, QStringLiteral("&Name:"), txtName);
  txtName->setMinimumWidth(30 * theme::unit);
  fields->addRow(QString(), chkCarry);
  txtContact = line("txtContact", "Con&tact:");
  txtPhone = line("txtPhone", "&Phone:");
  txtAltPhone = line("txtAltPhone", "Alt P&hone:");
  txtAltContact = line("txtAltContact", "A&lt Contact:");
  txtFax = line("txtFax", "&Fax:");
  txtEmail = line("txtEmail", "Ema&il:");
  txtAccount = line("txtAccount", "&Account Number:");
  txtRep = named("txtRep", new ListCombo(shell, *lists_, RepNames_List, Grow_Unasked(RepNames_List)));
  add_field(fields, QStringLiteral("&Rep Name:"), txtRep);
  chkSubJob = named("chkSubJob", new QCheckBox(QStringLiteral("&Job for")));
  cmbCustomers = named("cmbCustomers", new SSDBCombo);
  cmbCustomers->set_list_only(true);
  cmbCustomers->setAccessibleName(QStringLiteral("Job for"));
  return fields;
}

QLayout* frmModCustomer::right_side() {
  auto* fields = form_layout();
  txtBillAddress = named("txtBillAddress", new AddressEdit);
  txtShipAddress = named("txtShipAddress", new AddressEdit);
  cmdSend = named("cmdSend", new QPushButton(QStringLiteral("Cop&y >>")));
  cmdSend->setToolTip(QStringLiteral("The shipping address becomes the billing address"));
  txtNotes = named("txtNotes", new QPlainTextEdit);
  txtNotes->setMinimumSize(32 * theme::unit, 9 * theme::unit);
  txtNotes->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* send = row_layout();
  send->addWidget(cmdSend);
  send->addStretch(1);
  add_field(fields, QStringLiteral("&Billing Address:"), txtBillAddress);
  fields->addRow(QString(), send);
  add_field(fields, QStringLiteral("&Shipping Address:"), txtShipAddress);
  add_field(fields, QStringLiteral("Not&es:"), txtNotes);
  return fields;
}

void frmModCustomer::on_changed(const std::string& table) { lists_->changed(table); }

void frmModCustomer::show_row() {
  lists_->changed("RepNames");
  show_name();
  const CustomerForm form = Customer_Form(row());
  txtContact->setText(qt(form.Contact));
  txtPhone->setText(qt(form.Phone));
  txtAltPhone->setText(qt(form.AltPhone));
  txtAltContact->setText(qt(form.AltContact));
  txtFax->setText(qt(form.FaxPhone));
  txtEmail->setText(qt(form.EmailAddress));
  txtAccount->setText(qt(form.AccountNum));
  txtRep->set_text(form.RepName);
  txtBillAddress->set_text(form.BillingAddress);
  txtShipAddress->set_text(form.ShippingAddress);
  txtNotes->setPlainText(qt(form.Notes));
  chkSubJob->setChecked(form.chkSubJob);
  chkDormant->setChecked(form.Dormant);
  cmbCustomers->RemoveAll();
  for (const std::string& name : Customers_To_Be_Job_Of(session, row().key())) cmbCustomers->AddItem(name);
  cmbCustomers->set_text(form.ParentName);
  chkSubJob_Click();
  go_to(txtName);
}

void frmModCustomer::chkSubJob_Click() { cmbCustomers->setEnabled(chkSubJob->isChecked()); }

CustomerForm frmModCustomer::read() const {
  return {.Name = name_typed(),
          .Contact = utf8(txtContact->text()),
          .Phone = utf8(txtPhone->text()),
          .AltPhone = utf8(txtAltPhone->text()),
          .AltContact = utf8(txtAltContact->text()),
          .FaxPhone = utf8(txtFax->text()),
          .EmailAddress = utf8(txtEmail->text()),
          .AccountNum = utf8(txtAccount->text()),
          .RepName = trim(txtRep->text()),
          .BillingAddress = txtBillAddress->text(),
          .ShippingAddress = txtShipAddress->text(),
          .Notes = utf8(txtNotes->toPlainText()),
          .chkSubJob = chkSubJob->isChecked(),
          .ParentName = cmbCustomers->text(),
          .Dormant = chkDormant->isChecked(),
          .carry = carry()};
}

RowSave frmModCustomer::save_row() {
  txtRep->settle();
  return Save_Customer(session, row(), read());
}

}  // namespace tallymere
