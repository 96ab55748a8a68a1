#include "entry/sales/invoice.h"
#include "core/company/preferences.h"
#include "core/values/format.h"
#include "printing/check_layout.h"
#include "printing/company_head.h"
#include "printing/documents.h"
#include "printing/paper_text.h"

namespace tallymere {
namespace {

constexpr std::string_view dollars = "$0.00";

/// How an invoice looks: its style, and the paper the company prints on.
struct Look {
  std::string layout;  ///< "crpInvoice"
  bool boxes = true;
};

Look Look_Of(Session& session, bool letter) {
  const std::string state = Preference(*session.dbCompany, preference::PrintInvoice);
  return {letter ? "crpInvoiceLetter" : state == "PrePrinted" ? "crpInvoicePre" : "crpInvoice", state != "BlankNoBox"};
}

/// What stands in the head besides number and date, and the styles that have it.
struct HeadField {
  const char* name;
  std::string (*text)(const Invoice&);
  bool service;  ///< also on a "Service" invoice; "Product" has all
  bool professional;
};
constexpr HeadField head_fields[] = {
    {"PONum", [](const Invoice& invoice) { return invoice.PONum; }, true, false},
    {"Terms", [](const Invoice& invoice) { return invoice.Terms; }, true, true},
    {"Rep", [](const Invoice& invoice) { return invoice.Rep; }, false, false},
    {"ShipDate", [](const Invoice& invoice) { return invoice.ShipDate ? invoice.ShipDate->to_text() : ""; }, false,
     false},
    {"Via", [](const Invoice& invoice) { return invoice.Via; }, false, false},
    {"FOB", [](const Invoice& invoice) { return invoice.FOB; }, false, false},
};

void Fill_Head_Fields(Layout& paper, const Invoice& invoice, const Look& look) {
  for (const HeadField& field : head_fields) {
    const bool shown = invoice.Style == "Service"        ? field.service
                       : invoice.Style == "Professional" ? field.professional
                                                         : true;
    const std::string name = field.name;
    paper.SetText(name, field.text(invoice));
    if (!shown || (name == "ShipDate" && !look.boxes)) paper.Suppress(name + "Field");
    if (!look.boxes) paper.Suppress(name + "Frame");
  }
  if (!look.boxes) paper.Suppress("Boxes");
  paper.SetText("BillingAddress", invoice.Billto.empty() ? invoice.Name : invoice.Billto);
  const bool ships = invoice.Style == "Product";
  paper.SetText("ShippingAddress", ships ? invoice.ShipTo : "");
  if (!ships) paper.Suppress("ShipToField");
}

void Fill_Amounts(Layout& paper, Money total, Money received) {
  paper.SetText("Total", Format(total, dollars));
  paper.SetText("Received", Format(received, dollars));
  paper.SetText("Balance", Format(total - received, dollars));
}

std::string Rate_Text(const std::optional<Money>& rate, const std::string& ItemType) {
  if (!rate || rate->is_zero()) return "";
  const bool part = ItemType == "Sales Tax" || (ItemType == "Discount" && rate->abs() < Money::dollars(1));
  return part ? rate->times(100).to_text() + "%" : Format(*rate, price_mask);
}

/// `back`: a credit memo, whose lines take away from what is owed and are printed as what is given back. A group only
/// says what the lines below it are. On letterhead each of the three rows of a part makes a line.
void Add_Lines(Session& session, Layout& paper, const Invoice& invoice, bool letter, bool back) {
  SaleItems items(session);
  for (const ItemLine& line : invoice.lines) {
    const std::string type = items.type(line.Item);
    const Money amount = line.Amount.value_or(Money());
    const bool says_nothing = type == "Group" && amount.is_zero();
    const Layout::Row row = {{"Item", line.Item},
                             {"Description", line.Description},
                             {"Qty", line.Quantity ? Number_Text(*line.Quantity) : ""},
                             {"Rate", Rate_Text(line.Cost, type)},
                             {"Amount", says_nothing ? "" : Money_Text(back ? -amount : amount)}};
    const auto part = invoice.parts.find(line.kept);
    const size_t rows = letter && part != invoice.parts.end() ? part->second.size() : 1;
    for (size_t copy = 0; copy < rows; ++copy) paper.add_detail(row);
  }
}

PrintedDocument Fill_Invoice(Session& session, int64_t TransNum, bool letter) {
  const store::Snapshot moment(*session.dbCompany);
  const auto invoice = Load_Invoice(session, TransNum);
  if (!invoice || !invoice->kept) return {};
  const LedgerRow& head = *invoice->kept;
  const Look look = Look_Of(session, letter);
  const bool back = !head.Credit.is_zero();
  const std::string title = back ? "Credit Memo" : "Invoice";
  Layout paper(look.layout);
  paper.SetText("Title", title);
  Fill_Company_Head(session, paper, "CompanyName", "CompanyAddress");
  paper.SetText("Number", invoice->Number);
  paper.SetText("Date", invoice->Date.to_text());
  Fill_Head_Fields(paper, *invoice, look);
  Fill_Amounts(paper, back ? head.Credit : head.Amount.value_or(Money()), head.AmountReceived.value_or(Money()));
  paper.SetText("Message", invoice->Message);
  Add_Lines(session, paper, *invoice, letter, back);
  return {title + " " + invoice->Number, {paper}};
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
