#include "printing/print_queue.h"

#include <algorithm>
#include <charconv>

#include "core/ledger/transaction_writer.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr const char* of_a_check = " AND Type IN ('Check', 'Liabilitycheck', 'Paycheck', 'Billcheck')";
constexpr std::string_view waiting = "Print";

}  // namespace

std::vector<WaitingCheck> Waiting_Checks(Session& session, const std::string& BankID) {
  std::vector<WaitingCheck> checks;
  session.dbCompany->each(
      std::string("SELECT TransNum, Date, Name, Amount FROM Transactions WHERE Account = ? AND Number = 'Print'") +
          of_a_check + " ORDER BY Date, TransNum, RowKey",
      {BankID}, [&](const store::Row& row) {
        checks.push_back(
            {row.integer(0), row.date(1).value_or(session.today()), std::string(row.text(2)), row.money(3)});
      });
  return checks;
}

std::optional<Fault> First_Check_Fault(const std::string& typed) {
  const auto fault = [](const char* text) {
    return Fault{{text, "Number needed", Icon::Information}, "txtFirstCheck"};
  };
  if (trim(typed).empty()) return fault("Please enter the first check number to print.");
  if (!Check_Number(typed)) return fault("Please enter a number value for the first check.");
  return std::nullopt;
}

std::optional<int64_t> Check_Number(const std::string& typed) {
  constexpr int64_t most = 2147483647;
  const std::string digits = replace_all(trim(typed), ",", "");
  int64_t number = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (fault != std::errc() || end != digits.data() + digits.size() || number < 0 || number > most) return std::nullopt;
  return number;
}

std::optional<NumberedCheck> Run_Of_One(int64_t TransNum, const std::string& number) {
  const auto known = Check_Number(number);
  return known && std::to_string(*known) == number ? std::optional(NumberedCheck{TransNum, *known}) : std::nullopt;
}

std::optional<int64_t> Used_Number(Session& session, const std::string& BankID, int64_t first, int64_t count) {
  std::optional<int64_t> used;
  session.dbCompany->each(
      std::string("SELECT MIN(CAST(Number AS INTEGER)) FROM Transactions WHERE Account = ? AND "
                  "CAST(CAST(Number AS INTEGER) AS TEXT) = Number AND CAST(Number AS INTEGER) BETWEEN ? AND ?") +
          of_a_check,
      {BankID, first, first + count - 1}, [&](const store::Row& row) {
        if (!row.is_null(0)) used = row.integer(0);
      });
  return used;
}

bool Still_Waits(Session& session, int64_t TransNum) {
  return session.dbCompany->value("SELECT Number FROM Transactions WHERE TransNum = ? AND Number = 'Print'", {TransNum})
             .text() == waiting;
}

bool Number_Checks(Session& session, const std::vector<NumberedCheck>& run) {
  if (run.empty()) return true;
  const std::string last = std::to_string(run.back().number);
  store::Transaction tx(*session.dbCompany, "Print checks " + std::to_string(run.front().number) + " to " + last);
  for (const NumberedCheck& check : run) {
    if (!Still_Waits(session, check.TransNum)) return false;
    Rewrite_Fields(session, check.TransNum, {{"Number", std::to_string(check.number)}});
  }
  tx.commit();
  return true;
}

int64_t Good_Print(Session& session, const std::vector<NumberedCheck>& run, int64_t number) {
  int64_t sent_back = 0;
  store::Transaction tx(*session.dbCompany, "Checks to print again, from " + std::to_string(number));
  for (const NumberedCheck& check : run) {
    if (check.number < number) continue;
    const bool ours = session.dbCompany
                          ->value("SELECT COUNT(*) FROM Transactions WHERE TransNum = ? AND Number = ?",
                                  {check.TransNum, std::to_string(check.number)})
                          .integer() > 0;
    if (!ours) continue;
    Rewrite_Fields(session, check.TransNum, {{"Number", waiting}});
    ++sent_back;
  }
  if (sent_back > 0) tx.commit();
  return sent_back;
}

}  // namespace tallymere
