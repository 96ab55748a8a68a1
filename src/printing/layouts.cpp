#include "printing/layout.h"

namespace tallymere {
namespace {

constexpr std::string_view check_needs =
    "Payee Date Amount AmountInWords Address Memo Payee2 Date2 Amount2 Payee3 Date3 Amount3 Stub1 Stub2 Text24..Text86 "
    "Text112..Text171 PayStub1 PayStub2 EmployeeName1 EmployeeName2 NetPay1 NetPay2 PayItem1..PayItem40 "
    "PayAmount1..PayAmount40 PayYTD1..PayYTD40 PayHours1..PayHours40";
constexpr std::string_view check_fills =
    "Number Number2 Number3 Face AddressOne1 AddressOne2 City1 City2 SSNum1 SSNum2 SickHours1 SickHours2 VacHours1 "
    "VacHours2 CompanyName1 CompanyName2 CompanyAddress1 CompanyAddress2 CompanyCity1 CompanyCity2 PayPeriod1 "
    "PayPeriod2 TotalHours1 TotalHours2 TotalEarnings1 TotalEarnings2 TotalDeductions1 TotalDeductions2 Continued "
    "Memo2 Memo3 BlankStock BankLine BankName PayerName PayerAddress YTDEarnings1 YTDEarnings2 YTDDeductions1 YTDDeductions2";

constexpr std::string_view invoice_needs =
    "BillingAddress Number Date Total Detail Detail.room Item Description Qty Rate Amount";
constexpr std::string_view invoice_fills =
    "CompanyName CompanyAddress Logo Title ShippingAddress ShipToField ShipDate ShipDateField Via ViaField Rep RepField "
    "FOB FOBField PONum PONumField Terms TermsField Message Balance Received Boxes Page";

constexpr LayoutDef defs[] = {
    {"crpCheck", "Checks on single sheets", check_needs, check_fills},
    {"crpFeedCheck", "Checks on continuous sheets", check_needs, check_fills},
    {"crpCusCheck", "Checks in the custom style", check_needs, check_fills},
    {"crpInvoice", "Invoices on blank paper", invoice_needs, invoice_fills},
    {"crpInvoicePre", "Invoices on pre-printed forms", invoice_needs, invoice_fills},
    {"crpInvoiceLetter", "Invoices on letterhead", invoice_needs, invoice_fills},
    {"crpStatement", "Statements",
     "Name Address BillingAddress Date Total Detail Detail.room InvoiceDate Number Amount Received Balance",
     "Logo DueDate Terms Charges ChargesField Due Page"},
    {"crpPO", "Purchase orders and estimates",
     "Title Name Address Party PartyAddress Number Date Total Detail Detail.room Item Description Qty Rate Amount",
     "Logo PartyCaption Memo Page"},
    {"crpPSlip", "Package slips", "Name Address Party PartyAddress Number Date Detail Detail.room Item Description Qty",
     "Logo Memo Page"},
    {"crp941", "Form 941",
     "LegalName FedID dteEnd txtWages txtWithheld txtAsjustPreced txtTotalWithheld txtSocWage lblTotSocTaxWage txtSocTip "
     "lblTotSocTaxTip txtMedWT lblMedTax lblTotalTax txtAdjustTaxes txtTotalAdjust txtTax txtEIC txtNetTaxes "
     "txtDeposits txtBalance txtOverpay txtFirst txtSecond txtThird lblTotalLia",
     "LegalAddress CityLine State1 State2 txtEmpCount AddDif Season FutReturn FinalWage NotSubject Refund Apply "
     "Semiweekly Monthly SocRate TipRate MedRate"},
    {"crpSchedB", "Schedule B of Form 941",
     "LegalName FedID Text122..Text152 Text155..Text185 Text187..Text217 Text219..Text222",
     "LegalAddress CityLine dteEnd Month1 Month2 Month3 NetTaxes Difference"},
};

}  // namespace

std::span<const LayoutDef> Layout_Defs() { return defs; }

}  // namespace tallymere
