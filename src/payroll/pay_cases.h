#pragma once

#include <memory>
#include <string>

#include "payroll/calc/calculate.h"

/// Paychecks on paper: a table of cases in, every row of every grid out. For servers and for those who check us.
namespace tallymere {

/// What the cases are calculated by, of a company or of none.
struct PayCaseBooks {
  std::shared_ptr<const PayItems> items;
  std::shared_ptr<const TaxTables> tables;
  PayrollPosting rule = PayrollPosting::Balanced;
};

/// The federal items of a new company, the wages "Salary" and "Hourly", and for MN, WI, MO, IN and IL "MN Withholding" and
/// "MN Unemployment" with the year's rate and limit. `model` is Model.mdb.
PayItems Standard_Items(store::Database& model);

/// Adds items from a table (values/tsv.h) with the fields of PayrollItems and `Ticked`, the taxes whose base the item
/// moves, parted by ";". Throws Tsv_Error.
void Add_Items(PayItems& items, std::string_view text, std::string_view source);

/// `cases` is a table (values/tsv.h). Its fields, in any order, all but Earnings may be missing:
///   case                                          what the case is called in the output; else its number
///   PayPeriod FedStatus FedAllow FedWithHolding   of the employee; "BiWeekly", "Single", 0, 0 when empty
///   StateWorked StateStatus StateAllow StateWithHolding SUIHold       SUIHold is "Yes" or "No"
///   YearEarnings                                  wages of the year before this check
///   Earnings                                      "Salary=1923.08", "Hourly=18.50x80;Overtime=27.75x4"
///   OtherItems                                    "401(k)=4%;Uniform=7.50x2"
///   OtherTaxes                                    "City Tax=1%"
/// The output has the fields case, grid, Name, Rate, Hours, Type, Amount, YTD: the rows of grdEarnings, grdOtherItems,
/// grdEmployee and grdCompany, then rows of the grid "label" (gross, lblNet, net, lblTotal, with the amount), "box" and
/// "note" (what the calculation says) or, for a case that cannot be calculated, one row "fault" with the reason.
/// Throws Tsv_Error for a table that cannot be read.
std::string Calculate_Cases(std::string_view cases, std::string_view source, const PayCaseBooks& books);

}  // namespace tallymere
