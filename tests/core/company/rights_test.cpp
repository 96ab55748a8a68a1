#include "core/company/rights.h"

#include <set>

namespace tallymere {
namespace {

using Names = std::set<std::string_view>;

Names Refused(bool MultiUser, std::string_view user, const UserFlags& flags) {
  Names names;
  for (const CommandRight& right : Apply_User_Rights(MultiUser, user, flags))
    if (!right.granted) names.insert(right.name);
  return names;
}

constexpr UserFlags all{};
constexpr UserFlags none{false, false, false, false, false};

TEST(Rights, NothingIsRefusedInSingleUserMode) {
  EXPECT_TRUE(Refused(false, "", none).empty());
  EXPECT_TRUE(Refused(true, "Admin", all).empty());
}

TEST(Rights, OnlyTheExactNameAdminAdministers) {
  const Names refused = Refused(true, "admin", all);
  EXPECT_EQ(refused, Refused(true, "Karen", all));
  EXPECT_EQ(refused.size(), 21u);
  for (const char* name : {"mnuUsers", "mnuSwitchMode", "mnuRestore", "mnuCompany", "mnuImport", "lin", "mnuPL"})
    EXPECT_TRUE(refused.contains(name)) << name;
  EXPECT_FALSE(refused.contains("mnuChecks"));
}

TEST(Rights, EachFlagCarriesItsOwnGroupAlsoForAdmin) {
  const struct {
    UserFlags flags;
    Names refused;
  } cases[] = {
      {{.AR = false},
       {"mnuInvoices", "mnuPO", "mnuPS", "mnuCreateEstimate", "mnuAR", "mnuCustomers", "mnuCusMes", "btnInvoices",
        "btnCustomers"}},
      {{.AP = false}, {"mnuBill", "mnuAP", "mnuVendors", "btnBills", "btnVendors"}},
      {{.BankCC = false},
       {"mnuChecks", "mnuPayBill", "mnuPayments", "mnuDepositFunds", "mnuPrint", "L99", "mnuAccounts", "btnChecks",
        "btnPayments", "btnAccounts"}},
      {{.Inventory = false},
       {"mnuInventory", "mnuItems", "mnuReportsInventory", "mnuPaySalesTax", "mnuSalesReport", "btnItems"}},
      {{.Payroll = false}, {"mnuPayroll", "mnuRPayroll", "mnuPayItems", "mnuEmployee", "btnTime", "btnPayRoll"}},
  };
  for (const auto& test : cases) EXPECT_EQ(Refused(true, "Admin", test.flags), test.refused);
}

TEST(Rights, CategoriesStayVisibleButCannotBeOpenedWithoutBanking) {
  for (const CommandRight& right : Apply_User_Rights(true, "Karen", none)) {
    const bool greyed = right.name == "mnuAccounts" || right.name == "mnuSwitchMode" || right.name == "mnuRestore" ||
                        right.name == "mnuCompany";
    EXPECT_EQ(right.property == CommandRight::Property::Enabled, greyed) << right.name;
  }
}

TEST(Rights, ACommandOutsideTheTableIsEverybodys) {
  EXPECT_TRUE(Is_Granted("mnuAP", "Karen", {.AR = false}));
  EXPECT_FALSE(Is_Granted("mnuAR", "Karen", {.AR = false}));
  EXPECT_FALSE(Is_Granted("mnuReportLists", "Karen", all));
  EXPECT_TRUE(Is_Granted("mnuReportLists", "Admin", none));
  EXPECT_TRUE(Is_Granted("mnuExit", "Karen", none));
}

}  // namespace
}  // namespace tallymere
