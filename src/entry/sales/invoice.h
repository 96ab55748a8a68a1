#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "entry/document/deletion.h"
#include "entry/document/lines.h"
#include "entry/sales/open_papers.h"
#include "entry/sales/sale_lines.h"

/// Invoices: what customers owe.
namespace tallymere {

/// An estimate or a package slip whose lines are in the invoice.
struct TakenPaper {
  const SalePaper* paper;
  int64_t Index;
};

/// What frmInvoice shows.
struct Invoice {
  int64_t TransNum = 0;    ///< txtIndex
  std::string Style = {};  ///< "Professional", "Product", "Service"
  std::string Name = {};
  std::string Billto = {};  ///< as is ShipTo: the invoice's own address, else the customer's
  std::string ShipTo = {};
  std::string Number = {};
  tallymere::Date Date;
  std::optional<tallymere::Date> ShipDate = {};
  std::string Terms = {};
  std::string PONum = {};
  std::string FOB = {};
  std::string Rep = {};
  std::string Via = {};
  std::string Class = {};
  std::string Message = {};
  Money Total = {};
  std::vector<ItemLine> lines = {};
  bool Paid = false;  ///< any row is

  std::vector<TakenPaper> taken = {};  ///< it closes them when it is saved

  KeptRow kept = {};                                     ///< the row in receivables as it was loaded
  std::map<KeptRow, std::vector<LedgerRow>> parts = {};  ///< the three rows of a part, by the first as its line kept it
  Probe probe = {};

  bool is_new() const { return probe.is_new(); }
};

/// Where a customer's invoices and goods go; empty for one nobody knows.
struct Addresses {
  std::string Billing = {};
  std::string Shipping = {};
};
Addresses Customer_Addresses(Session& session, const std::string& Name);

Invoice New_Invoice(Session& session);
std::optional<Invoice> Load_Invoice(Session& session, int64_t TransNum);

/// Saves what frmInvoice shows. Without a customer and without lines there is nothing to save.
SaveResult Enter_Invoice(Session& session, Invoice& invoice);

extern const DocumentKind<Invoice> Invoice_Kind;

/// Asks, once more where a payment was received, and deletes it. What was paid of it is the customer's again.
Deleted<Invoice> Delete_Invoice(Session& session, const Invoice& invoice);

/// What a style shows beside what all show.
struct StyleFields {
  bool Terms = false;
  bool PONum = false;
  bool shipping = false;  ///< dteShip, txtFOB, txtRep, txtShipTo, txtShipVia
};
StyleFields Fields_Of(std::string_view Style);

}  // namespace tallymere
