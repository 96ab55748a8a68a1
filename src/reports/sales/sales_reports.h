#pragma once

#include "reports/graph/graph.h"

/// What was invoiced. On cash basis only what has been paid whole. Amounts are as the ledger has them: what lowers an
/// invoice lowers sales, so that items, customers and representatives come to the same total.
namespace tallymere {

// By item: frmPrintSales.
ReportTable Build_Item_Sales(Session& session, const ReportRequest& request);
ReportTable Build_Item_Sales_Detail(Session& session, const ReportRequest& request);
Graph Build_Item_Sales_Graph(Session& session, const ReportRequest& request);

// By customer or representative: frmPrintSaleCus.
ReportTable Build_Customer_Sales(Session& session, const ReportRequest& request);
ReportTable Build_Customer_Sales_Detail(Session& session, const ReportRequest& request);
ReportTable Build_Rep_Sales(Session& session, const ReportRequest& request);
ReportTable Build_Rep_Sales_Detail(Session& session, const ReportRequest& request);

/// frmPrintSalesTax: what was sold, taxed and collected in a period, and what tax stands open at its end. By the
/// company's own basis of sales tax.
ReportTable Build_Sales_Tax(Session& session, const ReportRequest& request);

}  // namespace tallymere
