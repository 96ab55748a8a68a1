#include "entry/sales/frmInvoice.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "core/company/preferences.h"
#include "core/values/format.h"
#include "entry/document/ItemGrid.h"
#include "entry/document/PickForm.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/frmSpell.h"
#include "shell/list_combo.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

using Field = ItemGrid::Field;

// --- opening -------------------------------------------------------------------------------------

void frmInvoice::load() {
  lists_->fill();
  show(Open_Document(session, Invoice_Kind));
  cmbCustomer->setFocus();
}

void frmInvoice::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Items") sale_items_.forget();
}

// --- document to screen and back -----------------------------------------------------------------

void frmInvoice::show_document(const Invoice& invoice) {
  txtIndex->setText(QString::number(invoice.TransNum));
  cmbType->setCurrentIndex(cmbType->findText(qt(invoice.Style), Qt::MatchFixedString));
  cmbCustomer->set_text(invoice.Name);
  addressed_ = invoice.Name;
  txtBillto->set_text(invoice.Billto);
  txtShipTo->set_text(invoice.ShipTo);
  txtNumber->setText(qt(invoice.Number));
  dteInvDate->set_value(invoice.Date);
  dteShip->set_value(invoice.ShipDate);
  txtTerms->set_text(invoice.Terms);
  txtPOnum->setText(qt(invoice.PONum));
  txtFOB->setText(qt(invoice.FOB));
  txtRep->set_text(invoice.Rep);
  txtShipVia->set_text(invoice.Via);
  txtClass->set_text(invoice.Class);
  cmbMessage->set_text(invoice.Message);
  lines_->show(invoice.lines);
  cmbType_Click();
  show_total(invoice.Total);
}

void frmInvoice::shown() {
  if (document_.is_new() && !cmbCustomer->hasFocus()) go_to(cmbCustomer);
}

Invoice frmInvoice::read() const {
  Invoice invoice = document_;
  if (cmbType->currentIndex() >= 0) invoice.Style = utf8(cmbType->currentText());
  invoice.Name = cmbCustomer->text();
  invoice.Billto = txtBillto->text();
  invoice.ShipTo = txtShipTo->text();
  invoice.Number = utf8(txtNumber->text());
  invoice.Date = dteInvDate->value();
  invoice.ShipDate = dteShip->maybe_value();
  invoice.Terms = txtTerms->text();
  invoice.PONum = utf8(txtPOnum->text());
  invoice.FOB = utf8(txtFOB->text());
  invoice.Rep = txtRep->text();
  invoice.Via = txtShipVia->text();
  invoice.Class = txtClass->text();
  invoice.Message = cmbMessage->text();
  invoice.lines = lines_->read();
  return invoice;
}

// --- saving --------------------------------------------------------------------------------------

bool frmInvoice::settle() {
  for (ListCombo* combo : {txtTerms, txtRep, txtShipVia, txtClass, cmbMessage}) combo->settle();
  const size_t taken = document_.taken.size();
  cmbCustomer_CloseUp();
  return document_.taken.size() <= taken;  // what was just taken up is to be seen before it is saved
}

/// What was seen and not changed is not written again.
bool frmInvoice::enter() {
  lines_->settle();
  return (!document_.is_new() && !changed()) || DocumentForm::enter();
}

void frmInvoice::entered(const SaveResult& result) {
  txtIndex->setText(QString::number(document_.TransNum));
  if (result.written) show_total(document_.Total);
}

// --- while it is filled in -----------------------------------------------------------------------

void frmInvoice::cmbType_Click() {
  const StyleFields shown = Fields_Of(utf8(cmbType->currentText()));
  txtTerms->parentWidget()->setVisible(shown.Terms);
  txtPOnum->parentWidget()->setVisible(shown.PONum);
  for (QWidget* field : {static_cast<QWidget*>(dteShip), static_cast<QWidget*>(txtFOB), static_cast<QWidget*>(txtRep),
                         static_cast<QWidget*>(txtShipTo), static_cast<QWidget*>(txtShipVia)})
    field->parentWidget()->setVisible(shown.shipping);
}

/// Addresses that were written by hand stay until another customer is chosen.
void frmInvoice::cmbCustomer_CloseUp() {
  const std::string name = cmbCustomer->text();
  if (name == addressed_) return;
  addressed_ = name;
  const Addresses known = Customer_Addresses(session, name);
  txtBillto->set_text(known.Billing);
  txtShipTo->set_text(known.Shipping);
  if (!name.empty() && !Check_New_Payee(session, name))
    shell.Ask_Window({.window = "frmNewPayee", .key = name, .parent = "Customers"});
  document_.taken.clear();
  if (!document_.is_new()) return;
  offer(Estimate_Paper, "frmOpenEst", "This Vendor has Open Estimates. Would you like to enter them in now?");
  offer(Slip_Paper, "frmOpenSlips", "This Vendor has Open Package Slips. Would you like to enter them in now?");
}

