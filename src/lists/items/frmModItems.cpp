#include "lists/items/frmModItems.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include "core/stock/stock.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "lists/items/item_groups.h"
#include "shell/amount_cells.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

namespace {

enum { Item, Description, Qty };

std::string text_of(const QLineEdit* edit) { return trim(utf8(edit->text())); }

}  // namespace

frmModItems::frmModItems(Shell& shell_of_frame)
    : NamedRowForm(shell_of_frame, "frmModItems", Item_Rows, NameList::Items, {"New Item", "Edit Item"}),
      lists_(new DropDowns(session, this)) {
  build();
  on(cmbType, &SSDBCombo::Changed, "cmbType_Click", [this] { cmbType_Click(); });
  on(chkSubItem, "chkSubItem_Click", [this] { chkSubItem_Click(); });
  on(grdGroup, &SSDBGrid::MenuRequested, "grdGroup_MouseUp", [this] { grdGroup_MouseUp(); });
  on(grdGroup, &SSDBGrid::AfterColUpdate, "drpItems_CloseUp", [this](int row, int column) {
    if (column == Item) group_item_chosen(row);
  });
}

void frmModItems::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Accounts") fill_categories();
}

// --- showing -------------------------------------------------------------------------------------

void frmModItems::show_row() {
  for (const char* table : {"Items", "Vendors", "PaymentMethod"}) lists_->changed(table);
  form_ = Item_Form(session, row());
  show_name();
  fill_categories();
  cmbType->set_text(form_.ItemType);
  const std::string users = is_new() ? "" : Type_Is_Fixed_By(session, row().key());
  cmbType->setEnabled(users.empty());
  cmbType->setToolTip(users.empty() ? QString() : qt("This item is used in " + users + "."));
  chkSubItem->setChecked(form_.chkSubItem);
  fill_parents();
  cmbSubITem->set_text(form_.ParentItem);
  show_type(form_);
  show_part(form_);
  chkDormant->setChecked(form_.Dormant);
  frames_->setCurrentWidget(form_.ItemType.empty() ? frames_->widget(0) : frame_of_.at(form_.ItemType));
  go_to(is_new() ? static_cast<QWidget*>(cmbType) : txtName);
}

/// Each frame that could be chosen starts with what the item has.
void frmModItems::show_type(const ItemForm& form) {
  for (QLineEdit* description : {txtDescription, txtInvSalesDesc, txtTaxDesc, txtSubDes, txtGroupDes, txtPayDesc})
    description->setText(qt(form.Description));
  for (QLineEdit* price : {txtPrice, txtInvPrice, txtTaxRate}) price->setText(qt(form.PriceRate));
  for (QCheckBox* taxable : {chkServiceTax, chkTaxable}) taxable->setChecked(form.InvTaxable);
  cmbTaxAgency->set_text(form.TaxVendor);
  txtPayMethod->set_text(form.PayMethod);
  grdGroup->RemoveAll();
  for (const GroupLine& line : form.lines) grdGroup->AddValues({line.Item, line.Description, line.Qty});
}

void frmModItems::show_part(const ItemForm& form) {
  txtInvPurDesc->setText(qt(form.InvPurchaseDesc));
  txtInvCost->setText(qt(form.Cost));
  cmbInvVen->set_text(form.InvVendor);
  txtReorder->setText(qt(form.ReorderQty));
  txtInvQty->clear();
  txtInvValue->clear();
  dteAsOf->set_value(form.InvDate);
  const bool begins = is_new() || form.ItemType != "Inventory Part";
  for (QLineEdit* field : {txtInvQty, txtInvValue}) stock_fields_->setRowVisible(field, begins);
  for (QLabel* field : {lblQtyInStock, lblTotalValue}) stock_fields_->setRowVisible(field, !begins);
  if (begins) return;
  lblQtyInStock->setText(qt(store::Value(Stock_On_Hand(*session.dbCompany, row().key())).text()));
  lblTotalValue->setText(qt(Dollar_Text(row()["TotalValue"].money())));
}

void frmModItems::fill_categories() {
  const std::map<SSDBCombo*, std::string> has = {{cmbCategory, form_.ItemCat}, {cmbInvIncome, form_.ItemCat},
                                                 {cmbTaxLia, form_.ItemCat},   {cmbInvCOGSC, form_.COGScat},
                                                 {cmbAsset, form_.InvAsset},   {cmbDeposit, form_.PayTo}};
  for (const auto& [combo, which] : category_combos_) {
    const std::string shown = combo->id().empty() ? has.at(combo) : combo->id();
    combo->RemoveAll();
    for (const CategoryChoice& choice : Category_Choices(session, which, shown))
      combo->AddItem(choice.AccountName, choice.CatID);
    combo->set_id(shown);
  }
}

