#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "printing/layout.h"

/// The papers a company sends out, filled from their rows: one function a kind. A document that is not there makes no
/// layouts.
namespace tallymere {

struct PrintedDocument {
  std::string title = {};  ///< "Invoice 1042": also what its PDF is called
  std::vector<Layout> layouts = {};
};

/// Where a document's PDF goes without asking: "Acme PDF/Invoice 1042.pdf" beside the company, under a name that is still
/// free, "Invoice 1042 (2).pdf". The folder is made.
std::filesystem::path Document_File(const Session& session, const std::string& title);

/// The viewer that the company's preference PrintInvoice chooses for invoices: "frmPrintInvoice" or
/// "frmPrintInvoiceLetter". Asked for as {.window = Invoice_Viewer(session), .number = TransNum}.
std::string Invoice_Viewer(Session& session);
PrintedDocument Print_Invoice(Session& session, int64_t TransNum);
/// On letterhead. Each row of an inventory line is printed, as three lines.
PrintedDocument Print_Invoice_Letter(Session& session, int64_t TransNum);

/// Whose statement it is, and what this statement charges for paying late, before that is entered.
struct StatementOf {
  std::string customer;
  Money new_charge = {};
};
/// What a customer has not paid of which invoices, and finance charges below.
PrintedDocument Print_Statement(Session& session, const StatementOf& of, Date date);
/// Several as one document.
PrintedDocument Print_Statements(Session& session, const std::vector<StatementOf>& customers, Date date);
PrintedDocument Print_Statements(Session& session, Date date);  ///< of all customers who owe anything

PrintedDocument Print_Purchase_Order(Session& session, int64_t Index);
PrintedDocument Print_Estimate(Session& session, int64_t Index);
PrintedDocument Print_Slip(Session& session, int64_t Index);

PrintedDocument Print_Check(Session& session, int64_t TransNum);

}  // namespace tallymere