/// What waits for this customer can be taken up. It is closed when the invoice is saved.
void frmInvoice::offer(const SalePaper& paper, const char* window, const char* question) {
  const std::string name = cmbCustomer->text();
  if (Open_Papers(session, paper, name).empty()) return;
  if (!session.prompts.ask({question, "Open POs", Icon::Question})) return;
  for (const int64_t Index : Ask_Numbers(shell, {.window = window, .key = name}).value_or(std::vector<int64_t>())) {
    document_.taken.push_back({&paper, Index});
    for (const ItemLine& line : Paper_Lines(session, sale_items_, paper, Index))
      lines_->set_line(lines_->grid->rows(), line);
  }
  reckon();
}

void frmInvoice::chosen(int row, const ItemFacts& item) {
  if (!item.known) return;
  lines_->set_line(row, Chosen_Line(item, lines_->read(row)));
  if (item.ItemType != "Group") return;
  for (const ItemLine& member : Group_Members(session, sale_items_, item.ItemName)) {
    lines_->grid->InsertItem(++row, "");
    lines_->set_line(row, member);
  }
}

void frmInvoice::SSDBGrid1_AfterColUpdate(int row, int column) {
  const bool amount = column == lines_->column(Field::Quantity) || column == lines_->column(Field::Cost) ||
                      column == lines_->column(Field::Amount);
  if (amount) {
    ItemLine line = lines_->read(row);
    Lower_Total(sale_items_.type(line.Item), line);
    lines_->grid->set_value(row, lines_->column(Field::Amount), line.Amount);
  }
  if (column != lines_->column(Field::Description)) reckon();
}

void frmInvoice::reckon() {
  const std::vector<ItemLine> before = lines_->read();
  std::vector<ItemLine> lines = before;
  Reckon_Lines(sale_items_, lines);
  for (size_t row = 0; row < lines.size(); ++row)
    if (lines[row].Amount != before[row].Amount)
      lines_->grid->set_value(static_cast<int>(row), lines_->column(Field::Amount), lines[row].Amount);
  show_total(Total_Of(sale_items_, lines));
}

void frmInvoice::show_total(Money total) { lblTotal->setText(qt(Format(total, "$0.00"))); }

void frmInvoice::SSDBGrid1_MouseUp() {
  const int row = lines_->grid->Row();
  const bool line = row >= 0 && row < lines_->grid->rows();
  shell.Popup("mnuRows", *lines_->grid, line ? std::vector<std::string>{} : std::vector<std::string>{"mnuDeleteLine"},
              [this, row](const std::string&) { lines_->grid->delete_row(row); });
}

// --- commands ------------------------------------------------------------------------------------

void frmInvoice::cmdDelete_Click() { show_deleted(Delete_Invoice(session, document_)); }

void frmInvoice::cmdPrint_AfterClick() {
  if (!save() || document_.is_new()) return;
  const bool letter = Preference(*session.dbCompany, preference::PrintInvoice) == "Letterhead";
  shell.Show_Window(
      {.window = letter ? "frmPrintInvoiceLetter" : "frmPrintInvoice", .key = {}, .number = document_.TransNum});
}

/// The descriptions of the lines, one after the other.
void frmInvoice::cmdSpell_Click() {
  lines_->settle();
  if (!Dictionary(session))
    return session.prompts.box(
        {"Microsoft Word is not installed on this machine. Please install Microsoft Word 2000 or "
         "later and Spell Check again.",
         "", Icon::Information});
  const int column = lines_->column(Field::Description);
  std::vector<std::string> texts;
  for (int row = 0; row < lines_->grid->rows(); ++row) texts.push_back(lines_->grid->text(row, column));
  const bool completed = Check_Spelling(shell, texts);
  for (int row = 0; row < lines_->grid->rows(); ++row)
    lines_->grid->set_text(row, column, texts[static_cast<size_t>(row)]);
  if (completed) session.prompts.box({"Spell check is completed.", "Tallymere", Icon::Information});
}

void frmInvoice::cmdRepeat_Click() {
  shell.Show_Window({.window = "frmModRepeat", .key = "Invoice", .number = document_.TransNum});
}

}  // namespace tallymere
