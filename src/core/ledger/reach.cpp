#include "core/ledger/reach.h"

#include <algorithm>
#include <array>

#include "core/company/users.h"
#include "core/ledger/balances.h"
#include "core/ledger/undo.h"
#include "core/store/error.h"
#include "core/values/control_characters.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

struct Row {
  std::string_view what;  ///< a Type of the ledger, or a table
  std::string_view command;
};

/// The registers write checks, deposits and entries of their own; Receive Items enters bills, Pay Sales Tax checks.
constexpr std::array types = {
    Row{"Check", "mnuChecks"},       Row{"Check", "mnuAccounts"},         Row{"Liabilitycheck", "mnuPaySalesTax"},
    Row{"Billcheck", "mnuPayBill"},  Row{"Deposit", "mnuDepositFunds"},   Row{"Payment", "mnuPayments"},
    Row{"Invoice", "mnuInvoices"},   Row{"Statement", "mnuInvoices"},     Row{"Finanace Charge", "mnuInvoices"},
    Row{"Bill", "mnuBill"},          Row{"Bill", "mnuInventory"},         Row{"Credit", "mnuBill"},
    Row{"Item Receipt", "mnuBill"},  Row{"Item Receipt", "mnuInventory"}, Row{"Inv Adjust", "mnuInventory"},
    Row{"Paycheck", "mnuPayroll"},   Row{"Liabilitycheck", "mnuPayroll"}, Row{"Liability Adjust", "mnuPayroll"},
    Row{"YTD Adjust", "mnuPayroll"}, Row{"Ledger Entry", "mnuJournal"},   Row{"Ledger Entry", "mnuAccounts"}};

constexpr std::array tables = {Row{"Accounts", "mnuAccounts"},
                               Row{"Customers", "mnuCustomers"},
                               Row{"CustomerMessages", "mnuCusMes"},
                               Row{"Estimates", "mnuCreateEstimate"},
                               Row{"EstItems", "mnuCreateEstimate"},
                               Row{"POs", "mnuPO"},
                               Row{"POItems", "mnuPO"},
                               Row{"PSlips", "mnuPS"},
                               Row{"PSlipItems", "mnuPS"},
                               Row{"Vendors", "mnuVendors"},
                               Row{"Items", "mnuItems"},
                               Row{"Employees", "mnuEmployee"},
                               Row{"PayrollItems", "mnuPayItems"},
                               Row{"Class", "mnuClassList"}};

constexpr int looked_back = 200;  ///< actions among which the one to take back is sought

bool Granted(const std::vector<CommandRight>& rights, std::string_view command) {
  return std::ranges::none_of(rights,
                              [&](const CommandRight& right) { return right.name == command && !right.granted; });
}

template <size_t count>
bool Reached(const std::vector<CommandRight>& rights, const std::array<Row, count>& rows, std::string_view what) {
  bool known = false;
  for (const Row& row : rows) {
    if (!same_text(row.what, what)) continue;
    if (Granted(rights, row.command)) return true;
    known = true;
  }
  return !known && Granted(rights, "mnuJournal");
}

bool Is_Undone(store::Database& db, int64_t number) {
  return db.value("SELECT COUNT(*) FROM History WHERE Undoes = ?", {number}).integer() > 0;
}

}  // namespace

bool Reaches(const std::vector<CommandRight>& rights, std::string_view table, std::string_view Type) {
  return table == "Transactions" ? Reached(rights, types, Type) : Reached(rights, tables, table);
}

std::string Type_Of(store::Database& db, const store::Change& change) {
  for (const auto& cell : change.cells)
    if (cell.field == "Type") return (cell.after.blank() ? cell.before : cell.after).text();
  return db.value("SELECT Type FROM Transactions WHERE RowKey = ?", {change.key}).text();
}

bool Reaches(store::Database& db, const std::vector<CommandRight>& rights, const std::vector<store::Change>& changes) {
  return std::ranges::all_of(changes, [&](const store::Change& change) {
    return Reaches(rights, change.table, change.table == "Transactions" ? Type_Of(db, change) : "");
  });
}

std::vector<CommandRight> Rights_Of(Session& session) {
  const UserFlags flags = session.MultiUser ? Flags_Of(*session.dbCompany, session.CurrentUser) : UserFlags{};
  return Apply_User_Rights(session.MultiUser, session.CurrentUser, flags);
}

bool Is_Upkeep(const std::vector<store::Change>& changes) {
  return std::ranges::all_of(changes, [](const store::Change& change) {
    return change.kind == store::RowChange::Kind::Changed && std::ranges::all_of(change.cells, [](const auto& cell) {
             return cell.field == "Balance" || cell.field == "LastYearEndBal" || cell.before == cell.after;
           });
  });
}

bool Is_Setting(const std::vector<store::Change>& changes) {
  constexpr std::array settings = {"CompanyInfo", "Users", "GeneralPrefs", "Colors"};
  return std::ranges::any_of(changes, [&](const store::Change& change) {
    return std::ranges::find(settings, change.table) != settings.end();
  });
}

std::optional<store::Action> Last_To_Undo(Session& session) {
  store::Database& db = *session.dbCompany;
  const auto rights = Rights_Of(session);
  for (store::Action& action : store::List_Actions(db, looked_back)) {
    if (!action.undoable || action.undoes != 0 || Is_Undone(db, action.number)) continue;
    if (session.MultiUser && action.user != session.acting_user()) continue;
    const auto changes = store::Changes_Of(db, action.number);
    const bool in_ledger =
        std::ranges::any_of(changes, [](const auto& change) { return change.table == "Transactions"; });
    if (in_ledger && Reaches(db, rights, changes)) return std::move(action);
  }
  return std::nullopt;
}

Box Undo_Question(const store::Action& action) {
  return {"Undo \"" + in_one_plain_line(action.what) + "\"?", "Undo", Icon::Question,
          "Entered " + in_one_plain_line(action.at) + " by " + in_one_plain_line(action.user) + "."};
}

std::set<std::string> Take_Back(Session& session, int64_t number) {
  std::set<std::string> tables;
  try {
    Undo_Action(session, number);
  } catch (const store::Error& fault) {
    if (fault.number != store::errors::undo_refused) throw;
    session.prompts.box({"This cannot be undone.", "Undo", Icon::Information, in_one_plain_line(fault.description())});
    return tables;
  }
  for (const store::Change& change : store::Changes_Of(*session.dbCompany, number)) tables.insert(change.table);
  if (tables.contains("Transactions")) {
    Update_Accounts(session);
    tables.insert("Accounts");
  }
  return tables;
}

}  // namespace tallymere
