#include "payroll/items/pay_item_form.h"

namespace tallymere {
namespace {

using enum ItemType;
using Is = PayItemField::Is;

constexpr PayItemField fields[] = {
    {Wage, "PayType", "optPayType", "Pay Type:", Is::Options},
    {Wage, "PayStyle", "optStyle", "Pay Style:", Is::Options},
    {Wage, "ExpenseAcct", "cmbWageExpense", "Expense Category:", Is::Expense},

    {Commision, "DefaultRate", "txtComRate", "Default Rate:", Is::Rate},
    {Commision, "ExpenseAcct", "cmbComExpense", "Expense Category:", Is::Expense},

    {Addition, "ExpenseAcct", "cmbAddExpense", "Expense Category:", Is::Expense},
    {Addition, "TrackingType", "cmbAddType", "Tax Tracking Type:", Is::Tracking},
    {Addition, "QuantityBased", "chkAddQuantity", "Calculate Base on Quantity", Is::Tick},
    {Addition, "DefaultRate", "txtAddRate", "Default Rate:", Is::Rate},
    {Addition, "DefaultLimit", "txtAddLimit", "Default Limit:", Is::Limit},
    {Addition, "PayCal", "optPayAdj", "Calculate From:", Is::Options},

    {Deduction, "LiabilityAgency", "cmbDeducAgency", "Agency:", Is::Agency},
    {Deduction, "LiabilityNumber", "txtDedecAcct", "Account Number:"},
    {Deduction, "LiabilityAcct", "cmbDeducLiability", "Liability Category:", Is::Liability},
    {Deduction, "TrackingType", "cmbDeducType", "Tax Tracking Type:", Is::Tracking},
    {Deduction, "QuantityBased", "chkDeducQuantity", "Calculate Based on Quantity", Is::Tick},
    {Deduction, "DefaultRate", "txtDeducRate", "Default Rate:", Is::Rate},
    {Deduction, "DefaultLimit", "txtDeducLimit", "Default Limit:", Is::Limit},
    {Deduction, "PayCal", "optPayCal", "Calculate From:", Is::Options},

    {CompanyContribution, "LiabilityAgency", "cmbCompAgency", "Agency:", Is::Agency},
    {CompanyContribution, "LiabilityNumber", "txtCompAcct", "Account Number:"},
    {CompanyContribution, "LiabilityAcct", "cmbCompLiability", "Liability Category:", Is::Liability},
    {CompanyContribution, "ExpenseAcct", "cmbCompExpense", "Expense Category:", Is::Expense},
    {CompanyContribution, "TrackingType", "cmbCompType", "Tax Tracking Type:", Is::Tracking},
    {CompanyContribution, "QuantityBased", "chkCompQuantity", "Calculate Based on Quantity", Is::Tick},
    {CompanyContribution, "DefaultRate", "txtCompRate", "Default Rate:", Is::Rate},
    {CompanyContribution, "DefaultLimit", "txtCompLimit", "Default Limit:", Is::Limit},

    {FederalTax, "LiabilityAgency", "cmbFedAgency", "Agency:", Is::Agency},
    {FederalTax, "LiabilityAcct", "cmbFedLiability", "Liability Category:", Is::Liability},
    {FederalTax, "ExpenseAcct", "cmbFedExpense", "Expense Category:", Is::Expense},
    {FederalTax, "UnempTaxRate", "cmbFedUnemp", "Unemployment Rate:", Is::FedRates, "Label42"},
    {FederalTax, "DefaultRate", "txtFedRate", "Rate:", Is::Rate},
    {FederalTax, "DefaultLimit", "txtFedLimit", "Wage Limit:", Is::Limit},

    {StateTax, "SState", "cmbSState", "State:", Is::State},
    {StateTax, "TaxType", "optStateTax", "Tax Type:", Is::Options},
    {StateTax, "LiabilityAgency", "cmbStateAgency", "Agency:", Is::Agency},
    {StateTax, "LiabilityNumber", "txtStateAcct", "Account Number:"},
    {StateTax, "LiabilityAcct", "cmbStateLiability", "Liability Category:", Is::Liability},
    {StateTax, "ExpenseAcct", "cmbStateExpense", "Expense Category:", Is::Expense, "Label30"},
    {StateTax, "UnempTaxRate", "txtStateRate", "Unemployment Rate:", Is::Rate, "Label31"},
    {StateTax, "DefaultLimit", "txtLimit", "Wage Limit:", Is::Limit, "Label43"},
    {StateTax, "WFRate", "txtWFRate", "Workforce Fee within the Rate:", Is::Fraction},
    {StateTax, "FUTACredit", "chkStateCredit", "Credit Toward Federal Unemployment Tax (FUTA)", Is::Tick},

    {OtherTax, "LiabilityAgency", "cmbOtherAgency", "Agency:", Is::Agency},
    {OtherTax, "LiabilityNumber", "txtOtherAcct", "Account Number:"},
    {OtherTax, "LiabilityAcct", "cmbOtherLiability", "Liability Category:", Is::Liability},
    {OtherTax, "ExpenseAcct", "cmbOtherExpense", "Expense Category:", Is::Expense},
    {OtherTax, "TrackingType", "cmbOtherType", "Tax Tracking Type:", Is::Tracking},
    {OtherTax, "QuantityBased", "chkOtherQuantity", "Calculate Based on Quantity", Is::Tick},
    {OtherTax, "DefaultRate", "txtOtherRate", "Default Rate:", Is::Rate},
    {OtherTax, "DefaultLimit", "txtOtherLimit", "Default Limit:", Is::Limit},
    {OtherTax, "TaxPaid", "optTaxPay", "Paid By:", Is::Options},
};

constexpr PayItemOption options[] = {
    {"optPayType", "Hourly", "Hourly"},
    {"optPayType", "Salary", "Salary"},
    {"optStyle", "Regular", "Regular"},
    {"optStyle", "Sick", "Sick"},
    {"optStyle", "Vacation", "Vacation"},
    {"optPayAdj", "Gross Pay", "Gross"},
    {"optPayAdj", "Net Pay", "Net"},
    {"optPayCal", "Gross Pay", "Gross"},
    {"optPayCal", "Net Pay", "Net"},
    {"optStateTax", "State Withholding", "State Withholding"},
    {"optStateTax", "State Unemployment", "State Unemployment"},
    {"optTaxPay", "Employer Paid Tax", "Employer Paid Tax"},
    {"optTaxPay", "Employee Paid Tax", "Employee Paid Tax"},
};

constexpr const char* compensation = "Tax Compensation";
constexpr const char* pre_tax = "Pre-Tax Deductions";
constexpr TickGrid grids[] = {
    {Addition, "grdAddTaxNew", "grdAddTaxEdit", "Add To Wage Before Calculating the Following Taxes", "PreTaxTable",
     "TaxName", "PreTaxSet", "PreTax"},
    {Deduction, "grdDeducTaxNew", "grdDeducTaxEdit", "Deduct From Wage before Calculating the Following Taxes",
     "PreTaxTable", "TaxName", "PreTaxSet", "PreTax"},
    {CompanyContribution, "grdCompTaxNew", "grdCompTaxEdit", "Add To Wage before Calculating the Following Taxes",
     "PreTaxTable", "TaxName", "PreTaxSet", "PreTax"},
    {StateTax, "grdStateTaxNew", "grdStateTaxEdit", compensation, "PreWageTable", "WageName", "PreWageSet", "Wage"},
    {OtherTax, "grdOtherTaxNew", "grdOtherTaxEdit", compensation, "PreWageTable", "WageName", "PreWageSet", "Wage"},
    {OtherTax, "grdOtherDeducNew", "grdOtherDeducEdit", pre_tax, "PreDeducTable", "DeducName", "PreDeducSet",
     "PreDeduc"},
    {FederalTax, "grdFedTax", "grdFedTax", compensation, "PreWageTable", "WageName", "PreWageSet", "Wage"},
    {FederalTax, "grdFedDeduc", "grdFedDeduc", pre_tax, "PreDeducTable", "DeducName", "PreDeducSet", "PreDeduc"},
};

}  // namespace

std::span<const PayItemField> PayItem_Fields() { return fields; }
std::span<const PayItemOption> PayItem_Options() { return options; }
std::span<const TickGrid> Tick_Grids() { return grids; }

}  // namespace tallymere
