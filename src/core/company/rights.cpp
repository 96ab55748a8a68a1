#include "core/company/rights.h"

#include <array>

namespace tallymere {
namespace {

using enum CommandRight::Property;
enum class Group { Administration, AR, AP, BankCC, Inventory, Payroll };

struct Row {
  Group group;
  std::string_view name;
  CommandRight::Property property = Visible;
};

constexpr std::array rows = {
    Row{Group::Administration, "mnuUsers"},
    Row{Group::Administration, "mnuPrefrences"},
    Row{Group::Administration, "mnuPL"},
    Row{Group::Administration, "mnuBalance"},
    Row{Group::Administration, "mnnuPrint1099"},
    Row{Group::Administration, "mnuBudgetSetup"},
    Row{Group::Administration, "mnuBudget"},
    Row{Group::Administration, "mnuImport"},
    Row{Group::Administration, "lin"},
    Row{Group::Administration, "mnuJournal"},
    Row{Group::Administration, "mnuFind"},
    Row{Group::Administration, "mnuSales"},
    Row{Group::Administration, "mnuTransaction"},
    Row{Group::Administration, "mnuClassList"},
    Row{Group::Administration, "mnuOtherNames"},
    Row{Group::Administration, "mnuRepeatList"},
    Row{Group::Administration, "mnuReportLists"},
    Row{Group::Administration, "mnuSavedReports"},
    Row{Group::Administration, "mnuSwitchMode", Enabled},
    Row{Group::Administration, "mnuRestore", Enabled},
    Row{Group::Administration, "mnuCompany", Enabled},
    Row{Group::AR, "mnuInvoices"},
    Row{Group::AR, "mnuPO"},
    Row{Group::AR, "mnuPS"},
    Row{Group::AR, "mnuCreateEstimate"},
    Row{Group::AR, "mnuAR"},
    Row{Group::AR, "mnuCustomers"},
    Row{Group::AR, "mnuCusMes"},
    Row{Group::AR, "btnInvoices"},
    Row{Group::AR, "btnCustomers"},
    Row{Group::AP, "mnuBill"},
    Row{Group::AP, "mnuAP"},
    Row{Group::AP, "mnuVendors"},
    Row{Group::AP, "btnBills"},
    Row{Group::AP, "btnVendors"},
    Row{Group::BankCC, "mnuChecks"},
    Row{Group::BankCC, "mnuPayBill"},
    Row{Group::BankCC, "mnuPayments"},
    Row{Group::BankCC, "mnuDepositFunds"},
    Row{Group::BankCC, "mnuPrint"},
    Row{Group::BankCC, "L99"},
    Row{Group::BankCC, "mnuAccounts", Enabled},
    Row{Group::BankCC, "btnChecks"},
    Row{Group::BankCC, "btnPayments"},
    Row{Group::BankCC, "btnAccounts"},
    Row{Group::Inventory, "mnuInventory"},
    Row{Group::Inventory, "mnuItems"},
    Row{Group::Inventory, "mnuReportsInventory"},
    Row{Group::Inventory, "mnuPaySalesTax"},
    Row{Group::Inventory, "mnuSalesReport"},
    Row{Group::Inventory, "btnItems"},
    Row{Group::Payroll, "mnuPayroll"},
    Row{Group::Payroll, "mnuRPayroll"},
    Row{Group::Payroll, "mnuPayItems"},
    Row{Group::Payroll, "mnuEmployee"},
    Row{Group::Payroll, "btnTime"},
    Row{Group::Payroll, "btnPayRoll"},
};

bool Granted(Group group, std::string_view CurrentUser, const UserFlags& flags) {
  switch (group) {
    case Group::Administration:
      return CurrentUser == Administrator;
    case Group::AR:
      return flags.AR;
    case Group::AP:
      return flags.AP;
    case Group::BankCC:
      return flags.BankCC;
    case Group::Inventory:
      return flags.Inventory;
    case Group::Payroll:
      return flags.Payroll;
  }
  return false;
}

}  // namespace

std::vector<CommandRight> Apply_User_Rights(bool MultiUser, std::string_view CurrentUser, const UserFlags& flags) {
  std::vector<CommandRight> rights;
  for (const Row& row : rows)
    rights.push_back({row.name, row.property, !MultiUser || Granted(row.group, CurrentUser, flags)});
  return rights;
}

bool Is_Granted(std::string_view command, std::string_view CurrentUser, const UserFlags& flags) {
  for (const Row& row : rows)
    if (row.name == command) return Granted(row.group, CurrentUser, flags);
  return true;
}

}  // namespace tallymere
