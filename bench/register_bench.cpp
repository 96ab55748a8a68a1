#include <benchmark/benchmark.h>

#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/ledger/ledger.h"
#include "entry/register/register.h"
#include "support/places.h"
#include "support/silent_prompts.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

/// A bank with two hundred thousand rows over ten years.
struct LongRegister {
  LongRegister() {
    Prepare_Folder(folder.path(), testing::data_folder);
    Main(session);
    New_Company(session, "Acme");
    Open_Company_File(session, Company_Path(session, "Acme"));
    store::Transaction tx(*session.dbCompany, "Bench", store::Transaction::History::Summary);
    session.dbCompany->Execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200000) "
        "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit) "
        "SELECT i, 'Check', date('2016-01-01', '+' || (i / 55) || ' days'), i, 'Payee ' || (i % 500), '0SS', "
        "'40SS', "
        "(i % 3 = 0) * i * 100, (i % 3 <> 0) * i * 100 FROM n");
    tx.commit();
  }
  testing::TempFolder folder;
  testing::SilentPrompts prompts;
  Session session{folder.path(), Clock::standing_on(Date(2026, 6, 15)), prompts};
};

LongRegister& The_Register() {
  static LongRegister bank;
  return bank;
}

void Open_Long_Register(benchmark::State& state) {
  Session& session = The_Register().session;
  for (auto _ : state) benchmark::DoNotOptimize(Register(session, "0SS").ending_balance());
}
BENCHMARK(Open_Long_Register)->Unit(benchmark::kMillisecond);

void Scroll_Long_Register(benchmark::State& state) {
  Session& session = The_Register().session;
  Register reg(session, "0SS");
  int64_t row = 0;
  for (auto _ : state) {
    reg.Fill(row, 30);
    row = (row + 4999) % reg.count();
  }
}
BENCHMARK(Scroll_Long_Register)->Unit(benchmark::kMillisecond)->Iterations(2000);

}  // namespace
}  // namespace tallymere
