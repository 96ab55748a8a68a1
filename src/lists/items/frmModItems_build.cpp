#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include "lists/items/frmModItems.h"
#include "shell/amount_cells.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

QGroupBox* group(const char* title, QFormLayout* fields) {
  auto* box = new QGroupBox(QString::fromLatin1(title));
  fields->setContentsMargins(theme::gap, 0, theme::gap, theme::gap / 2);
  box->setLayout(fields);
  return box;
}

QLineEdit* line(const char* name) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QString::fromLatin1(name));
  return edit;
}

QLineEdit* amount(const char* name) {
  QLineEdit* edit = line(name);
  edit->setAlignment(Qt::AlignRight);
  edit->setFont(theme::tabular(edit->font()));
  return edit;
}

QWidget* page(QLayout* content, bool stretches = false) {
  auto* widget = new QWidget;
  auto* column = column_layout();
  column->addLayout(content);
  if (!stretches) column->addStretch(1);
  widget->setLayout(column);
  return widget;
}

}  // namespace

void frmModItems::build() {
  cmbType = named("cmbType", new SSDBCombo);
  cmbType->set_list_only(true);
  for (const std::string& type : Item_Types(session)) cmbType->AddItem(type);
  chkSubItem = named("chkSubItem", new QCheckBox(QStringLiteral("S&ub Item of")));
  cmbSubITem = named("cmbSubITem", new SSDBCombo);
  cmbSubITem->set_list_only(true);
  cmbSubITem->setAccessibleName(QStringLiteral("Sub Item of"));
  txtName->setMinimumWidth(36 * theme::unit);

  auto* head = form_layout();
  add_field(head, QStringLiteral("T&ype:"), cmbType);
  add_field(head, QStringLiteral("&Name:"), txtName);
  head->addRow(QString(), chkCarry);
  head->addRow(chkSubItem, cmbSubITem);

  frames_ = new QStackedWidget;
  frames_->addWidget(new QWidget);
  QWidget* service = make_fraService();
  frame_of_ = {{"Service", service},
               {"Other Charge", service},
               {"Non-Inventory Part", service},
               {"Discount", service},
               {"Inventory Part", make_fraInvPart()},
               {"Sales Tax", make_fraTax()},
               {"Subtotal", make_fraSubtotal()},
               {"Group", make_fraGroup()},
               {"Payment", make_fraPayment()}};
  for (const auto& [type, frame] : frame_of_)
    if (frames_->indexOf(frame) < 0) frames_->addWidget(frame);

  auto* column = column_layout(this);
  column->addLayout(head);
  column->addSpacing(theme::gap);
  column->addWidget(frames_, 1);
  column->addWidget(chkDormant);
  column->addSpacing(theme::gap);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumWidth(90 * theme::unit);
}

SSDBCombo* frmModItems::category_combo(const char* name, ItemCategory which) {
  auto* combo = named(name, new SSDBCombo);
  combo->set_list_only(true);
  category_combos_[combo] = which;
  return combo;
}

SSDBCombo* frmModItems::vendor_combo(const char* name) {
  auto* combo = named(name, new SSDBCombo);
  combo->set_list(lists_->Vendors());
  return combo;
}

QWidget* frmModItems::make_fraService() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtDescription = line("txtDescription"));
  add_field(fields, QStringLiteral("&Price/Rate:"), txtPrice = amount("txtPrice"));
  txtPrice->setToolTip(QStringLiteral("A price, or a percentage like 5%"));
  add_field(fields, QStringLiteral("C&ategory:"), cmbCategory = category_combo("cmbCategory", ItemCategory::Any));
  chkServiceTax = named("chkServiceTax", new QCheckBox(QStringLiteral("&Taxable")));
  fields->addRow(QString(), chkServiceTax);
  return named("fraService", page(fields));
}

QWidget* frmModItems::make_purchase() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Description:"), txtInvPurDesc = line("txtInvPurDesc"));
  add_field(fields, QStringLiteral("C&ost:"), txtInvCost = amount("txtInvCost"));
  add_field(fields, QStringLiteral("CO&GS Category:"),
            cmbInvCOGSC = category_combo("cmbInvCOGSC", ItemCategory::CostOfGoods));
  add_field(fields, QStringLiteral("Preferred &Vendor:"), cmbInvVen = vendor_combo("cmbInvVen"));
  return group("Purchase Properties", fields);
}

