#include "core/company/preferences.h"
#include "core/store/recordset.h"
#include "core/values/format.h"
#include "printing/check_layout.h"
#include "printing/company_head.h"
#include "printing/documents.h"
#include "printing/paper_text.h"

namespace tallymere {
namespace {

constexpr std::string_view dollars = "$0.00";
constexpr const char* extra_row = "Inventory Part";  // SourceName of an inventory line's second and third row

struct InvoiceKind {
  std::string style;   ///< "Professional", "Product", "Service"
  std::string layout;  ///< "crpInvoice"
  bool boxes = true;
};

InvoiceKind Kind_Of(Session& session, store::Recordset& head, bool letter) {
  const std::string state = Preference(*session.dbCompany, preference::PrintInvoice);
  return {head["SourceName"].text(),
          letter                  ? "crpInvoiceLetter"
          : state == "PrePrinted" ? "crpInvoicePre"
                                  : "crpInvoice",
          state != "BlankNoBox"};
}

/// The receivable row, the first of an invoice.
store::Recordset Head_Of(Session& session, int64_t TransNum) {
  return session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Invoice' AND Account = 'AR1' AND "
      "Item = '' ORDER BY RowKey",
      {TransNum});
}

/// What stands in the head besides number and date, and the styles that have it.
struct HeadField {
  const char* field;
  bool service;  ///< also on a "Service" invoice; "Product" has all
  bool professional;
};
constexpr HeadField head_fields[] = {{"PONum", true, false},     {"Terms", true, true}, {"Rep", false, false},
                                     {"ShipDate", false, false}, {"Via", false, false}, {"FOB", false, false}};

void Fill_Head_Fields(Layout& invoice, store::Recordset& head, const InvoiceKind& kind) {
  for (const HeadField& field : head_fields) {
    const bool shown = kind.style == "Service"        ? field.service
                       : kind.style == "Professional" ? field.professional
                                                      : true;
    const std::string name = field.field;
    invoice.SetText(name, head[name].text());
    if (!shown || (name == "ShipDate" && !kind.boxes)) invoice.Suppress(name + "Field");
    if (!kind.boxes) invoice.Suppress(name + "Frame");
  }
  if (kind.style != "Product") invoice.Suppress("ShipToField");
  invoice.SetText("ShippingAddress", kind.style == "Product" ? head["ShippingAddress"].text() : "");
  if (!kind.boxes) invoice.Suppress("Boxes");
}

std::string Address_Of(Session& session, const std::string& customer, const char* field) {
  return session.dbCompany->value("SELECT " + std::string(field) + " FROM Customers WHERE Name = ?", {customer}).text();
}

/// The rows keep one address; the customer's own stand where a row has none.
void Fill_Addresses(Session& session, Layout& invoice, store::Recordset& head, const InvoiceKind& kind) {
  const std::string customer = head["Name"].text();
  std::string billing = head["Address"].text();
  if (billing.empty()) billing = Address_Of(session, customer, "BillingAddress");
  invoice.SetText("BillingAddress", billing.empty() ? customer : billing);
  if (kind.style == "Product" && head["ShippingAddress"].blank())
    invoice.SetText("ShippingAddress", Address_Of(session, customer, "ShippingAddress"));
}

void Fill_Amounts(Layout& invoice, store::Recordset& head) {
  const Money credit = head["Credit"].money();
  const Money total = credit.is_zero() ? head["Amount"].money() : credit;
  const Money received = head["AmountReceived"].money();
  invoice.SetText("Total", Format(total, dollars));
  invoice.SetText("Received", Format(received, dollars));
  invoice.SetText("Balance", Format(total - received, dollars));
}

std::string Rate_Text(store::Recordset& row, const std::string& ItemType) {
  if (row["SalePrice"].money().is_zero()) return "";
  return ItemType == "Sales Tax" ? row["SalePrice"].money().times(100).to_text() + "%"
                                 : Format(row["SalePrice"].money(), price_mask);
}

std::string Quantity_Text(double sold) { return sold == 0 ? "" : Number_Text(sold); }

/// A row's amount as it adds to the invoice's total: one on the head's own side takes away.
Money Line_Amount(store::Recordset& row, bool head_is_debit) {
  const Money credit = row["Credit"].money(), debit = row["Debit"].money();
  return head_is_debit ? credit - debit : debit - credit;
}

void Add_Lines(Session& session, Layout& invoice, int64_t TransNum, bool all_rows, bool head_is_debit) {
  Money sum;
  auto rows = session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Item <> '' ORDER BY RowKey", {TransNum});
  for (; !rows.Eof(); rows.MoveNext()) {
    const bool extra = rows["SourceName"].text() == extra_row;
    if (extra && !all_rows) continue;
    const std::string type =
        session.dbCompany->value("SELECT ItemType FROM Items WHERE ItemName = ?", {rows["Item"].text()}).text();
    const Money amount = Line_Amount(rows, head_is_debit);
    if (!extra) sum += amount;
    invoice.add_detail({{"Item", rows["Item"].text()},
                        {"Description", rows["ItemDescription"].text()},
                        {"Qty", Quantity_Text(-rows["Qty"].number())},
                        {"Rate", Rate_Text(rows, type)},
                        {"Amount", Money_Text(type == "Subtotal" ? sum : amount)}});
  }
}

PrintedDocument Fill_Invoice(Session& session, int64_t TransNum, bool letter) {
  const store::Snapshot moment(*session.dbCompany);
  auto head = Head_Of(session, TransNum);
  if (!head.has_row()) return {};
  const InvoiceKind kind = Kind_Of(session, head, letter);
  const bool debit = head["Credit"].money().is_zero();
  Layout invoice(kind.layout);
  const std::string title = debit ? "Invoice" : "Credit Memo";
  invoice.SetText("Title", title);
  Fill_Company_Head(session, invoice, "CompanyName", "CompanyAddress");
  for (const char* field : {"Number", "Date"}) invoice.SetText(field, head[field].text());
  Fill_Head_Fields(invoice, head, kind);
  Fill_Addresses(session, invoice, head, kind);
  Fill_Amounts(invoice, head);
  invoice.SetText("Message", head["Memo"].text());
  Add_Lines(session, invoice, TransNum, letter, debit);
  return {title + " " + head["Number"].text(), {invoice}};
}

}  // namespace

std::string Invoice_Viewer(Session& session) {
  const bool letterhead = Preference(*session.dbCompany, preference::PrintInvoice) == "Letterhead";
  return letterhead ? "frmPrintInvoiceLetter" : "frmPrintInvoice";
}

PrintedDocument Print_Invoice(Session& session, int64_t TransNum) { return Fill_Invoice(session, TransNum, false); }

PrintedDocument Print_Invoice_Letter(Session& session, int64_t TransNum) {
  return Fill_Invoice(session, TransNum, true);
}

PrintedDocument Print_Check(Session& session, int64_t TransNum) {
  const store::Snapshot moment(*session.dbCompany);
  const std::string number =
      session.dbCompany->value("SELECT Number FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum}).text();
  return {"Check " + number, Print_it(session, TransNum, number)};
}

}  // namespace tallymere
