#include "core/ledger/verify.h"

#include "core/company/preferences.h"
#include "core/company/schema.h"
#include "core/ledger/bill_faults.h"
#include "core/ledger/paper_faults.h"
#include "core/ledger/settlement.h"
#include "core/names/name_faults.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;

constexpr int most_examples = 5;
using Findings = std::vector<std::string>;

/// A query's rows as findings, the first few in full and the rest as a count.
Findings Examples(Database& db, const std::string& sql, const std::function<std::string(const Row&)>& words) {
  Findings found;
  int64_t more = 0;
  db.each(sql, {}, [&](const Row& row) {
    if (found.size() < most_examples)
      found.push_back(words(row));
    else
      ++more;
  });
  if (more > 0) found.push_back("and " + std::to_string(more) + " more");
  return found;
}

std::string Text(const Row& row, int column) { return std::string(row.text(column)); }

Findings File_Is_Sound(Database& db) {
  Findings found;
  for (const std::string& fault : db.connection().integrity_faults()) found.push_back(fault);
  return found;
}

/// Why a paycheck that was posted by the plain pattern is off balance, by the names of docs/bookkeeping.md; "" when none
/// of them explains it. `off` is its debits less its credits.
std::string Plain_Paycheck(Database& db, int64_t TransNum, Money off) {
  auto sum = [&](const char* rows) {
    return Money::from_units(db.value("SELECT SUM(t.Debit) + 0 FROM Transactions AS t JOIN PayrollItems AS p"
                                      " ON p.Name = t.PayrollItem WHERE t.TransNum = ? AND " +
                                          std::string(rows),
                                      {TransNum})
                                 .integer());
  };
  const Money contributed = sum("p.Type = 'Company Contribution'");
  const Money twice = sum("p.Type LIKE '*Tax' AND p.TaxPaid = 'Employee Paid Tax'");
  const Money rest = off + contributed - twice;
  if (rest.is_zero()) return contributed.is_zero() ? "withheld item posted twice" : "company contribution paid out";
  const bool given_back = !db.value(
                                 "SELECT RowKey FROM Transactions WHERE TransNum = ? AND PayrollItem IS NOT NULL"
                                 " AND Credit * 2 = ? LIMIT 1",
                                 {TransNum, -rest})
                               .is_null();
  return given_back ? "withholding given back" : "";
}

/// A liability adjustment of what an employee pays has one row under the plain pattern.
std::string Plain_Adjustment(Database& db, int64_t TransNum) {
  const bool one_row = !db.value(
                              "SELECT t.RowKey FROM Transactions AS t JOIN PayrollItems AS p ON p.Name = t.PayrollItem"
                              " WHERE t.TransNum = ? AND IFNULL(p.ExpenseAcct, '') = '' LIMIT 1",
                              {TransNum})
                            .is_null();
  return one_row ? "adjustment without its other side" : "";
}

/// The named pattern of payroll that explains a difference, or "".
std::string Plain_Pattern(Database& db, int64_t TransNum, std::string_view type, Money off) {
  if (type == "Paycheck") return Plain_Paycheck(db, TransNum, off);
  return type == "Liability Adjust" ? Plain_Adjustment(db, TransNum) : "";
}

/// Where a sold part stands three times on the same side with the sale's amount, as the rule "Sale" of inventory posts
/// it: by how much the second and third row exceed the first.
Money Sold_Thrice(Database& db, int64_t TransNum) {
  Money twice, sale;
  std::string item;
  int more = 0;
  db.each(
      "SELECT IFNULL(Credit, 0) - IFNULL(Debit, 0), IFNULL(Item, ''), SourceName = 'Inventory Part' FROM Transactions"
      " WHERE TransNum = ? AND Type = 'Invoice' ORDER BY RowKey",
      {TransNum}, [&](const Row& row) {
        if (!row.flag(2)) {
          sale = row.money(0);
          item = row.text(1);
          more = 2;
        } else if (more-- > 0 && row.text(1) == item && row.money(0) == sale) {
          twice += sale;
        }
      });
  return twice;
}

struct Unbalanced {
  int64_t TransNum;
  std::string Type;
  Money debits, credits, thrice;

