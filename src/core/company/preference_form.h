#pragma once

#include <optional>
#include <string>

#include "core/company/session.h"

namespace tallymere {

/// All that the window of preferences shows, each as it is kept.
struct PreferenceForm {
  std::string PayrollPosting;  ///< "Plain", "Balanced", or "": plain as well
  std::string ToolBarVisible, InvoiceStyle, FirstDay, PrintInvoice, LogoPath, DefaultBank, FinanceAPR, FinanceCat, Feed,
      Style, SalesBase, ItemSort,
      ClosingDate;                       ///< as yyyy-mm-dd, or as it was typed
  std::optional<std::string> logo = {};  ///< a new picture's bytes; nothing: the old one stays
};

PreferenceForm Read_Preferences(Session& session);

/// Writes what differs from `before`, all or nothing: what another user changed meanwhile and this one did not stays. An empty
/// ItemSort, bank or category leaves its key as it was.
std::optional<Fault> Save_Preferences(Session& session, const PreferenceForm& before, const PreferenceForm& now);

}  // namespace tallymere
