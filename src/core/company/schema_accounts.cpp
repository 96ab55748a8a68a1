#include "core/company/schema.h"

// The tables of Accounts.mdb. The order of the fields is also the order in which an update endpoint sends
// them.
namespace tallymere {
namespace {

using enum FieldType;

constexpr FieldDef FedBrackets_fields[] = {
    {"FedStatus", Text, "\"Single\", \"Married\" or \"Don't WithHold\""},
    {"AmountOver", Money, "bottom of the bracket, wage per pay period"},
    {"AmountUnder", Money, "top of the bracket"},
    {"BaseAmount", Money, "tax at the bottom of the bracket"},
    {"Percentage", Double, "rate on the excess, as a fraction"},
};
constexpr IndexDef FedBrackets_indexes[] = {{"MarriedStatus", "FedStatus"}};

constexpr FieldDef FedWithholdAllowance_fields[] = {
    {"PayPeriod", Text, "pay frequency of an employee"},
    {"Amount", Money, "value of one federal allowance in that period"},
    {"Divisor", Long, "pay periods in a year"},
};
constexpr IndexDef FedWithholdAllowance_indexes[] = {{"PayPeriod", "PayPeriod"}};

constexpr FieldDef FedUnRates_fields[] = {
    {"Rate", Double, "federal unemployment rate, as a fraction (an update sends percent)"},
};

// Minnesota and Wisconsin share their layout.
constexpr FieldDef AnnualBrackets_fields[] = {
    {"Status", Text, "filing status"},
    {"AmountOver", Money, "bottom of the bracket, wage per year"},
    {"BaseAmount", Money, "tax at the bottom of the bracket"},
    {"Percentage", Double, "rate on the excess, as a fraction"},
    {"AllowConstant", Money, "annual value of one allowance: off the wage in MN, off the tax in WI"},
};
constexpr FieldDef MOWithhold_fields[] = {
    {"Status", Text, "filing status"},
    {"AmountOver", Money, "bottom of the bracket, wage per year"},
    {"AmountUnder", Money, "top of the bracket"},
    {"Rate", Double, "rate of the bracket, as a fraction"},
    {"AllowConstant", Money, "annual value of one allowance"},
    {"StandardDeduc", Money, "annual standard deduction"},
};
constexpr IndexDef StateBrackets_indexes[] = {{"MarriedStatus", "Status"}};

constexpr FieldDef INWithHoldA_fields[] = {
    {"Allowance", Long, "number of allowances"},
    {"Percentage", Double, "rate, as a fraction"},
    {"Daily", Money, "exemption per day"},
    {"Weekly", Money, "exemption per week"},
    {"BiWeekly", Money, "exemption per two weeks"},
    {"SemiMonthly", Money, "exemption per half month"},
    {"Monthly", Money, "exemption per month"},
    {"Quarterly", Money, "exemption per quarter"},
    {"SemiAnnually", Money, "exemption per half year"},
    {"Annually", Money, "exemption per year"},
};
constexpr FieldDef INWithHoldB_fields[] = {
    {"Allowance", Text, "filing status"},
    {"Daily", Money, "additional exemption per day"},
    {"Weekly", Money, "additional exemption per week"},
    {"BiWeekly", Money, "additional exemption per two weeks"},
    {"SemiMonthly", Money, "additional exemption per half month"},
    {"Monthly", Money, "additional exemption per month"},
    {"Quarterly", Money, "additional exemption per quarter"},
    {"SemiAnnually", Money, "additional exemption per half year"},
    {"Annually", Money, "additional exemption per year"},
};
constexpr IndexDef Allowance_indexes[] = {{"Allowance", "Allowance"}};

constexpr FieldDef ILWithHold_fields[] = {
    {"Percentage", Double, "rate, as a fraction"},
    {"Line1Exempt", Money, "annual exemption per allowance of line 1"},
    {"Line2Exempt", Money, "annual exemption per allowance of line 2"},
};

constexpr FieldDef Type_fields[] = {{"Type", Text, "key"}};
constexpr IndexDef Type_indexes[] = {{"Type", "Type"}};

constexpr FieldDef Threshold_fields[] = {
    {"Box", Text, "1099 box"},
    {"Thresh", Money, "least yearly payment that is reported"},
};
constexpr IndexDef Threshold_indexes[] = {{"Box", "Box"}};

constexpr FieldDef Settings_fields[] = {
    {"Updated", Date, "day the tax tables were last checked"},
    {"UpdateHost", Text, "host of the update endpoint; empty: none, nothing is asked"},
};

constexpr TableDef tables[] = {
    {"FedDaily", "federal withholding, daily pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedWeekly", "federal withholding, weekly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedBiWeekly", "federal withholding, pay every two weeks", FedBrackets_fields, FedBrackets_indexes},
    {"FedSemiMonthly", "federal withholding, half-monthly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedMonthly", "federal withholding, monthly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedQuarterly", "federal withholding, quarterly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedSemiAnnual", "federal withholding, half-yearly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedAnnual", "federal withholding, yearly pay", FedBrackets_fields, FedBrackets_indexes},
    {"FedWithholdAllowance", "federal allowance by pay frequency", FedWithholdAllowance_fields,
     FedWithholdAllowance_indexes},
    {"FedUnRates", "federal unemployment rates offered", FedUnRates_fields, {}},
    {"MNWithhold", "Minnesota withholding", AnnualBrackets_fields, StateBrackets_indexes},
    {"WIWithhold", "Wisconsin withholding", AnnualBrackets_fields, StateBrackets_indexes},
    {"MOWithhold", "Missouri withholding", MOWithhold_fields, StateBrackets_indexes},
    {"INWithHoldA", "Indiana withholding by allowances", INWithHoldA_fields, Allowance_indexes},
    {"INWithHoldB", "Indiana withholding by filing status", INWithHoldB_fields, Allowance_indexes},
    {"ILWithHold", "Illinois withholding: one row", ILWithHold_fields, {}},
    {"TaxTracking", "tax tracking types of payroll items", Type_fields, Type_indexes},
    {"Threshold", "1099 thresholds", Threshold_fields, Threshold_indexes},
    {"AccountTypes", "category types, in display order", Type_fields, {}},
    {"ItemTypes", "item types, in display order", Type_fields, {}},
    {"Settings", "the installation's own settings: one row", Settings_fields, {}},
};

}  // namespace

std::span<const TableDef> accounts_tables() { return tables; }

}  // namespace tallymere
