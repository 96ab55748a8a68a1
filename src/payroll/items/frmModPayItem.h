#pragma once

#include <map>

#include "lists/RowForm.h"
#include "payroll/items/pay_item_form.h"

class QFormLayout;
class QLineEdit;
class QStackedWidget;

namespace tallymere {

class DropDowns;
class SSDBCombo;
class SSDBDropDown;
class SSDBGrid;

/// Makes or changes a payroll item: one frame for each type, with its fields and the ticks of which tax counts what.
class frmModPayItem : public RowForm {
  Q_OBJECT

 public:
  explicit frmModPayItem(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void show_row() override;
  RowSave save_row() override;
  std::string saved_key() const override;

 private:
  void build();
  QWidget* build_frame(ItemType type, const char* name);
  void add_control(QFormLayout* fields, const PayItemField& field);
  QWidget* make_control(const PayItemField& field);
  SSDBCombo* make_combo(const PayItemField& field);
  QWidget* make_options(const PayItemField& field);
  void connect_controls();
  void connect_choice(const char* name, const char* procedure, void (frmModPayItem::*handler)());

  void fill_categories();
  void show_frame();
  void go_to_first_field();
  void show_field(const PayItemField& field);
  void show_ticks();
  void show_useful();
  PayItemForm read() const;
  std::string read_field(const PayItemField& field) const;
  void cmbType_Click();
  void cmbSState_Click();
  void optStateTax_Click();
  void Tracking_Click();

  PayItemForm form_;  ///< as it was read, or offered
  DropDowns* lists_;
  SSDBDropDown *expenses_, *liabilities_;
  std::map<ItemType, QWidget*> frames_;
  std::map<ItemType, QFormLayout*> forms_;
  std::map<ItemType, std::vector<SSDBGrid*>> grids_;
  std::map<std::string, std::string> chosen_;  ///< by control: what its rule has been run for
  QLineEdit* txtName;
  SSDBCombo* cmbType;
  QStackedWidget* fraItem;
};

}  // namespace tallymere
