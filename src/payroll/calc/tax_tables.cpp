#include "payroll/calc/tax_tables.h"

#include <algorithm>

#include "core/values/text.h"
#include "payroll/periods.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;

[[noreturn]] void Missing(const std::string& what) {
  throw store::Error(store::errors::no_current_record, "No current record. " + what);
}

TaxBrackets Read_Federal(Database& db, std::string_view table) {
  TaxBrackets rows;
  db.each("SELECT FedStatus, AmountOver, AmountUnder, BaseAmount, Percentage FROM " + std::string(table) +
              " ORDER BY FedStatus, RowKey",
          {}, [&rows](const Row& row) {
            rows.push_back(
                {std::string(row.text(0)), row.money(1), row.money(2), row.money(3), Exact::of(row.number(4)), {}, {}});
          });
  return rows;
}

TaxBrackets Read_Annual(Database& db, std::string_view table) {
  TaxBrackets rows;
  db.each("SELECT Status, AmountOver, BaseAmount, Percentage, AllowConstant FROM " + std::string(table) +
              " ORDER BY Status, RowKey",
          {}, [&rows](const Row& row) {
            rows.push_back(
                {std::string(row.text(0)), row.money(1), {}, row.money(2), Exact::of(row.number(3)), row.money(4), {}});
          });
  return rows;
}

TaxBrackets Read_Missouri(Database& db) {
  TaxBrackets rows;
  db.each(
      "SELECT Status, AmountOver, AmountUnder, Rate, AllowConstant, StandardDeduc FROM MOWithhold"
      " ORDER BY Status, RowKey",
      {}, [&rows](const Row& row) {
        rows.push_back({std::string(row.text(0)),
                        row.money(1),
                        row.money(2),
                        {},
                        Exact::of(row.number(3)),
                        row.money(4),
                        row.money(5)});
      });
  return rows;
}

/// `rate` is the name of the rate's column, or a number.
std::vector<ExemptionRow> Read_Exemptions(Database& db, std::string_view table, std::string_view rate) {
  std::string columns = "Allowance, " + std::string(rate);
  for (const std::string_view period : pay_period_names) columns += ", " + std::string(period);
  std::vector<ExemptionRow> rows;
  db.each("SELECT " + columns + " FROM " + std::string(table) + " ORDER BY Allowance, RowKey", {},
          [&rows](const Row& row) {
            ExemptionRow& exemption = rows.emplace_back(std::string(row.text(0)), Exact::of(row.number(1)));
            for (size_t at = 0; at < pay_period_names.size(); ++at)
              exemption.amounts.emplace_back(row.money(static_cast<int>(at) + 2));
          });
  return rows;
}

struct KeptTables {
  store::ChangeStamp stamp;
  std::shared_ptr<const TaxTables> tables;
};

}  // namespace

TaxTables TaxTables::Read(Database& db) {
  TaxTables tables;
  for (const PayFrequency& frequency : pay_frequencies)
    tables.federal.push_back(Read_Federal(db, frequency.federal_table));
  db.each("SELECT PayPeriod, Amount, Divisor FROM FedWithholdAllowance ORDER BY RowKey", {}, [&tables](const Row& row) {
    tables.allowances.push_back({std::string(row.text(0)), row.money(1), row.integer(2)});
  });
  tables.minnesota = Read_Annual(db, "MNWithhold");
  tables.wisconsin = Read_Annual(db, "WIWithhold");
  tables.missouri = Read_Missouri(db);
  tables.indiana_allowances = Read_Exemptions(db, "INWithHoldA", "Percentage");
  tables.indiana_statuses = Read_Exemptions(db, "INWithHoldB", "0");
  db.each("SELECT Percentage, Line1Exempt, Line2Exempt FROM ILWithHold ORDER BY RowKey LIMIT 1", {},
          [&tables](const Row& row) {
            tables.illinois = Illinois{Exact::of(row.number(0)), row.money(1), row.money(2)};
          });
  return tables;
}

std::shared_ptr<const TaxTables> TaxTables::Of(Database& accounts) {
  KeptTables& kept = accounts.kept<KeptTables>();
  const store::ChangeStamp now = accounts.change_stamp();
  if (!kept.tables || kept.stamp != now) {
    store::Snapshot moment(accounts);
    kept.tables = std::make_shared<const TaxTables>(Read(accounts));
    kept.stamp = now;
  }
  return kept.tables;
}

const TaxBrackets& TaxTables::federal_of(std::string_view pay_period) const {
  const PayFrequency* frequency = Find_Frequency(pay_period);
  if (!frequency) Missing("There is no federal table for the pay period \"" + std::string(pay_period) + "\".");
  return federal[static_cast<size_t>(frequency - pay_frequencies.data())];
}

const AllowanceOfPeriod& TaxTables::allowance_of(std::string_view pay_period) const {
  const auto found = std::ranges::find_if(
      allowances, [pay_period](const AllowanceOfPeriod& row) { return same_text(row.pay_period, pay_period); });
  if (found == allowances.end())
    Missing("FedWithholdAllowance has no row for the pay period \"" + std::string(pay_period) + "\".");
  if (found->periods.is_zero()) Missing("FedWithholdAllowance has no divisor for " + found->pay_period + ".");
  return *found;
}

StatusRows::StatusRows(const TaxBrackets& table, std::string_view table_name, std::string_view status)
    : what_(std::string(table_name) + " has no row for the status \"" + std::string(status) + "\"") {
  auto is_status = [status](const TaxBracket& row) { return same_text(row.status, status); };
  const auto first = std::ranges::find_if(table, is_status);
  if (first == table.end()) Missing(what_ + ".");
  begin_ = &*first;
  end_ = begin_ + (std::find_if_not(first, table.end(), is_status) - first);
}

const TaxBracket& StatusRows::before(const TaxBracket& row) const {
  if (&row == begin_) past_the_end();
  return *(&row - 1);
}

void StatusRows::past_the_end() const { Missing(what_ + " that holds this wage."); }

}  // namespace tallymere
