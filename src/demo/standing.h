#pragma once

#include "demo/books.h"
#include "demo/purchases.h"
#include "demo/sales.h"

namespace tallymere::demo {

/// Who the company is, and how it likes its windows.
void Write_Company_Info(store::Database& db, const std::string& name);

/// Repeats of an invoice, a check and a bill, saved reports, and this year's budget.
void Write_Standing_Work(Books& books, const Sales& sales, const Purchases& purchases);

}  // namespace tallymere::demo
