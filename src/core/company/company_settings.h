#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/company/passwords.h"
#include "core/company/session.h"

/// What a company says of itself, and the colours it likes its windows in.
namespace tallymere {

inline constexpr std::array<const char*, 12> Month_Names = {"January",   "February", "March",    "April",
                                                            "May",       "June",     "July",     "August",
                                                            "September", "October",  "November", "December"};

struct CompanyInfo {
  std::string Name, Address, LegalName, LegalAddress, LegalCity, LegalState, LegalZip, FedID, FiscalMonth, TaxMonth;
  friend bool operator==(const CompanyInfo&, const CompanyInfo&) = default;
};
CompanyInfo Read_Company_Info(Session& session);
/// Error 3197 when another user has changed what `before` was read from.
std::optional<Fault> Save_Company_Info(Session& session, const CompanyInfo& before, const CompanyInfo& now,
                                       const NewPassword& password);

/// The captions of the employees' four free fields.
using CustomFields = std::array<std::string, 4>;
CustomFields Read_Custom_Fields(Session& session);
void Save_Custom_Fields(Session& session, const CustomFields& captions);

/// A window whose background can be chosen: its key and the words for it.
struct ColoredWindow {
  const char* key;
  const char* caption;
};
inline constexpr std::array<ColoredWindow, 4> Colored_Windows = {{{"MainBack", "Main Display Background:"},
                                                                  {"CheckBack", "Check Background:"},
                                                                  {"BillBack", "Bill Background:"},
                                                                  {"RegBack", "Register Background:"}}};
/// Red + 256 * green + 65536 * blue, in the order of Colored_Windows; white where a company has none.
using WindowColors = std::array<int64_t, Colored_Windows.size()>;
WindowColors Read_Colors(Session& session);
void Save_Colors(Session& session, const WindowColors& colors);

}  // namespace tallymere
