#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/session.h"

/// New tax tables from the update endpoint: asked for once a month at the start, and by hand.
namespace tallymere {

/// What came of asking for a page.
struct Fetched {
  enum class End { Whole, NoConnection, Stopped };
  End end = End::NoConnection;
  std::string body = {};
  std::string why = {};  ///< in the network's words, when there is no connection
};
/// Gets a page by its URL, whole or not at all, within a time limit. `go_on` is asked several times a second; false ends
/// the waiting.
using Fetch = std::function<Fetched(const std::string& url, const std::function<bool()>& go_on)>;

enum class TaxGroup { Federal, Illinois, Indiana, Minnesota, Missouri, Wisconsin };
struct TaxTablePath {
  TaxGroup group;
  std::string_view path;
  std::string_view table;
};
/// All there is to fetch, in order. The weekly table has always been sent twice.
inline constexpr std::array<TaxTablePath, 17> tax_table_paths = {
    {{TaxGroup::Federal, "AutoUpdate/GetFedAnnual.php", "FedAnnual"},
     {TaxGroup::Federal, "AutoUpdate/GetFedBiWeekly.php", "FedBiWeekly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedDaily.php", "FedDaily"},
     {TaxGroup::Federal, "AutoUpdate/GetFedMonthly.php", "FedMonthly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedQuarterly.php", "FedQuarterly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedSemiAnnual.php", "FedSemiAnnual"},
     {TaxGroup::Federal, "AutoUpdate/GetFedSemiMonthly.php", "FedSemiMonthly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedWeekly.php", "FedWeekly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedWeekly.php", "FedWeekly"},
     {TaxGroup::Federal, "AutoUpdate/GetFedUnRates.php", "FedUnRates"},
     {TaxGroup::Federal, "AutoUpdate/GetFedWA.php", "FedWithholdAllowance"},
     {TaxGroup::Illinois, "AutoUpdate/GetILWithHold.php", "ILWithHold"},
     {TaxGroup::Indiana, "AutoUpdate/GetINWithHoldA.php", "INWithHoldA"},
     {TaxGroup::Indiana, "AutoUpdate/GetINWithHoldB.php", "INWithHoldB"},
     {TaxGroup::Minnesota, "AutoUpdate/GetMNWithHold.php", "MNWithhold"},
     {TaxGroup::Missouri, "AutoUpdate/GetMOWithHold.php", "MOWithhold"},
     {TaxGroup::Wisconsin, "AutoUpdate/GetWIWithHold.php", "WIWithhold"}}};

/// The groups that the index page's number asks for, in order; none for 0 and above 22.
std::vector<TaxGroup> Groups_Of_Code(int code);
/// The index page as a number: -2 when it is empty, 0 when it begins with anything else than a number.
int Code_Of_Index(std::string_view body);

/// The check at the start: at most once a month, and in each new year, which also asks for the balances to be recalculated.
/// Without an update host nothing is asked and nothing is said.
void Check_Updates(Session& session, const Fetch& fetch);

/// What the bar says meanwhile; it is one that can be stopped.
inline constexpr const char* Tax_Update_Label = "Updating Tax Tables";

/// The check by hand, whenever it was last done.
void Update_Tax_Tables(Session& session, const Fetch& fetch);

void Note_Tax_Check(store::Database& accounts, Date today);  ///< sets `Updated`, inside the caller's Transaction

}  // namespace tallymere
