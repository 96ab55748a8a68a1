#include "core/company/schema.h"

// The tables of a company file. Spellings such as Commision are names that queries compare with, not slips.
namespace tallymere {
namespace {

using enum FieldType;

constexpr FieldDef Transactions_fields[] = {
    {"TransNum", Long, "transaction number, shared by all its rows"},
    {"Type", Text, "kind of transaction"},
    {"Date", Date, "transaction date"},
    {"Number", Text, "check, invoice or bill number; \"Print\" marks a check still to be printed"},
    {"Name", Text, "customer, vendor, employee or other payee"},
    {"Address", Text, "address block shown on the document"},
    {"ShippingAddress", Text, "ship-to block"},
    {"Memo", Text, "memo of the row"},
    {"Account", Text, "CatID that this row posts to"},
    {"Category", Text, "the other side: a CatID, a display name or \"<-Break Down->\""},
    {"Debit", Money, "debit amount, or zero or null"},
    {"Credit", Money, "credit amount, or zero or null"},
    {"Amount", Money, "the row's absolute amount"},
    {"Class", Text, "class tag"},
    {"Cleared", Flag, "reconciled on a statement"},
    {"Paid", Flag, "an invoice or bill row is settled"},
    {"PaidBy", Text, "TransNum values that paid this row, each followed by \";\""},
    {"AmountReceived", Money, "amount received so far on an invoice"},
    {"SourceName", Text, "item or sub-entry that produced the row"},
    {"Item", Text, "ItemName of an item row"},
    {"ItemDescription", Text, "line description"},
    {"Qty", Double, "quantity of an item or of pay units"},
    {"SalePrice", Money, "unit price"},
    {"ExactRate", Double, "rate of a tax row, where four decimals of SalePrice do not hold it"},
    {"Taxable", Flag, "sales-tax mark of an invoice row"},
    {"Terms", Text, "payment terms"},
    {"DueDate", Date, "bill due date"},
    {"PONum", Text, "customer's purchase order number"},
    {"ShipDate", Date, "ship date"},
    {"FOB", Text, "free-on-board text"},
    {"Via", Text, "shipping method"},
    {"Rep", Text, "sales representative"},
    {"PayMethod", Text, "payment method"},
    {"PaidThrough", Date, "liability paid through this date"},
    {"SSNum", Text, "employee key of a payroll row"},
    {"PayrollItem", Text, "payroll item of a payroll row"},
    {"PayPeriod", Text, "pay period of a paycheck"},
    {"Hours", Double, "hours of a pay row"},
};

constexpr FieldDef Accounts_fields[] = {
    {"CatID", Text, "internal key: AR1, AP1, UF1, RE1, OE1 or a number followed by SS"},
    {"AccountName", Text, "display name"},
    {"AccountType", Text, "one of the AccountTypes"},
    {"AccountNum", Text, "user's account number"},
    {"Description", Text, "free description"},
    {"ParentAccount", Text, "CatID of the parent category, empty at top level"},
    {"Dormant", Flag, "hidden from pick lists"},
    {"Balance", Money, "balance as last recomputed", true},
    {"LastYearEndBal", Money, "balance at the end of last year; null when unset", true},
    {"OpeningDate", Date, "date of the opening balance"},
};
constexpr IndexDef Accounts_indexes[] = {{"CatID", "CatID"}, {"AccountName", "AccountName"}, {"Name", "AccountName"}};

constexpr FieldDef Customers_fields[] = {
    {"Name", Text, "key"},
    {"ParentName", Text, "parent customer of a job, empty at the top"},
    {"BillingAddress", Text, "bill-to block"},
    {"ShippingAddress", Text, "ship-to block"},
    {"Contact", Text, "contact person"},
    {"AltContact", Text, "second contact"},
    {"Phone", Text, "telephone"},
    {"AltPhone", Text, "second telephone"},
    {"FaxPhone", Text, "fax"},
    {"EmailAddress", Text, "electronic mail"},
    {"AccountNum", Text, "our number with the customer"},
    {"RepName", Text, "sales representative"},
    {"Notes", Memo, "free notes"},
    {"Balance", Money, "open receivables as last recomputed", true},
    {"Dormant", Flag, "hidden from pick lists"},
};
constexpr IndexDef Customers_indexes[] = {{"Company", "Name"}};

constexpr FieldDef Vendors_fields[] = {
    {"Name", Text, "key"},
    {"Type", Text, "vendor type"},
    {"CheckPrint", Text, "name printed on the check"},
    {"Address", Text, "address block of older files"},
    {"ShippingAddress", Text, "the one address of a vendor"},
    {"Contact", Text, "contact person"},
    {"Phone", Text, "telephone"},
    {"AltPhone", Text, "second telephone"},
    {"FaxPhone", Text, "fax"},
    {"EmailAddress", Text, "electronic mail"},
    {"AccountNum", Text, "our number with the vendor"},
    {"Notes", Memo, "free notes"},
    {"TaxID", Text, "tax number"},
    {"Terms", Text, "payment terms"},
    {"1099Cat", Text, "CatID whose payments a 1099 reports"},
    {"1099MISC", Flag, "true for 1099-MISC, false for 1099-INT"},
    {"Boxes", Text, "1099 box names, each followed by \",\", closed by \";\""},
    {"Eligible1099", Flag, "gets a 1099"},
    {"Balance", Money, "open bills as last recomputed", true},
    {"Dormant", Flag, "hidden from pick lists"},
};
constexpr IndexDef Vendors_indexes[] = {{"Vendor", "Name"}};

constexpr FieldDef Items_fields[] = {
    {"ItemName", Text, "key"},
    {"ItemType", Text, "one of the ItemTypes"},
    {"ParentItem", Text, "parent's name, empty at top level"},
    {"Description", Text, "sales description"},
    {"InvPurchaseDesc", Text, "purchase description of an inventory part"},
    {"ItemCat", Text, "CatID of the income category; of the liability for \"Sales Tax\""},
    {"COGScat", Text, "CatID of the cost of goods category"},
    {"InvAsset", Text, "CatID of the stock's asset category"},
    {"InvVendor", Text, "preferred vendor"},
    {"TaxVendor", Text, "agency of a sales tax"},
    {"PayTo", Text, "CatID that a \"Payment\" item deposits to"},
    {"PayMethod", Text, "payment method of a \"Payment\" item"},
    {"PriceRate", Money, "price, or rate of a tax or discount"},
    {"ExactRate", Double, "a rate as it was typed, where four decimals of PriceRate do not hold it"},
    {"Cost", Money, "purchase cost"},
    {"TotalValue", Money, "value of the stock"},
    {"InitialQty", Double, "opening quantity"},
    {"StockQty", Double, "quantity on hand"},
    {"ReorderQty", Double, "reorder point"},
    {"InvTaxable", Flag, "sales tax applies"},
    {"Dormant", Flag, "hidden from pick lists"},
    {"InvDate", Date, "day of the opening quantity"},
};
constexpr IndexDef Items_indexes[] = {{"Item", "ItemName"}};

constexpr FieldDef ItemGroups_fields[] = {
    {"GroupName", Text, "ItemName of the group"},
    {"Item", Text, "ItemName of the member"},
    {"Description", Text, "line description"},
    {"Qty", Double, "quantity of the member"},
};
constexpr IndexDef ItemGroups_indexes[] = {{"GroupName", "GroupName"}};

constexpr FieldDef Employees_fields[] = {
    {"SSNum", Text, "Social Security number, the key"},
    {"Name", Text, "full name"},
    {"Prefix", Text, "title"},
    {"Initials", Text, "initials"},
    {"PrintAs", Text, "name printed on checks"},
    {"AcctNum", Text, "account number"},
    {"AddressOne", Text, "first address line"},
    {"AddressTwo", Text, "second address line"},
    {"City", Text, "city"},
    {"State", Text, "two-letter state"},
    {"Zip", Text, "postal code"},
    {"Phone", Text, "telephone"},
    {"AltPhone", Text, "second telephone"},
    {"Notes", Memo, "free notes"},
    {"Type", Text, "employee type"},
    {"Class", Text, "class tag"},
    {"PayPeriod", Text, "pay frequency"},
    {"FedStatus", Text, "federal filing status"},
    {"StateStatus", Text, "state filing status"},
    {"StateWorked", Text, "two-letter state"},
    {"StateLived", Text, "two-letter state"},
    {"Cust1", Text, "first free field"},
    {"Cust2", Text, "second free field"},
    {"Cust3", Text, "third free field"},
    {"Cust4", Text, "fourth free field"},
    {"FedAllow", Long, "federal allowances"},
    {"StateAllow", Long, "state allowances"},
    {"FedWithHolding", Money, "extra federal withholding per check"},
    {"StateWithHolding", Money, "extra state withholding"},
    {"HireDate", Date, "hired on"},
    {"ReleaseDate", Date, "released on; null while employed"},
    {"SickDateStart", Date, "day SickHoursStart stands for"},
    {"VacDateStart", Date, "day VacHoursStart stands for"},
    {"SSHold", Flag, "withhold Social Security"},
    {"MedicareHold", Flag, "withhold Medicare"},
    {"FUTAHold", Flag, "subject to federal unemployment"},
    {"SUIHold", Flag, "subject to state unemployment"},
    {"EICHold", Flag, "earned income credit"},
    {"ResetSick", Flag, "sick hours start anew each year"},
    {"ResetVac", Flag, "vacation hours start anew each year"},
    {"SickHoursStart", Double, "sick hours available"},
    {"VacHoursStart", Double, "vacation hours available"},
    {"SickHoursPerPeriod", Double, "sick hours accrued per period"},
    {"VacHoursPerPeriod", Double, "vacation hours accrued per period"},
    {"MaxSick", Double, "most sick hours"},
    {"MaxVac", Double, "most vacation hours"},
    {"AccurPayPeriodSick", Integer, "sick hours accrue: state of the option"},
    {"AccurPayPeriodVac", Integer, "vacation hours accrue: state of the option"},
};
constexpr IndexDef Employees_indexes[] = {{"SSNum", "SSNum"}, {"Name", "Name"}};

constexpr FieldDef EmployeeEarnings_fields[] = {
    {"SSNum", Text, "employee; \"000\" is the template"},
    {"Wage", Text, "payroll item of type \"Wage\""},
    {"Rate", Money, "annual salary or hourly rate"},
};
constexpr IndexDef EmployeeEarnings_indexes[] = {{"SSNum", "SSNum"}};

constexpr FieldDef EmployeeAdjustments_fields[] = {
    {"SSNum", Text, "employee; \"000\" is the template"},
    {"Adjustment", Text, "payroll item"},
    {"AmountRate", Text, "amount, or percentage ending in \"%\""},
    {"Limit", Text, "annual limit"},
};
constexpr IndexDef EmployeeAdjustments_indexes[] = {{"SSNum", "SSNum"}};

constexpr FieldDef EmployeeTaxes_fields[] = {
    {"SSNum", Text, "employee; \"000\" is the template"},
    {"Tax", Text, "payroll item of type \"Other Tax\""},
    {"AmountRate", Text, "amount, or percentage ending in \"%\""},
    {"Limit", Text, "annual limit"},
};
constexpr IndexDef EmployeeTaxes_indexes[] = {{"SSNum", "SSNum"}};

constexpr FieldDef PayrollItems_fields[] = {
    {"Name", Text, "key"},
    {"Type", Text, "Wage, Commision, Addition, Deduction, Company Contribution, Federal Tax, State Tax or Other Tax"},
    {"TaxType", Text, "kind of a federal or state tax"},
    {"PayCal", Text, "\"Gross\" or \"Net\""},
    {"PayStyle", Text, "wages: \"Regular\", \"Sick\" or \"Vacation\""},
    {"PayType", Text, "wages: \"Salary\" or \"Hourly\""},
    {"TrackingType", Text, "tax tracking type"},
    {"SState", Text, "two-letter state of a state tax"},
    {"LiabilityAcct", Text, "CatID of the liability category, or empty"},
    {"ExpenseAcct", Text, "CatID of the expense category, or empty"},
    {"LiabilityAgency", Text, "vendor the liability is paid to"},
    {"LiabilityNumber", Text, "our number with the agency"},
    {"DefaultRate", Text, "amount, or percentage ending in \"%\""},
    {"DefaultLimit", Money, "annual limit; wage base of an unemployment tax"},
    {"UnempTaxRate", Text, "unemployment rate: a fraction, or percentage ending in \"%\""},
    {"WFRate", Double, "workforce fee within UnempTaxRate, as a fraction"},
    {"TaxPaid", Text, "\"Employee Paid Tax\" or \"Employer Paid Tax\""},
    {"QuantityBased", Flag, "rate times quantity"},
    {"FUTACredit", Flag, "counts toward the federal unemployment credit"},
};
constexpr IndexDef PayrollItems_indexes[] = {{"Name", "Name"}, {"Type", "Type"}, {"State", "SState"}};

constexpr FieldDef PreTaxTable_fields[] = {
    {"Name", Text, "addition, deduction or company contribution"},
    {"TaxName", Text, "tax item"},
    {"Selected", Flag, "ticked"},
    {"Gross", Money, "not used by the program"},
    {"AmountOver", Money, "not used by the program"},
    {"AmountUnder", Money, "not used by the program"},
    {"Percentage", Double, "not used by the program"},
    {"BaseAmount", Money, "not used by the program"},
    {"Rate", Double, "not used by the program"},
    {"AllowConstant", Money, "not used by the program"},
    {"StandardDeduc", Money, "not used by the program"},
};
constexpr IndexDef PreTaxTable_indexes[] = {{"Name", "Name"}};

constexpr FieldDef PreWageTable_fields[] = {
    {"Name", Text, "tax item"},
    {"WageName", Text, "wage item or addition"},
    {"Wage", Text, "not used by the program"},
    {"Selected", Flag, "ticked"},
};
constexpr IndexDef PreWageTable_indexes[] = {{"Name", "Name"}};

constexpr FieldDef PreDeducTable_fields[] = {
    {"Name", Text, "tax item"},
    {"DeducName", Text, "deduction"},
    {"PreDeduc", Text, "not used by the program"},
    {"Selected", Flag, "ticked"},
};
constexpr IndexDef PreDeducTable_indexes[] = {{"Name", "Name"}};

constexpr FieldDef PreTaxSet_fields[] = {
    {"PreTax", Text, "tax item"},
    {"Default", Flag, "tick offered"},
};
constexpr IndexDef PreTaxSet_indexes[] = {{"PreTax", "PreTax"}};

constexpr FieldDef PreWageSet_fields[] = {
    {"Wage", Text, "wage item or addition"},
    {"Default", Flag, "tick offered"},
};
constexpr IndexDef PreWageSet_indexes[] = {{"Wage", "Wage"}};

constexpr FieldDef PreDeducSet_fields[] = {
    {"PreDeduc", Text, "deduction"},
    {"Default", Flag, "tick offered"},
};
constexpr IndexDef PreDeducSet_indexes[] = {{"PreDeduc", "PreDeduc"}};

constexpr FieldDef PayHistory_fields[] = {
    {"Employee", Text, "employee's name"},
    {"PayPeriod", Text, "pay frequency"},
    {"PayEndDate", Date, "last day of the period"},
    {"PayCheckDate", Date, "date of the check"},
    {"Paid", Text, "\"Yes\" or \"No\""},
};
constexpr IndexDef PayHistory_indexes[] = {{"EndDate", "PayEndDate"}};

constexpr FieldDef Time_fields[] = {
    {"SSNum", Text, "employee"},
    {"PayrollItem", Text, "wage item the hours go to"},
    {"Customer", Text, "customer, or empty"},
    {"Item", Text, "item, or empty"},
    {"Class", Text, "class tag, or empty"},
    {"Notes", Text, "notes, or empty"},
    {"DayOne", Double, "hours of the first day of the week"},
    {"DayTwo", Double, "hours of the second day"},
    {"DayThree", Double, "hours of the third day"},
    {"DayFour", Double, "hours of the fourth day"},
    {"DayFive", Double, "hours of the fifth day"},
    {"DaySix", Double, "hours of the sixth day"},
    {"DaySeven", Double, "hours of the seventh day"},
};
constexpr IndexDef Time_indexes[] = {{"SSNum", "SSNum"}};

constexpr FieldDef Budget_fields[] = {
    {"Category", Text, "CatID"},
    {"Year", Integer, "four-digit year"},
    {"Month", Integer, "1 to 12"},
    {"Amount", Money, "planned amount"},
};

constexpr FieldDef RepeatTrans_fields[] = {
    {"Name", Text, "key"},
    {"TransactionID", Long, "TransNum to clone"},
    {"Type", Text, "\"Invoice\", \"Check\" or \"Bill\""},
    {"SourceCat", Text, "CatID shown in the list"},
    {"Amount", Money, "total when the repeat was made"},
    {"Frequency", Text, "how often"},
    {"NextDate", Date, "date of the next clone"},
    {"AnchorDay", Integer, "day of the month that was chosen: after 2/28 comes 3/31"},
    {"AdvDays", Integer, "days ahead of NextDate that the clone is made"},
    {"NumRemain", Integer, "clones left; null for no limit"},
};
constexpr IndexDef RepeatTrans_indexes[] = {{"Name", "Name"}};

constexpr FieldDef POs_fields[] = {
    {"Index", Long, "key and walk order"},
    {"Open", Flag, "not yet turned into a transaction"},
    {"Vendor", Text, "vendor"},
    {"VendorAddress", Text, "address block"},
    {"PONumber", Text, "document number"},
    {"Memo", Text, "memo"},
    {"Date", Date, "document date"},
    {"Total", Money, "total of the lines"},
    {"TakenBy", Long, "TransNum of what it was turned into"},
};
constexpr IndexDef POs_indexes[] = {{"Index", "Index"}};

constexpr FieldDef POItems_fields[] = {
    {"POIndex", Long, "Index of the purchase order"},
    {"Item", Text, "ItemName"},
    {"Description", Text, "line description"},
    {"Qty", Double, "quantity"},
    {"Rate", Money, "price"},
    {"Amount", Money, "line total"},
};
constexpr IndexDef POItems_indexes[] = {{"Index", "POIndex"}};

constexpr FieldDef PSlips_fields[] = {
    {"Index", Long, "key and walk order"},
    {"Open", Flag, "not yet turned into a transaction"},
    {"Vendor", Text, "customer"},
    {"VendorAddress", Text, "address block"},
    {"PONumber", Text, "document number"},
    {"Memo", Text, "memo"},
    {"Date", Date, "document date"},
    {"Total", Money, "total of the lines"},
    {"TakenBy", Long, "TransNum of what it was turned into"},
};
constexpr IndexDef PSlips_indexes[] = {{"Index", "Index"}};

constexpr FieldDef PSlipItems_fields[] = {
    {"POIndex", Long, "Index of the package slip"},
    {"Item", Text, "ItemName"},
    {"Description", Text, "line description"},
    {"Qty", Double, "quantity"},
    {"Rate", Money, "price"},
    {"Amount", Money, "line total"},
};
constexpr IndexDef PSlipItems_indexes[] = {{"Index", "POIndex"}};

constexpr FieldDef Estimates_fields[] = {
    {"Index", Long, "key and walk order"},
    {"Open", Flag, "not yet turned into a transaction"},
    {"Customer", Text, "customer"},
    {"CustomerAddress", Text, "address block"},
    {"EstimateNumber", Text, "document number"},
    {"Memo", Text, "memo"},
    {"Date", Date, "document date"},
    {"Total", Money, "total of the lines"},
    {"TakenBy", Long, "TransNum of what it was turned into"},
};
constexpr IndexDef Estimates_indexes[] = {{"Index", "Index"}};

constexpr FieldDef EstItems_fields[] = {
    {"EstimateIndex", Long, "Index of the estimate"},
    {"Item", Text, "ItemName"},
    {"Description", Text, "line description"},
    {"Qty", Double, "quantity"},
    {"Rate", Money, "price"},
    {"Amount", Money, "line total"},
};
constexpr IndexDef EstItems_indexes[] = {{"Index", "EstimateIndex"}};

constexpr FieldDef SavedReports_fields[] = {
    {"ReportName", Text, "key"},
    {"Item", Text, "category, item, customer or vendor reported on"},
    {"Parent", Text, "key of the report it was saved from"},
    {"DateRange", Text, "one of the preset ranges, or null"},
    {"Class", Text, "class tag"},
    {"Fields", Text, "columns, each followed by \",\""},
};
constexpr IndexDef SavedReports_indexes[] = {{"ReportName", "ReportName"}};

constexpr FieldDef CompanyInfo_fields[] = {
    {"Name", Text, "company name"},
    {"Address", Text, "address block"},
    {"LegalName", Text, "legal name"},
    {"LegalAddress", Text, "legal street address"},
    {"LegalCity", Text, "legal city"},
    {"LegalState", Text, "legal state"},
    {"LegalZip", Text, "legal postal code"},
    {"FedID", Text, "federal employer number"},
    {"Password", Text, "salted hash; empty for none"},
    {"UserMode", Text, "\"Single\" or \"Multi\""},
    {"FiscalMonth", Text, "first month of the fiscal year"},
    {"TaxMonth", Text, "first month of the tax year"},
    {"Memo", Text, "memo"},
    {"Cust1", Text, "caption of the employees' first free field"},
    {"Cust2", Text, "caption of the second"},
    {"Cust3", Text, "caption of the third"},
    {"Cust4", Text, "caption of the fourth"},
};

constexpr FieldDef Users_fields[] = {
    {"UserName", Text, "key; \"Admin\" is the administrator"},
    {"Password", Text, "salted hash; empty for none"},
    {"AR", Flag, "may use receivables"},
    {"AP", Flag, "may use payables"},
    {"BankCC", Flag, "may use banking and credit cards"},
    {"Inventory", Flag, "may use inventory"},
    {"Payroll", Flag, "may use payroll"},
};
constexpr IndexDef Users_indexes[] = {{"UserName", "UserName"}};

constexpr FieldDef GeneralPrefs_fields[] = {
    {"Preference", Text, "key"},
    {"State", Text, "value"},
};
constexpr IndexDef GeneralPrefs_indexes[] = {{"Preference", "Preference"}};

constexpr FieldDef Colors_fields[] = {
    {"Items", Text, "key"},
    {"Color", Long, "red + 256 * green + 65536 * blue"},
};
constexpr IndexDef Colors_indexes[] = {{"Items", "Items"}};

constexpr FieldDef Class_fields[] = {
    {"Class", Text, "key"},
};
constexpr IndexDef Class_indexes[] = {{"Class", "Class"}};

constexpr FieldDef Terms_fields[] = {
    {"Term", Text, "key"},
    {"Days", Integer, "days until due"},
};
constexpr IndexDef Terms_indexes[] = {{"Term", "Term"}};

constexpr FieldDef PaymentMethod_fields[] = {
    {"Method", Text, "key"},
};
constexpr IndexDef PaymentMethod_indexes[] = {{"Method", "Method"}};

constexpr FieldDef VIA_fields[] = {
    {"Method", Text, "key"},
};
constexpr IndexDef VIA_indexes[] = {{"Method", "Method"}};

constexpr FieldDef RepNames_fields[] = {
    {"Name", Text, "key"},
};
constexpr IndexDef RepNames_indexes[] = {{"Name", "Name"}};

constexpr FieldDef OtherNames_fields[] = {
    {"Name", Text, "key"},
};
constexpr IndexDef OtherNames_indexes[] = {{"Name", "Name"}};

constexpr FieldDef CustomerMessages_fields[] = {
    {"Message", Text, "key"},
};
constexpr IndexDef CustomerMessages_indexes[] = {{"Message", "Message"}};

constexpr FieldDef Applied_fields[] = {
    {"Payment", Long, "TransNum of what paid: a check, a payment, a credit, a deposit"},
    {"Document", Long, "TransNum of what it paid: a bill, an invoice, a statement"},
    {"Amount", Money, "how much of it, more than nothing"},
};

constexpr FieldDef Marks_fields[] = {
    {"Name", Text, "what the mark is of: \"TransNum\", \"CatID\" and so on", true},
    {"Value", Long, "the highest number ever given, or the action as of which figures were worked out", true},
};

constexpr TableDef tables[] = {
    {"Transactions", "general ledger and every sub-ledger: one row posts to one category", Transactions_fields, {}},
    {"Accounts", "categories: the chart of accounts", Accounts_fields, Accounts_indexes},
    {"Customers", "customers and their jobs", Customers_fields, Customers_indexes},
    {"Vendors", "vendors", Vendors_fields, Vendors_indexes},
    {"Items", "what is bought and sold", Items_fields, Items_indexes},
    {"ItemGroups", "lines of the \"Group\" items", ItemGroups_fields, ItemGroups_indexes},
    {"Employees", "employees", Employees_fields, Employees_indexes},
    {"EmployeeEarnings", "wages of an employee", EmployeeEarnings_fields, EmployeeEarnings_indexes},
    {"EmployeeAdjustments", "additions, deductions and contributions of an employee", EmployeeAdjustments_fields,
     EmployeeAdjustments_indexes},
    {"EmployeeTaxes", "other taxes of an employee", EmployeeTaxes_fields, EmployeeTaxes_indexes},
    {"PayrollItems", "everything that can stand on a paycheck", PayrollItems_fields, PayrollItems_indexes},
    {"PreTaxTable", "which adjustment moves the base of which tax", PreTaxTable_fields, PreTaxTable_indexes},
    {"PreWageTable", "which pay counts as compensation for which tax", PreWageTable_fields, PreWageTable_indexes},
    {"PreDeducTable", "which deduction comes off before which tax", PreDeducTable_fields, PreDeducTable_indexes},
    {"PreTaxSet", "taxes offered to new adjustments", PreTaxSet_fields, PreTaxSet_indexes},
    {"PreWageSet", "pay offered to new taxes", PreWageSet_fields, PreWageSet_indexes},
    {"PreDeducSet", "deductions offered to new taxes", PreDeducSet_fields, PreDeducSet_indexes},
    {"PayHistory", "pay periods opened and paid, one row per employee and period end", PayHistory_fields,
     PayHistory_indexes},
    {"Time", "time sheet of one week, the table's name ending in its first day as yyyymmdd", Time_fields, Time_indexes,
     true},
    {"Budget", "planned amount of a category in a month", Budget_fields, {}},
    {"RepeatTrans", "repeated transactions", RepeatTrans_fields, RepeatTrans_indexes},
    {"POs", "purchase orders", POs_fields, POs_indexes},
    {"POItems", "lines of purchase orders", POItems_fields, POItems_indexes},
    {"PSlips", "package slips", PSlips_fields, PSlips_indexes},
    {"PSlipItems", "lines of package slips", PSlipItems_fields, PSlipItems_indexes},
    {"Estimates", "estimates", Estimates_fields, Estimates_indexes},
    {"EstItems", "lines of estimates", EstItems_fields, EstItems_indexes},
    {"SavedReports", "transaction reports kept under a name", SavedReports_fields, SavedReports_indexes},
    {"CompanyInfo", "the company itself: exactly one row", CompanyInfo_fields, {}},
    {"Users", "who may log in, and to which parts", Users_fields, Users_indexes},
    {"GeneralPrefs", "preferences, one row per key", GeneralPrefs_fields, GeneralPrefs_indexes},
    {"Colors", "window backgrounds, one row per key", Colors_fields, Colors_indexes},
    {"Class", "classes", Class_fields, Class_indexes},
    {"Terms", "payment terms", Terms_fields, Terms_indexes},
    {"PaymentMethod", "payment methods", PaymentMethod_fields, PaymentMethod_indexes},
    {"VIA", "shipping methods", VIA_fields, VIA_indexes},
    {"RepNames", "sales representatives", RepNames_fields, RepNames_indexes},
    {"OtherNames", "payees that are neither customer, vendor nor employee", OtherNames_fields, OtherNames_indexes},
    {"CustomerMessages", "messages offered on invoices", CustomerMessages_fields, CustomerMessages_indexes},
    {"Applied", "what each payment settled of which document, in the order of payment", Applied_fields, {}},
    {"Marks", "how far numbers were given and figures worked out; no part of the history", Marks_fields, {}},
};

}  // namespace

std::span<const TableDef> company_tables() { return tables; }

}  // namespace tallymere
