#pragma once

#include "entry/document/DocumentForm.h"
#include "entry/sales/invoice.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace tallymere {

class AddressEdit;
class DropDowns;
class ItemGrid;
class ListCombo;
class QuillbrookDatePick;
class SSDBCombo;

/// Invoices: a sheet with the customer, dates and terms over lines of items, whose sum is what the customer owes.
class frmInvoice : public DocumentForm<Invoice> {
  Q_OBJECT

 public:
  explicit frmInvoice(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void show_document(const Invoice& invoice) override;
  void shown() override;
  Invoice read() const override;
  bool settle() override;
  bool enter() override;
  void entered(const SaveResult& result) override;

 private:
  // --- the screen (frmInvoice_build.cpp)
  void build_fields();
  void build_lines();
  QWidget* build_sheet();
  QWidget* build_strip();
  void build();
  void connect_controls();
  void order_tabs();
  QWidget* captioned(const char* caption, QWidget* field);

  // --- while it is filled in
  void cmbType_Click();
  void cmbCustomer_CloseUp();
  void offer(const SalePaper& paper, const char* window, const char* question);
  void chosen(int row, const ItemFacts& item);
  void SSDBGrid1_AfterColUpdate(int row, int column);
  void SSDBGrid1_MouseUp();
  void reckon();  ///< subtotals, taxes and the total, after a line was changed
  void show_total(Money total);

  // --- commands
  void cmdDelete_Click();
  void cmdPrint_AfterClick();
  void cmdRepeat_Click();
  void cmdSpell_Click();

  DropDowns* lists_;
  SaleItems sale_items_;
  ItemGrid* lines_;
  std::string addressed_;  ///< the customer whose addresses were last asked for

  QComboBox* cmbType;
  SSDBCombo* cmbCustomer;
  AddressEdit *txtBillto, *txtShipTo;
  QLineEdit *txtIndex, *txtNumber, *txtPOnum, *txtFOB;
  QuillbrookDatePick *dteInvDate, *dteShip;
  ListCombo *txtTerms, *txtRep, *txtShipVia, *txtClass, *cmbMessage;
  QLabel* lblTotal;
  QPushButton *cmdDelete, *cmdRepeat, *cmdPrint, *cmdSpell;
};

}  // namespace tallymere