  Money off() const { return debits - credits + thrice; }  ///< beside sold parts
};
std::vector<Unbalanced> Unbalanced_Transactions(Database& db) {
  std::vector<Unbalanced> found;
  db.each(
      "SELECT TransNum, MAX(Type), SUM(IFNULL(Debit, 0)), SUM(IFNULL(Credit, 0)) FROM Transactions GROUP BY TransNum"
      " HAVING SUM(IFNULL(Debit, 0)) <> SUM(IFNULL(Credit, 0))",
      {}, [&](const Row& row) {
        found.push_back({row.integer(0), Text(row, 1), row.money(2), row.money(3), {}});
      });
  for (Unbalanced& each : found) each.thrice = Sold_Thrice(db, each.TransNum);
  return found;
}

/// A company that posts paychecks by the plain pattern has its differences; in one that has changed to balanced books they
/// are told by name.
Findings Transactions_Balance(Database& db) {
  const bool plain = Preference(db, preference::PayrollPosting) != "Balanced";
  Findings found;
  int64_t more = 0;
  for (const Unbalanced& each : Unbalanced_Transactions(db)) {
    if (each.off().is_zero()) continue;
    const std::string pattern = Plain_Pattern(db, each.TransNum, each.Type, each.off());
    if (plain && !pattern.empty()) continue;
    if (found.size() < most_examples)
      found.push_back(each.Type + " " + std::to_string(each.TransNum) + ": debits " + each.debits.to_text() +
                      ", credits " + each.credits.to_text() +
                      (pattern.empty() ? "" : " (" + pattern + ", by the plain rule)"));
    else
      ++more;
  }
  if (more > 0) found.push_back("and " + std::to_string(more) + " more");
  return found;
}

Findings One_Document_A_Number(Database& db) {
  return Examples(db,
                  "SELECT TransNum, MIN(Type), MAX(Type), MIN(Date), MAX(Date) FROM Transactions GROUP BY TransNum"
                  " HAVING MIN(Type) <> MAX(Type) OR MIN(Date) <> MAX(Date)",
                  [](const Row& row) {
                    return "number " + Text(row, 0) + " holds " + Text(row, 1) + " of " + Text(row, 3) + " and " +
                           Text(row, 2) + " of " + Text(row, 4);
                  });
}

Findings Fixed_Categories_Stand(Database& db) {
  Findings found;
  for (const char* id : {"AR1", "AP1", "UF1", "RE1", "OE1"})
    if (db.value("SELECT 1 FROM Accounts WHERE CatID = ?", {id}).is_null())
      found.push_back(std::string("no category ") + id);
  if (db.value("SELECT COUNT(*) FROM CompanyInfo").integer() != 1) found.push_back("CompanyInfo is not one row");
  return found;
}

Findings Links_Resolve(Database& db, const Reference& link) {
  std::string from = store::Quoted(link.from_table), field = "a." + store::Quoted(link.from_field);
  std::string condition = link.condition.empty() ? "" : " AND (" + std::string(link.condition) + ")";
  return Examples(db,
                  "SELECT DISTINCT " + field + " FROM " + from + " AS a WHERE " + field + " IS NOT NULL AND " + field +
                      " <> ''" + condition + " AND NOT EXISTS (SELECT 1 FROM " + store::Quoted(link.to_table) +
                      " AS b WHERE b." + store::Quoted(link.to_field) + " = " + field + ")",
                  [&](const Row& row) {
                    return std::string(link.from_table) + "." + std::string(link.from_field) + " names \"" +
                           Text(row, 0) + "\", which is not in " + std::string(link.to_table);
                  });
}

Findings All_Links_Resolve(Database& db) {
  Findings found;
  for (const Reference& link : references()) {
    if (link.or_words || !db.find_table(link.from_table)) continue;
    for (std::string& fault : Links_Resolve(db, link)) found.push_back(std::move(fault));
  }
  return found;
}

Findings Payments_Exist(Database& db) {
  Findings found;
  db.each("SELECT DISTINCT PaidBy FROM Transactions WHERE PaidBy IS NOT NULL AND PaidBy <> ''", {},
          [&](const Row& row) {
            for (const std::string& number : split(row.text(0), ";")) {
              if (number.empty()) continue;
              if (db.value("SELECT 1 FROM Transactions WHERE TransNum = ? LIMIT 1", {number}).is_null())
                found.push_back("PaidBy names transaction " + number + ", which does not exist");
            }
          });
  return found;
}