QWidget* frmModItems::make_sales() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtInvSalesDesc = line("txtInvSalesDesc"));
  add_field(fields, QStringLiteral("&Price:"), txtInvPrice = amount("txtInvPrice"));
  add_field(fields, QStringLiteral("&Income Category:"),
            cmbInvIncome = category_combo("cmbInvIncome", ItemCategory::Income));
  chkTaxable = named("chkTaxable", new QCheckBox(QStringLiteral("&Taxable")));
  fields->addRow(QString(), chkTaxable);
  return group("Sales Properties", fields);
}

QWidget* frmModItems::make_summary() {
  auto* left = form_layout();
  add_field(left, QStringLiteral("&Asset Category:"), cmbAsset = category_combo("cmbAsset", ItemCategory::Asset));
  add_field(left, QStringLiteral("&Reorder Quantity:"), txtReorder = amount("txtReorder"));
  dteAsOf = named("dteAsOf", new QuillbrookDatePick);
  dteAsOf->allow_blank(true);
  add_field(left, QStringLiteral("&Starting Date:"), dteAsOf);
  stock_fields_ = form_layout();
  add_field(stock_fields_, QStringLiteral("&Quantity in Stock:"), txtInvQty = amount("txtInvQty"));
  add_field(stock_fields_, QStringLiteral("Total Va&lue:"), txtInvValue = amount("txtInvValue"));
  lblQtyInStock = named("lblQtyInStock", new QLabel);
  lblTotalValue = named("lblTotalValue", new QLabel);
  stock_fields_->addRow(QStringLiteral("Quantity in Stock:"), lblQtyInStock);
  stock_fields_->addRow(QStringLiteral("Total Value:"), lblTotalValue);
  auto* sides = row_layout();
  sides->setSpacing(theme::margin);
  sides->addLayout(left, 1);
  sides->addLayout(stock_fields_, 1);
  sides->setContentsMargins(theme::gap, 0, theme::gap, theme::gap / 2);
  auto* box = new QGroupBox(QStringLiteral("Item Summary"));
  box->setLayout(sides);
  return box;
}

QWidget* frmModItems::make_fraInvPart() {
  auto* sides = row_layout();
  sides->setSpacing(theme::margin);
  sides->addWidget(make_purchase(), 1);
  sides->addWidget(make_sales(), 1);
  auto* column = column_layout();
  column->addLayout(sides);
  column->addWidget(make_summary());
  return named("fraInvPart", page(column));
}

QWidget* frmModItems::make_fraTax() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtTaxDesc = line("txtTaxDesc"));
  add_field(fields, QStringLiteral("Tax &Rate:"), txtTaxRate = amount("txtTaxRate"));
  txtTaxRate->setPlaceholderText(QStringLiteral("6.25%"));
  add_field(fields, QStringLiteral("Tax &Agency:"), cmbTaxAgency = vendor_combo("cmbTaxAgency"));
  add_field(fields, QStringLiteral("&Liability Category:"),
            cmbTaxLia = category_combo("cmbTaxLia", ItemCategory::TaxLiability));
  return named("fraTax", page(fields));
}

QWidget* frmModItems::make_fraSubtotal() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtSubDes = line("txtSubDes"));
  return named("fraSubtotal", page(fields));
}

QWidget* frmModItems::make_fraGroup() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtGroupDes = line("txtGroupDes"));
  grdGroup = named("grdGroup", new SSDBGrid);
  grdGroup->set_columns({{.name = QStringLiteral("Item"), .width = 24, .list = lists_->drpItems},
                         {.name = QStringLiteral("Description")},
                         {.name = QStringLiteral("Qty"), .kind = Kind::number, .width = 10}});
  grdGroup->set_read_only(false);
  grdGroup->set_new_line(true);
  grdGroup->set_delete(true);
  grdGroup->set_empty_hint(QStringLiteral("The items that this group stands for."));
  grdGroup->setAccessibleName(QStringLiteral("Items of the group"));
  grdGroup->setMinimumHeight(16 * theme::unit);
  Take_Only_Amounts(shell, *grdGroup);
  auto* column = column_layout();
  column->addLayout(fields);
  column->addWidget(grdGroup, 1);
  return named("fraGroup", page(column, true));
}

QWidget* frmModItems::make_fraPayment() {
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Des&cription:"), txtPayDesc = line("txtPayDesc"));
  txtPayMethod =
      named("txtPayMethod", new ListCombo(shell, *lists_, PaymentMethod_List, Grow_Unasked(PaymentMethod_List)));
  add_field(fields, QStringLiteral("Pay&ment Method:"), txtPayMethod);
  add_field(fields, QStringLiteral("D&eposit To:"), cmbDeposit = category_combo("cmbDeposit", ItemCategory::Deposit));
  return named("fraPayment", page(fields));
}

}  // namespace tallymere
