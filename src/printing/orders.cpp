#include "core/store/recordset.h"
#include "core/values/format.h"
#include "printing/company_head.h"
#include "printing/documents.h"
#include "printing/paper_text.h"

/// Papers that post nothing: purchase orders, estimates and package slips are one design over three pairs of tables.
namespace tallymere {
namespace {

struct OrderKind {
  const char* title;
  const char* layout;
  const char *heads, *lines, *link;
  const char *party, *address, *number;
  const char* party_caption;
  bool prices;
};
constexpr OrderKind purchase_order{"Purchase Order", "crpPO",         "POs",      "POItems", "POIndex",
                                   "Vendor",         "VendorAddress", "PONumber", "Vendor",  true};
constexpr OrderKind estimate{"Estimate", "crpPO",           "Estimates",      "EstItems", "EstimateIndex",
                             "Customer", "CustomerAddress", "EstimateNumber", "Customer", true};
constexpr OrderKind slip{"Package Slip", "crpPSlip",      "PSlips",   "PSlipItems", "POIndex",
                         "Vendor",       "VendorAddress", "PONumber", "Ship to",    false};

Layout::Row Line(store::Recordset& row, bool prices) {
  Layout::Row line{{"Item", row["Item"].text()},
                   {"Description", row["Description"].text()},
                   {"Qty", row["Qty"].blank() ? "" : Number_Text(row["Qty"].number())}};
  if (!prices) return line;
  line["Rate"] = row["Rate"].blank() ? "" : Format(row["Rate"].money(), price_mask);
  line["Amount"] = row["Amount"].blank() ? "" : Money_Text(row["Amount"].money());
  return line;
}

PrintedDocument Fill_Order(Session& session, const OrderKind& kind, int64_t Index) {
  const store::Snapshot moment(*session.dbCompany);
  auto head =
      session.dbCompany->OpenRecordset("SELECT * FROM " + std::string(kind.heads) + " WHERE Index = ?", {Index});
  if (!head.has_row()) return {};
  Layout order(kind.layout);
  Fill_Company_Head(session, order, "Name", "Address");
  order.SetText("Title", kind.title);
  order.SetText("PartyCaption", kind.party_caption);
  order.SetText("Party", head[kind.party].text());
  order.SetText("PartyAddress", Below_Name(head[kind.address].text(), head[kind.party].text()));
  order.SetText("Number", head[kind.number].text());
  order.SetText("Date", head["Date"].text());
  order.SetText("Memo", head["Memo"].text());
  if (kind.prices) order.SetText("Total", Format(head["Total"].money(), "$0.00"));
  auto lines = session.dbCompany->OpenRecordset(
      "SELECT * FROM " + std::string(kind.lines) + " WHERE " + kind.link + " = ? ORDER BY RowKey", {Index});
  for (; !lines.Eof(); lines.MoveNext()) order.add_detail(Line(lines, kind.prices));
  return {std::string(kind.title) + " " + head[kind.number].text(), {order}};
}

}  // namespace

PrintedDocument Print_Purchase_Order(Session& session, int64_t Index) {
  return Fill_Order(session, purchase_order, Index);
}

PrintedDocument Print_Estimate(Session& session, int64_t Index) { return Fill_Order(session, estimate, Index); }

PrintedDocument Print_Slip(Session& session, int64_t Index) { return Fill_Order(session, slip, Index); }

}  // namespace tallymere
