#pragma once

#include <map>

#include "lists/NamedRowForm.h"
#include "lists/items/items.h"

class QFormLayout;
class QLabel;
class QStackedWidget;

namespace tallymere {

class DropDowns;
class ListCombo;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBGrid;

/// Makes or changes an item. Its type decides which frame of fields is shown.
class frmModItems : public NamedRowForm {
  Q_OBJECT

 public:
  explicit frmModItems(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void show_row() override;
  RowSave save_row() override;

 private:
  // frmModItems_build.cpp
  void build();
  QWidget* make_fraService();
  QWidget* make_fraInvPart();
  QWidget* make_purchase();
  QWidget* make_sales();
  QWidget* make_summary();
  QWidget* make_fraTax();
  QWidget* make_fraSubtotal();
  QWidget* make_fraGroup();
  QWidget* make_fraPayment();
  SSDBCombo* category_combo(const char* name, ItemCategory which);
  SSDBCombo* vendor_combo(const char* name);

  void show_type(const ItemForm& form);
  void show_part(const ItemForm& form);
  void fill_categories();
  void fill_parents();
  void cmbType_Click();
  void chkSubItem_Click();
  void grdGroup_MouseUp();
  void group_item_chosen(int row);
  std::vector<GroupLine> group_lines() const;
  void read_part(ItemForm& form) const;
  ItemForm read() const;

  DropDowns* lists_;
  ItemForm form_;  ///< as it was read
  SSDBCombo *cmbType, *cmbSubITem;
  QCheckBox* chkSubItem;
  QStackedWidget* frames_;
  std::map<std::string, QWidget*> frame_of_;            ///< by type
  std::map<SSDBCombo*, ItemCategory> category_combos_;  ///< and what each chooses from
  QLineEdit *txtDescription, *txtPrice, *txtInvPurDesc, *txtInvCost, *txtInvSalesDesc, *txtInvPrice, *txtReorder,
      *txtInvQty, *txtInvValue, *txtTaxDesc, *txtTaxRate, *txtSubDes, *txtGroupDes, *txtPayDesc;
  SSDBCombo *cmbCategory, *cmbInvCOGSC, *cmbInvVen, *cmbInvIncome, *cmbAsset, *cmbTaxAgency, *cmbTaxLia, *cmbDeposit;
  ListCombo* txtPayMethod;
  QCheckBox *chkServiceTax, *chkTaxable;
  QuillbrookDatePick* dteAsOf;
  QFormLayout* stock_fields_;  ///< of a new part boxes, else what there is
  QLabel *lblQtyInStock, *lblTotalValue;
  SSDBGrid* grdGroup;
};

}  // namespace tallymere
