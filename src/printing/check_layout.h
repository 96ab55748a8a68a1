#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"
#include "printing/layout.h"

/// A check as it is printed: its face, and what it is for on the stubs.
namespace tallymere {

/// Which of the check layouts the company's preferences choose.
std::string Check_Layout(Session& session);

/// The check under this TransNum, filled; after it, sheets with further stubs when it has more lines than two stubs
/// hold. `number` is the check's. Nothing when there is no such check.
std::vector<Layout> Print_it(Session& session, int64_t TransNum, const std::string& number);

/// The name a check is made out to: an employee's PrintAs, a vendor's CheckPrint, or the name itself.
std::string Check_Payee(Session& session, const std::string& Type, const std::string& name);

/// What a payroll item came to for an employee from New Year to `date`; deductions and taxes with their sign turned. An
/// item that stands on a check twice, as an expense and as a liability, counts once.
Money YTD_Item_Total(Session& session, const std::string& item, const std::string& name, Date date);

}  // namespace tallymere
