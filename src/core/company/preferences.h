#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/store/database.h"

/// What the company chose: the one door to GeneralPrefs and Colors.
namespace tallymere {

namespace preference {
inline constexpr std::string_view DefaultBank = "DefaultBank";        ///< a CatID
inline constexpr std::string_view FinanceCat = "FinanceCat";          ///< a CatID
inline constexpr std::string_view FinanceAPR = "FinanceAPR";          ///< a number, with or without "%"
inline constexpr std::string_view Feed = "Feed";                      ///< "Single Sheet", "Continuous Sheets"
inline constexpr std::string_view SalesBase = "SalesBase";            ///< "Cash", "Accural", so spelt
inline constexpr std::string_view ToolBarVisible = "ToolBarVisible";  ///< "Yes", "No"
inline constexpr std::string_view InvoiceStyle = "InvoiceStyle";      ///< "Professional", "Product", "Service"
inline constexpr std::string_view PrintInvoice =
    "PrintInvoice";                                       ///< "BlankBox", "PrePrinted", "BlankNoBox", "Letterhead"
inline constexpr std::string_view FirstDay = "FirstDay";  ///< "Sunday" to "Saturday"
inline constexpr std::string_view PayrollPosting = "PayrollPosting";  ///< "Plain", "Balanced"; "" is Plain
inline constexpr std::string_view LogoPath = "LogoPath";
inline constexpr std::string_view Style = "Style";              ///< of printed checks: "Original", "Custom"
inline constexpr std::string_view ClosingDate = "ClosingDate";  ///< yyyy-mm-dd, or "": see core/ledger/gate.h
inline constexpr std::string_view ItemSort = "ItemSort";        ///< a column's name: "Name"
}  // namespace preference

/// The State of a preference; "" when there is none.
std::string Preference(store::Database& company, std::string_view key);
/// Sets it, and makes its row where that is missing. Inside a Transaction; what is so already is not written.
void Set_Preference(store::Database& company, std::string_view key, std::string_view State);

/// A window's background, red + 256 * green + 65536 * blue; none where the company chose none.
std::optional<int64_t> Background(store::Database& company, std::string_view item);
void Set_Background(store::Database& company, std::string_view item, int64_t color);  ///< likewise

/// Whether sales tax is reckoned on what was paid; any other SalesBase than "Cash" is accrual.
bool Sales_Tax_On_Cash(store::Database& company);

}  // namespace tallymere