/// A customer's payment settles documents of that customer, for its own amount and no other. Less is no fault while
/// documents name payments that were never recorded.
Findings Payments_Come_To_What_They_Settle(Database& db) {
  const std::string less = Unrecorded_Documents(db).empty() ? " OR settled < total" : "";
  Findings found = Examples(
      db,
      "SELECT Payment, settled, total FROM (SELECT a.Payment AS Payment, SUM(a.Amount) AS settled,"
      " (SELECT t.Amount FROM Transactions AS t WHERE t.TransNum = a.Payment AND t.Account = 'AR1'"
      " AND t.Type = 'Payment' LIMIT 1) AS total FROM Applied AS a GROUP BY a.Payment)"
      " WHERE total IS NOT NULL AND (settled > total" +
          less + ")",
      [](const Row& row) {
        return "Payment " + Text(row, 0) + " of " + row.money(2).to_text() + " settles " + row.money(1).to_text();
      });
  for (std::string& fault :
       Examples(db,
                "SELECT DISTINCT a.Payment, p.Name, a.Document, d.Name FROM Applied AS a JOIN Transactions AS p ON"
                " p.TransNum = a.Payment AND +p.Account = 'AR1' AND p.Type = 'Payment' JOIN Transactions AS d ON"
                " d.TransNum = a.Document AND +d.Account = 'AR1' WHERE p.Name <> d.Name",
                [](const Row& row) {
                  return "Payment " + Text(row, 0) + " of " + Text(row, 1) + " settles " + Text(row, 2) + " of " +
                         Text(row, 3);
                }))
    found.push_back(std::move(fault));
  return found;
}

/// A held payment lies in one deposit at most and is Paid if it lies in one; what a deposit takes out of Undeposited
/// Funds is what its payments come to.
Findings Deposits_Come_To_What_They_Hold(Database& db) {
  Findings found = Examples(db,
                            "SELECT t.TransNum, MIN(t.Paid), COUNT(DISTINCT a.Payment) FROM Transactions AS t JOIN"
                            " Applied AS a ON a.Document = t.TransNum WHERE t.Type = 'Payment' AND t.Account = 'UF1'"
                            " GROUP BY t.TransNum HAVING MAX(t.Paid) = 0 OR COUNT(DISTINCT a.Payment) > 1",
                            [](const Row& row) {
                              return "Payment " + Text(row, 0) + " lies in " + Text(row, 2) + " deposits and is " +
                                     (row.flag(1) ? "Paid" : "not Paid");
                            });
  for (std::string& fault : Examples(
           db,
           "SELECT Deposit, held, (SELECT SUM(IFNULL(Credit, 0) - IFNULL(Debit, 0)) FROM Transactions WHERE"
           " TransNum = Deposit AND Account = 'UF1') AS taken FROM (SELECT a.Payment AS Deposit, SUM(a.Amount) AS"
           " held FROM Applied AS a WHERE EXISTS (SELECT 1 FROM Transactions AS t WHERE t.TransNum = a.Document AND"
           " t.Type = 'Payment') GROUP BY a.Payment) WHERE taken IS NULL OR taken <> held",
           [](const Row& row) {
             return "Deposit " + Text(row, 0) + " takes " + row.money(2).to_text() +
                    " out of Undeposited Funds for payments of " + row.money(1).to_text();
           }))
    found.push_back(std::move(fault));
  return found;
}

struct Check {
  const char* name;
  Findings (*run)(Database&);
};
constexpr Check checks[] = {{"file", File_Is_Sound},
                            {"balance", Transactions_Balance},
                            {"documents", One_Document_A_Number},
                            {"bills", Bill_Faults},
                            {"categories", Fixed_Categories_Stand},
                            {"links", All_Links_Resolve},
                            {"payments", Payments_Exist},
                            {"payments", Payments_Come_To_What_They_Settle},
                            {"held", Deposits_Come_To_What_They_Hold},
                            {"names", Name_Faults},
                            {"papers", Paper_Faults}};

}  // namespace

std::vector<Finding> Verify_Company(Database& company) {
  std::vector<Finding> findings;
  for (const Check& check : checks)
    for (std::string& what : check.run(company)) findings.push_back({check.name, std::move(what)});
  return findings;
}

std::string Sold_Parts_Note(Database& company) {
  Money thrice;
  for (const Unbalanced& each : Unbalanced_Transactions(company)) thrice += each.thrice;
  if (thrice.is_zero()) return "";
  return "Sold inventory parts are posted three times by the rule \"Sale\": credits exceed debits by " +
         thrice.to_text() + ".";
}

}  // namespace tallymere
