#include "core/store/recordset.h"
#include "core/values/format.h"
#include "entry/sales/open_invoices.h"
#include "printing/company_head.h"
#include "printing/documents.h"

namespace tallymere {
namespace {

constexpr std::string_view dollars = "$0.00";

/// Terms without days, or an invoice without terms, have no day it is due.
std::string Due_Text(Session& session, store::Recordset& invoice) {
  const auto days = session.dbCompany->value("SELECT Days FROM Terms WHERE Term = ?", {invoice["Terms"].text()});
  const auto date = invoice["Date"].maybe_date();
  return days.is_null() || !date ? "" : date->plus_days(static_cast<int>(days.integer())).to_text();
}

/// What was charged for paying late stands below the invoices, where there is any.
void Fill_Charges(Session& session, Layout& statement, const StatementOf& of, Money total) {
  const Money charges = Open_Finance_Charges(session, of.customer) + of.new_charge;
  if (charges.is_zero()) return statement.Suppress("ChargesField");
  statement.SetText("Charges", Format(charges, dollars));
  statement.SetText("Due", Format(total + charges, dollars));
}

Layout Fill_Statement(Session& session, const StatementOf& of, Date date) {
  const std::string& customer = of.customer;
  Layout statement("crpStatement");
  Fill_Company_Head(session, statement, "Name", "Address");
  const std::string billing =
      session.dbCompany->value("SELECT BillingAddress FROM Customers WHERE Name = ?", {customer}).text();
  statement.SetText("BillingAddress", billing.empty() ? customer : billing);
  statement.SetText("Date", date.to_text());
  Money total;
  auto invoices = Open_Invoices(session, customer);
  for (; !invoices.Eof(); invoices.MoveNext()) {
    // What is owed to the customer stands with a minus sign, and takes away from the total.
    const bool credit = !invoices["Credit"].money().is_zero();
    const Money amount = credit ? -invoices["Amount"].money() : invoices["Amount"].money();
    const Money received = credit ? -invoices["AmountReceived"].money() : invoices["AmountReceived"].money();
    total += amount - received;
    statement.add_detail({{"InvoiceDate", invoices["Date"].text()},
                          {"Number", invoices["Number"].text()},
                          {"Terms", invoices["Terms"].text()},
                          {"DueDate", Due_Text(session, invoices)},
                          {"Amount", Format(amount, dollars)},
                          {"Received", Format(received, dollars)},
                          {"Balance", Format(amount - received, dollars)}});
  }
  statement.SetText("Total", Format(total, dollars));
  Fill_Charges(session, statement, of, total);
  return statement;
}

}  // namespace

PrintedDocument Print_Statement(Session& session, const StatementOf& of, Date date) {
  PrintedDocument document = Print_Statements(session, {of}, date);
  document.title = "Statement " + of.customer;
  return document;
}

PrintedDocument Print_Statements(Session& session, const std::vector<StatementOf>& customers, Date date) {
  const store::Snapshot moment(*session.dbCompany);
  PrintedDocument all{"Statements " + Format(date, "yyyy-mm-dd")};
  for (const StatementOf& of : customers) all.layouts.push_back(Fill_Statement(session, of, date));
  return all;
}

PrintedDocument Print_Statements(Session& session, Date date) {
  const store::Snapshot moment(*session.dbCompany);
  std::vector<StatementOf> customers;
  for (std::string& customer : Customers_Who_Owe(session)) customers.push_back({std::move(customer)});
  return Print_Statements(session, customers, date);
}

}  // namespace tallymere
