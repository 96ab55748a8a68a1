#include "entry/sales/finance_charge.h"

#include <cstdlib>

#include "core/company/preferences.h"
#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "entry/sales/open_invoices.h"

namespace tallymere {
namespace {

constexpr const char* statement_type = "Statement";
constexpr const char* charge_memo = "Finanace Charge";  // so it stands in every company's books

/// A yearly rate as it was typed.
struct Rate {
  Money yearly;  ///< 18 for "18%"
  bool percent = false;

  explicit Rate(std::string typed) {
    typed = trim(typed);
    percent = typed.ends_with('%');
    if (percent) typed.pop_back();
    yearly = Money::parse(typed).value_or(Money());
  }
  /// What an amount costs in so many days.
  Money of(Money amount, int days) const {
    return amount.times(static_cast<double>(days)).share(yearly, Money::dollars(100 * 365));
  }
};

Money Charge_Of(const Rate& rate, Money balance, const ChargeLine& line) {
  const Money unpaid = balance - line.AmountReceived;
  if (rate.percent) return rate.of(unpaid, line.days);
  return rate.of(unpaid, 1) - line.AmountReceived.times(static_cast<double>(line.days));
}

std::string Known_Category(Session& session, const std::string& CatID) {
  return session.dbCompany->value("SELECT CatID FROM Accounts WHERE CatID = ?", {CatID}).text();
}

void Write(Session& session, const FinanceCharge& charge) {
  Transaction_Writer statement(session, {.Type = statement_type, .Date = charge.Date, .Name = charge.customer});
  statement.add({.Account = accounts_receivable,
                 .Category = charge.FinanceCat,
                 .Debit = charge.amount,
                 .Amount = charge.amount,
                 .Memo = charge_memo});
  statement.add({.Account = charge.FinanceCat,
                 .Category = accounts_receivable,
                 .Credit = charge.amount,
                 .Amount = charge.amount,
                 .Memo = charge_memo});
  statement.commit();
}

std::vector<FinanceCharge> Above_Zero(const std::vector<FinanceCharge>& charges) {
  std::vector<FinanceCharge> due;
  for (const FinanceCharge& charge : charges)
    if (charge.amount > Money()) due.push_back(charge);
  return due;
}

/// Who was charged on that day already, and how much; "" when nobody was.
std::string Charged_That_Day(Session& session, const std::vector<FinanceCharge>& charges) {
  std::vector<std::string> known;
  for (const FinanceCharge& charge : charges)
    session.dbCompany->each(
        "SELECT Amount FROM Transactions WHERE Name = ? AND Type = 'Statement' AND Account = 'AR1' AND Date = ?",
        {charge.customer, charge.Date},
        [&](const store::Row& row) { known.push_back(charge.customer + " " + Dollar_Text(row.money(0))); });
  return join(known, ", ");
}

/// The customers whose charge is another by now; then nothing was written for anybody.
std::vector<std::string> Enter(Session& session, const std::vector<FinanceCharge>& charges) {
  std::vector<std::string> changed;
  store::Transaction tx(*session.dbCompany,
                        charges.size() == 1 ? "Finance charge, " + charges.front().customer : "Finance charges");
  for (const FinanceCharge& charge : charges) {
    if (Reckon_Finance_Charge(session, charge.customer, charge.Date) != charge)
      changed.push_back(charge.customer);
    else
      Write(session, charge);
  }
  if (changed.empty()) tx.commit();
  return changed;
}

}  // namespace

FinanceCharge Reckon_Finance_Charge(Session& session, const std::string& customer, Date date) {
  store::Database& db = *session.dbCompany;
  const store::Snapshot moment(db);
  FinanceCharge charge{.customer = customer,
                       .Date = date,
                       .APR = Preference(db, preference::FinanceAPR),
                       .FinanceCat = Known_Category(session, Preference(db, preference::FinanceCat)),
                       .balance = Customer_Balance(session, customer)};
  const Rate rate(charge.APR);
  Money sum;
  auto invoices = Open_Invoices(session, customer);
  for (; !invoices.Eof(); invoices.MoveNext()) {
    const Date day = invoices["Date"].maybe_date().value_or(date);
    ChargeLine line{.Number = invoices["Number"].text(),
                    .Date = day,
                    .days = std::abs(days_between(day, date)),
                    .AmountReceived = invoices["AmountReceived"].money()};
    line.charge = Charge_Of(rate, charge.balance, line);
    sum += line.charge;
    charge.lines.push_back(std::move(line));
  }
  charge.amount = sum.rounded_to_cents();
  return charge;
}

std::vector<FinanceCharge> Reckon_Finance_Charges(Session& session, Date date) {
  const store::Snapshot moment(*session.dbCompany);
  std::vector<FinanceCharge> charges;
  for (const std::string& customer : Customers_Who_Owe(session))
    charges.push_back(Reckon_Finance_Charge(session, customer, date));
  return charges;
}

std::optional<Fault> Statement_Fault(const FinanceCharge& charge, bool shown) {
  if (charge.FinanceCat.empty() || trim(charge.APR).empty())
    return Fault{{"Please Set an Income Category and APR Rate before Creating Statements", "No Settings Made"},
                 "cmdFinance"};
  if (!shown)
    return Fault{{"You Must Print the Statement first, before it will be entered into Tallymere", "No Preview Made"},
                 "cmdPrint"};
  return std::nullopt;
}

bool Post_Statements(Session& session, const std::vector<FinanceCharge>& charges) {
  const auto due = Above_Zero(charges);
  if (due.empty()) {
    session.prompts.box({"There is no finance charge above zero. Nothing is entered.", "No Finance Charge"});
    return true;
  }
  if (const std::string again = Charged_That_Day(session, due);
      !again.empty() && !session.prompts.ask({"A finance charge was entered on " + due.front().Date.to_text() +
                                                  " already. Do you want to enter another one?",
                                              "Second Statement", Icon::Question, again},
                                             Buttons::YesNoDefaultNo))
    return false;
  std::vector<std::string> changed;
  const auto conflict = Save_Or_Conflict([&] { changed = Enter(session, due); });
  if (conflict) session.prompts.box(conflict->box);
  if (!changed.empty())
    session.prompts.box({"What is owed has changed since this was reckoned. Nothing was entered.", "Data has changed",
                         Icon::Information, join(changed, ", ")});
  return !conflict && changed.empty();
}

}  // namespace tallymere
