#include <benchmark/benchmark.h>

#include "demo/demo.h"
#include "reports/sums/kept_ledger.h"
#include "support/test_company.h"

// The profit and loss of a company with 250 thousand transactions in three years, in the open program.
namespace {

using namespace tallymere;

testing::TestCompany& Busy_Company() {
  static testing::TestCompany company;
  static bool filled = false;
  if (!std::exchange(filled, true))
    Write_Demo_Company(*company.session, {.transactions = 250000, .today = company.session->today()});
  return company;
}

void Change_A_Row() { Busy_Company().run("UPDATE Transactions SET Paid = Paid WHERE RowKey = 1"); }

void Read_Ahead() {
  while (KeptLedger::Read_Ahead(Busy_Company().db())) {
  }
}

enum Ledger { Asked_Afresh, Kept };

/// key, basis, whether of all time, whether the ledger is kept in memory.
void Report(benchmark::State& state, const char* key, Basis basis, bool all_time, Ledger ledger) {
  auto& session = *Busy_Company().session;
  ReportRequest request = Default_Request(session, key);
  request.from = Date(all_time ? 2000 : 2025, 1, 1);
  request.to = all_time ? session.today() : Date(2025, 12, 31);
  request.basis = basis;
  Change_A_Row();
  if (ledger == Kept) Read_Ahead();
  for (auto _ : state) benchmark::DoNotOptimize(Build_Report(session, request));
}

void One_Step_Of_Reading_Ahead(benchmark::State& state) {
  Change_A_Row();
  for (auto _ : state)
    if (!KeptLedger::Read_Ahead(Busy_Company().db())) Change_A_Row();
}
BENCHMARK(One_Step_Of_Reading_Ahead)->Unit(benchmark::kMillisecond);

void Reading_Ahead_Whole(benchmark::State& state) {
  for (auto _ : state) {
    Change_A_Row();
    Read_Ahead();
  }
}
BENCHMARK(Reading_Ahead_Whole)->Unit(benchmark::kMillisecond);

const bool registered = [] {
  for (const char* key : {"PL", "PLYTD", "PLPrev", "PLCus", "PLClass"})
    for (Basis basis : {Basis::Accrual, Basis::Cash})
      for (bool all_time : {false, true})
        for (Ledger ledger : {Asked_Afresh, Kept}) {
          const std::string name = std::string("Report/") + key + (basis == Basis::Cash ? "/cash" : "/accrual") +
                                   (all_time ? "/all_time" : "/last_year") + (ledger == Kept ? "/kept" : "/afresh");
          benchmark::RegisterBenchmark(name.c_str(), Report, key, basis, all_time, ledger)
              ->Unit(benchmark::kMillisecond);
        }
  return true;
}();

}  // namespace
