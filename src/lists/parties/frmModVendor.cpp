#include "lists/parties/frmModVendor.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/values/text.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

enum { Selected, BoxRow };

}  // namespace

frmModVendor::frmModVendor(Shell& shell_of_frame)
    : NamedRowForm(shell_of_frame, "frmModVendor", Vendor_Rows, NameList::Vendors, {"New Vendor", "Edit Vendor"}),
      lists_(new DropDowns(session, this)) {
  build();
  on(chk1099, "chk1099_Click", [this] { chk1099_Click(); });
  for (QAbstractButton* option : optForm->buttons()) on(option, "optForm_Click", [this] { fill_boxes({}); });
}

void frmModVendor::build() {
  auto* sides = row_layout();
  sides->setSpacing(theme::margin);
  sides->addLayout(left_side(), 1);
  sides->addLayout(right_side(), 1);
  auto* column = column_layout(this);
  column->addLayout(sides, 1);
  column->addWidget(chkDormant);
  column->addSpacing(theme::gap);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  tab_order({txtName,     chkCarry,           txtContact,         txtPhone, txtAltPhone,    txtFax,   txtEmail,
             txtAccount,  txtCheck,           txtTerms,           txtNotes, txtBillAddress, txtTaxID, chk1099,
             cmbCategory, optForm->button(0), optForm->button(1), lstBoxes, chkDormant,     cmdOk,    cmdCancel});
}

QLayout* frmModVendor::left_side() {
  auto* fields = form_layout();
  const auto line = [&](const char* name, const char* label) {
    auto* edit = named(name, new QLineEdit);
    add_field(fields, QString::fromLatin1(label), edit);
    return edit;
  };
  add_field(fields, QStringLiteral("Company &Name:"), txtName);
  txtName->setMinimumWidth(30 * theme::unit);
  fields->addRow(QString(), chkCarry);
  txtContact = line("txtContact", "Con&tact:");
  txtPhone = line("txtPhone", "&Phone:");
  txtAltPhone = line("txtAltPhone", "AltP&hone:");
  txtFax = line("txtFax", "&Fax:");
  txtEmail = line("txtEmail", "&Email:");
  txtAccount = line("txtAccount", "Acco&unt Number:");
  txtCheck = line("txtCheck", "Print on Chec&k as:");
  txtTerms = named("txtTerms", new ListCombo(shell, *lists_, Terms_List,
                                             Grow_Terms("Please Enter the Day Amount for this new Term.")));
  add_field(fields, QStringLiteral("Te&rms:"), txtTerms);
  txtNotes = named("txtNotes", new QPlainTextEdit);
  txtNotes->setMinimumHeight(6 * theme::unit);
  txtNotes->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  add_field(fields, QStringLiteral("Note&s:"), txtNotes);
  return fields;
}

QLayout* frmModVendor::right_side() {
  auto* fields = form_layout();
  txtBillAddress = named("txtBillAddress", new AddressEdit);
  add_field(fields, QStringLiteral("&Address:"), txtBillAddress);
  txtTaxID = named("txtTaxID", new QLineEdit);
  add_field(fields, QStringLiteral("Ta&x ID:"), txtTaxID);
  auto* column = column_layout();
  column->addLayout(fields);
  column->addWidget(make_1099(), 1);
  return column;
}

QWidget* frmModVendor::make_1099() {
  chk1099 = named("chk1099", new QCheckBox(QStringLiteral("Eli&gible for 1099")));
  cmbCategory = named("cmbCategory", new SSDBCombo);
  cmbCategory->set_list_only(true);
  auto* styles = row_layout();
  optForm = new QButtonGroup(this);
  optForm->setObjectName(QStringLiteral("optForm"));
  for (const auto& [name, caption] : {std::pair{"optForm_0", "1099-&INT"}, std::pair{"optForm_1", "1099-MISC"}}) {
    auto* option = named(name, new QRadioButton(QLatin1String(caption)));
    optForm->addButton(option, static_cast<int>(optForm->buttons().size()));
    styles->addWidget(option);
  }
  styles->addStretch(1);
  lstBoxes = named("lstBoxes", new SSDBGrid);
  lstBoxes->set_columns({{.name = QString(), .kind = Kind::check, .width = 4},
                         {.name = QStringLiteral("Select 1099 Boxes"), .locked = true}});
  lstBoxes->set_read_only(false);
  lstBoxes->setAccessibleName(QStringLiteral("1099 Boxes"));
  lstBoxes->setMinimumSize(36 * theme::unit, 17 * theme::unit);
  auto* frame = new QGroupBox;
  auto* column = column_layout(frame);
  column->addWidget(chk1099);
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("1099 Categor&y:"), cmbCategory);
  fields->addRow(QStringLiteral("Form Style:"), styles);
  column->addLayout(fields);
  column->addWidget(lstBoxes, 1);
  return frame;
}

