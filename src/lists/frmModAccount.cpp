#include "lists/frmModAccount.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmModAccount::frmModAccount(Shell& shell_of_frame)
    : RowForm(shell_of_frame, "frmModAccount", Category_Rows, {"New Category", "Edit Category"}) {
  build();
  on(Check1, "Check1_Click", [this] { Check1_Click(); });
  on(cmbType, &SSDBCombo::Changed, "cmbType_Change", [this] { cmbType_Change(); });
  on(cmbSubCat, &SSDBCombo::Changed, "cmbSubCat_Change", [this] { cmbSubCat_Change(); });
  on(cmbSubCat, &SSDBCombo::LostFocus, "cmbSubCat_LostFocus", [this] { cmbSubCat_LostFocus(); });
}

void frmModAccount::build() {
  txtName = named("txtName", new QLineEdit);
  txtName->setMinimumWidth(36 * theme::unit);
  cmbType = named("cmbType", new SSDBCombo);
  Check1 = named("Check1", new QCheckBox(QStringLiteral("&Sub Category of")));
  cmbSubCat = named("cmbSubCat", new SSDBCombo);
  cmbSubCat->setAccessibleName(QStringLiteral("Parent Category"));
  txtAcctNum = named("txtAcctNum", new QLineEdit);
  txtDescripiton = named("txtDescripiton", new QLineEdit);
  chkDormant = named("chkDormant", new QCheckBox(QStringLiteral("&Dormant Category")));
  lblParentID = named("lblParentID", new QLabel(this));
  lblParentID->hide();

  auto* fields = form_layout();
  add_field(fields, QStringLiteral("Category &Name:"), txtName);
  add_field(fields, QStringLiteral("Category &Type:"), cmbType);
  fields->addRow(Check1, cmbSubCat);
  add_field(fields, QStringLiteral("&Account Number:"), txtAcctNum);
  add_field(fields, QStringLiteral("D&escription:"), txtDescripiton);
  fields->addRow(QString(), chkDormant);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
}

void frmModAccount::load() {
  for (const std::string& type : Account_Types(session)) cmbType->AddItem(type);
  cmbSubCat->setEnabled(false);
}

void frmModAccount::take(const Request& request) {
  mode_ = static_cast<AccountMode>(request.number);
  const bool edit = mode_ == AccountMode::Edit;
  typed_ = edit ? "" : request.key;
  RowForm::take({.window = request.window, .key = edit ? request.key : ""});
}

void frmModAccount::show_row() {
  form_ = is_new() ? New_Category(mode_, typed_) : Edit_Category(session, row());
  txtName->setText(qt(form_.txtName));
  cmbType->set_text(form_.cmbType);
  Check1->setChecked(form_.Check1);
  cmbSubCat->setEnabled(form_.Check1);
  fill_parents();
  if (!cmbSubCat->set_id(form_.lblParentID)) cmbSubCat->set_text(form_.cmbSubCat);
  lblParentID->setText(qt(form_.lblParentID));
  txtAcctNum->setText(qt(form_.txtAcctNum));
  txtDescripiton->setText(qt(form_.txtDescripiton));
  chkDormant->setChecked(form_.chkDormant);
  go_to(form_.txtName.empty() || form_.mode == AccountMode::Edit ? static_cast<QWidget*>(txtName) : cmbType);
}

CategoryForm frmModAccount::read() const {
  CategoryForm form = form_;
  form.txtName = utf8(txtName->text());
  form.cmbType = cmbType->text();
  form.Check1 = Check1->isChecked();
  form.cmbSubCat = cmbSubCat->text();
  form.lblParentID = utf8(lblParentID->text());
  form.txtAcctNum = utf8(txtAcctNum->text());
  form.txtDescripiton = utf8(txtDescripiton->text());
  form.chkDormant = chkDormant->isChecked();
  return form;
}

void frmModAccount::fill_parents() {
  std::vector<SSDBDropDown::Item> parents;
  for (const ParentChoice& choice : Parent_Choices(session, read()))
    parents.push_back({choice.AccountName, choice.CatID});
  cmbSubCat->list().set_items(parents);
}

void frmModAccount::Check1_Click() {
  if (Check1->isChecked()) {
    if (const auto fault = Check_Sub_Category(read())) {
      Check1->setChecked(false);
      return show_fault(*fault);
    }
    fill_parents();
  }
  cmbSubCat->setEnabled(Check1->isChecked());
}

/// A parent of another type is none.
void frmModAccount::cmbType_Change() {
  if (!Check1->isChecked()) return;
  fill_parents();
  if (!cmbSubCat->Valid()) cmbSubCat->set_text({});
  lblParentID->setText(qt(cmbSubCat->id()));
}

void frmModAccount::cmbSubCat_Change() { lblParentID->setText(qt(cmbSubCat->id())); }

/// A parent that is in no list is none; the box says so.
void frmModAccount::cmbSubCat_LostFocus() {
  if (lblParentID->text().isEmpty()) cmbSubCat->set_text({});
}

RowSave frmModAccount::save_row() {
  form_ = read();
  return Save_Category(session, row(), form_);
}

}  // namespace tallymere