void frmModItems::fill_parents() {
  const std::string chosen = cmbSubITem->text();
  cmbSubITem->RemoveAll();
  if (chkSubItem->isChecked())
    for (const std::string& name : Items_To_Be_Parent(session, cmbType->text(), row().key())) cmbSubITem->AddItem(name);
  cmbSubITem->set_text(chosen);
  cmbSubITem->setEnabled(chkSubItem->isChecked());
}

// --- typing --------------------------------------------------------------------------------------

void frmModItems::cmbType_Click() {
  const auto frame = frame_of_.find(cmbType->text());
  frames_->setCurrentWidget(frame == frame_of_.end() ? frames_->widget(0) : frame->second);
  fill_parents();
  if (!cmbSubITem->Valid()) cmbSubITem->set_text({});
}

void frmModItems::chkSubItem_Click() {
  if (chkSubItem->isChecked() && cmbType->text().empty()) {
    chkSubItem->setChecked(false);
    return show_fault(
        {{"Please select a Parent Category before selecting a Sub Category.", "No Parent", Icon::Information},
         "cmbType"});
  }
  fill_parents();
}

void frmModItems::grdGroup_MouseUp() {
  if (grdGroup->Row() < 0 || grdGroup->Row() >= grdGroup->rows()) return;
  shell.Popup("mnuGroup", *grdGroup, {}, [this](const std::string&) {
    guard("mnuRveGroupItem_Click", [this] { grdGroup->RemoveItem(grdGroup->Row()); });
  });
}

/// The description and one piece, where nothing was said of them.
void frmModItems::group_item_chosen(int row) {
  const GroupLine proposed = Proposed_Line(session, grdGroup->text(row, Item));
  if (grdGroup->text(row, Description).empty()) grdGroup->set_text(row, Description, proposed.Description);
  if (grdGroup->text(row, Qty).empty()) grdGroup->set_value(row, Qty, proposed.Qty);
}

// --- saving --------------------------------------------------------------------------------------

std::vector<GroupLine> frmModItems::group_lines() const {
  std::vector<GroupLine> lines;
  for (int row = 0; row < grdGroup->rows(); ++row)
    if (const std::string item = trim(grdGroup->text(row, Item)); !item.empty())
      lines.push_back({item, grdGroup->text(row, Description), Number_At(*grdGroup, row, Qty)});
  return lines;
}

void frmModItems::read_part(ItemForm& form) const {
  form.Description = utf8(txtInvSalesDesc->text());
  form.PriceRate = text_of(txtInvPrice);
  form.ItemCat = cmbInvIncome->id();
  form.InvTaxable = chkTaxable->isChecked();
  form.InvPurchaseDesc = utf8(txtInvPurDesc->text());
  form.Cost = text_of(txtInvCost);
  form.COGScat = cmbInvCOGSC->id();
  form.InvVendor = trim(cmbInvVen->text());
  form.InvAsset = cmbAsset->id();
  form.ReorderQty = text_of(txtReorder);
  form.InitialQty = text_of(txtInvQty);
  form.TotalValue = text_of(txtInvValue);
  form.InvDate = dteAsOf->maybe_value();
}

ItemForm frmModItems::read() const {
  ItemForm form{.ItemName = name_typed(),
                .ItemType = cmbType->text(),
                .chkSubItem = chkSubItem->isChecked(),
                .ParentItem = cmbSubITem->text(),
                .lines_before = form_.lines_before,
                .Dormant = chkDormant->isChecked(),
                .carry = carry()};
  if (form.ItemType == "Inventory Part") read_part(form);
  if (Is_Service_Like(form.ItemType)) {
    form.Description = utf8(txtDescription->text());
    form.PriceRate = text_of(txtPrice);
    form.ItemCat = cmbCategory->id();
    form.InvTaxable = chkServiceTax->isChecked();
  }
  if (form.ItemType == "Sales Tax") {
    form.Description = utf8(txtTaxDesc->text());
    form.PriceRate = text_of(txtTaxRate);
    form.TaxVendor = trim(cmbTaxAgency->text());
    form.ItemCat = cmbTaxLia->id();
  }
  if (form.ItemType == "Payment") {
    form.Description = utf8(txtPayDesc->text());
    form.PayMethod = trim(txtPayMethod->text());
    form.PayTo = cmbDeposit->id();
  }
  if (form.ItemType == "Subtotal") form.Description = utf8(txtSubDes->text());
  if (form.ItemType == "Group") {
    form.Description = utf8(txtGroupDes->text());
    form.lines = group_lines();
  }
  return form;
}

RowSave frmModItems::save_row() {
  grdGroup->commit();
  if (cmbType->text() == "Payment") txtPayMethod->settle();
  return Save_Item(session, row(), read());
}

}  // namespace tallymere
