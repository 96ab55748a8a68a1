#pragma once

#include "reports/graph/graph.h"

/// What customers owe and what is owed to vendors.
namespace tallymere {

// A line of age buckets for each name: frmPrintAging. Documents age by Date and their terms.
ReportTable Build_Receivable_Aging(Session& session, const ReportRequest& request);
ReportTable Build_Payable_Aging(Session& session, const ReportRequest& request);

/// Of either summary.
Graph Build_Aging_Graph(Session& session, const ReportRequest& request);

// The open documents one by one: frmPrintAgeDetail. They age by DueDate where they have one.
ReportTable Build_Receivable_Aging_Detail(Session& session, const ReportRequest& request);
ReportTable Build_Payable_Aging_Detail(Session& session, const ReportRequest& request);
ReportTable Build_Open_Invoices(Session& session, const ReportRequest& request);
ReportTable Build_Collections(Session& session, const ReportRequest& request);
ReportTable Build_Unpaid_Bills(Session& session, const ReportRequest& request);

// What a period moved on the control category, name by name: frmPrintBalances.
ReportTable Build_Customer_Balances(Session& session, const ReportRequest& request);
ReportTable Build_Customer_Balance_Detail(Session& session, const ReportRequest& request);
ReportTable Build_Vendor_Balances(Session& session, const ReportRequest& request);
ReportTable Build_Vendor_Balance_Detail(Session& session, const ReportRequest& request);

}  // namespace tallymere