void frmModVendor::on_changed(const std::string& table) { lists_->changed(table); }

// --- showing -------------------------------------------------------------------------------------

void frmModVendor::show_row() {
  lists_->changed("Terms");
  lists_->changed("Accounts");
  cmbCategory->set_list(lists_->drpExpenseList);
  show_name();
  const VendorForm form = Vendor_Form(row());
  txtContact->setText(qt(form.Contact));
  txtPhone->setText(qt(form.Phone));
  txtAltPhone->setText(qt(form.AltPhone));
  txtFax->setText(qt(form.FaxPhone));
  txtEmail->setText(qt(form.EmailAddress));
  txtAccount->setText(qt(form.AccountNum));
  txtCheck->setText(qt(form.CheckPrint));
  txtTerms->set_text(form.Terms);
  txtBillAddress->set_text(form.ShippingAddress);
  txtNotes->setPlainText(qt(form.Notes));
  txtTaxID->setText(qt(form.TaxID));
  chkDormant->setChecked(form.Dormant);
  show_1099(form);
  go_to(txtName);
}

void frmModVendor::show_1099(const VendorForm& form) {
  kept_category_ = form.lblCat;
  kept_boxes_ = form.boxes;
  chk1099->setChecked(form.chk1099);
  cmbCategory->set_id(form.lblCat);
  optForm->button(static_cast<int>(form.form))->setChecked(true);
  chk1099_Click();
}

/// Off, the boxes go from sight; what was selected comes back with the tick.
void frmModVendor::chk1099_Click() {
  const bool on = chk1099->isChecked();
  if (!on && lstBoxes->rows() > 0) kept_boxes_ = boxes();
  cmbCategory->setEnabled(on);
  lstBoxes->setEnabled(on);
  for (QAbstractButton* option : optForm->buttons()) option->setEnabled(on);
  on ? fill_boxes(kept_boxes_) : lstBoxes->RemoveAll();
}

void frmModVendor::fill_boxes(const std::vector<std::string>& selected) {
  lstBoxes->RemoveAll();
  for (const std::string_view row : Box_Rows(form_1099()))
    lstBoxes->AddValues({std::ranges::find(selected, row) != selected.end(), row});
}

// --- saving --------------------------------------------------------------------------------------

Form1099 frmModVendor::form_1099() const { return static_cast<Form1099>(optForm->checkedId()); }

std::vector<std::string> frmModVendor::boxes() const {
  std::vector<std::string> selected;
  for (int row = 0; row < lstBoxes->rows(); ++row)
    if (lstBoxes->checked(row, Selected)) selected.push_back(lstBoxes->text(row, BoxRow));
  return selected;
}

VendorForm frmModVendor::read() const {
  const bool on = chk1099->isChecked();
  return {.Name = name_typed(),
          .Contact = utf8(txtContact->text()),
          .Phone = utf8(txtPhone->text()),
          .AltPhone = utf8(txtAltPhone->text()),
          .FaxPhone = utf8(txtFax->text()),
          .EmailAddress = utf8(txtEmail->text()),
          .AccountNum = utf8(txtAccount->text()),
          .CheckPrint = utf8(txtCheck->text()),
          .Terms = trim(txtTerms->text()),
          .ShippingAddress = txtBillAddress->text(),
          .Notes = utf8(txtNotes->toPlainText()),
          .TaxID = utf8(txtTaxID->text()),
          .chk1099 = on,
          .lblCat = on ? cmbCategory->id() : kept_category_,
          .form = form_1099(),
          .boxes = on ? boxes() : std::vector<std::string>{},
          .Dormant = chkDormant->isChecked(),
          .carry = carry()};
}

RowSave frmModVendor::save_row() {
  txtTerms->settle();
  return Save_Vendor(session, row(), read());
}

}  // namespace tallymere
