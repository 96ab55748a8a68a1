#include <benchmark/benchmark.h>

#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "support/test_company.h"

// Balance passes and saves on a ledger of a million rows: ten years, 80 categories, 500 customers and
// vendors.
namespace {

using namespace tallymere;

constexpr std::string_view fill_ledger = R"(
  WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 999999)
  INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount, Memo, Paid)
  SELECT i / 2 + 1, CASE i % 6 WHEN 0 THEN 'Invoice' WHEN 1 THEN 'Invoice' WHEN 2 THEN 'Bill' WHEN 3 THEN 'Bill' ELSE 'Check' END,
         date('2017-01-01', (i / 2) % 3440 || ' days'), i / 2, 'Person ' || (i / 2 % 500),
         CASE i % 6 WHEN 0 THEN 'AR1' WHEN 2 THEN 'AP1' WHEN 4 THEN '0SS' ELSE (i * 7919 % 80) || 'SS' END, '0SS',
         CASE WHEN i % 2 THEN i % 90000 * 100 ELSE 0 END, CASE WHEN i % 2 THEN 0 ELSE i % 90000 * 100 END,
         i % 90000 * 100, 'A memo of some length', CASE WHEN i % 50 THEN -1 ELSE 0 END
  FROM n)";

testing::TestCompany& Large_Company() {
  static testing::TestCompany company;
  static bool filled = false;
  if (filled) return company;
  store::Transaction load(company.db(), "A large ledger", store::Transaction::History::Summary);
  company.db().Execute(fill_ledger);
  company.db().Execute(
      "INSERT INTO Accounts (CatID, AccountName, AccountType)"
      " SELECT DISTINCT Account, Account, 'Fixed Asset' FROM Transactions"
      " WHERE Account NOT IN (SELECT CatID FROM Accounts)");
  for (std::string table : {"Customers", "Vendors"})
    for (int at = 0; at < 500; ++at)
      company.db().Execute("INSERT INTO " + table + " (Name) VALUES (?)", {"Person " + std::to_string(at)});
  load.commit();
  filled = true;
  return company;
}

/// What any pass must cost at least: one grouped reading of the index.
void Bare_Grouped_Scan(benchmark::State& state) {
  auto& company = Large_Company();
  for (auto _ : state)
    company.db().each("SELECT Account, SUM(Debit), SUM(Credit) FROM Transactions GROUP BY Account", {},
                      [](const store::Row& row) { benchmark::DoNotOptimize(row.integer(1)); });
}
BENCHMARK(Bare_Grouped_Scan)->Unit(benchmark::kMillisecond);

void Balance_Pass(benchmark::State& state) {
  auto& company = Large_Company();
  for (auto _ : state) Update_Accounts(*company.session);
}
BENCHMARK(Balance_Pass)->Unit(benchmark::kMillisecond);

void Bank_Balance_Pass(benchmark::State& state) {
  auto& company = Large_Company();
  for (auto _ : state) Update_Accounts(*company.session, Categories::Bank);
}
BENCHMARK(Bank_Balance_Pass)->Unit(benchmark::kMillisecond);

void Customers_Pass(benchmark::State& state) {
  auto& company = Large_Company();
  for (auto _ : state) Update_Customers(*company.session);
}
BENCHMARK(Customers_Pass)->Unit(benchmark::kMillisecond);

void Vendors_Pass(benchmark::State& state) {
  auto& company = Large_Company();
  for (auto _ : state) Update_Vendors(*company.session);
}
BENCHMARK(Vendors_Pass)->Unit(benchmark::kMillisecond);

void Save_A_Check(benchmark::State& state) {
  auto& company = Large_Company();
  Probe probe;
  int64_t number = 0;
  for (auto _ : state) {
    Transaction_Writer rows(*company.session,
                            {.TransNum = number, .Type = "Check", .Date = company.session->today(), .Name = "Person 7"},
                            probe);
    rows.add({.Account = "0SS", .Credit = Money::dollars(10)});
    rows.add({.Account = "9SS", .Debit = Money::dollars(10)});
    rows.commit();
    probe = rows.probe(), number = rows.number();
  }
}
BENCHMARK(Save_A_Check)->Unit(benchmark::kMillisecond);

}  // namespace
