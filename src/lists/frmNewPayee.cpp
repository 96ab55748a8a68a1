#include "lists/frmNewPayee.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "lists/small_lists.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmNewPayee::frmNewPayee(Shell& shell_of_frame) : Form(shell_of_frame, "frmNewPayee", Place::Above) {
  setWindowTitle(QStringLiteral("New Payee"));
  lblName = named("lblName", new QLabel);
  lblName->setTextFormat(Qt::PlainText);
  QFont bold = lblName->font();
  bold.setBold(true);
  lblName->setFont(bold);
  auto* frame = named("fraType", new QGroupBox(QStringLiteral("Select New Payee Type")));
  auto* customer = named("optType_0", new QRadioButton(QStringLiteral("&Customer")));
  auto* vendor = named("optType_1", new QRadioButton(QStringLiteral("&Vendor")));
  optType = new QButtonGroup(this);
  optType->setObjectName(QStringLiteral("optType"));
  optType->addButton(customer, static_cast<int>(PayeeType::Customer));
  optType->addButton(vendor, static_cast<int>(PayeeType::Vendor));
  vendor->setChecked(true);
  auto* options = column_layout(frame);
  options->addWidget(customer);
  options->addWidget(vendor);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  auto* column = column_layout(this);
  column->addWidget(lblName);
  column->addWidget(frame);
  column->addLayout(button_row({}, {cmdOk}));
  setMinimumWidth(34 * theme::unit);
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
}

void frmNewPayee::take(const Request& request) {
  name_ = request.key;
  if (request.parent == "Customers") optType->button(static_cast<int>(PayeeType::Customer))->setChecked(true);
  lblName->setText(qt(name_));
  optType->checkedButton()->setFocus();
}

void frmNewPayee::cmdOk_AfterClick() {
  const auto type = static_cast<PayeeType>(optType->checkedId());
  Add_Payee(session, name_, type);
  shell.changed(type == PayeeType::Customer ? "Customers" : "Vendors");
  finish(true, name_);
}

}  // namespace tallymere
