// What a person waits for in the store, on companies of ten thousand and of a million ledger rows.
// A save is measured against the bare commit of the same rows through the engine, without probe or history.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/company/program_folder.h"
#include "core/ledger/balances.h"
#include "core/ledger/transaction_writer.h"
#include "core/store/recordset.h"

namespace {

using namespace tallymere;
namespace fs = std::filesystem;

/// Nobody to talk to.
class Silent : public Prompts {
 public:
  void box(const Box&) override {}
  bool ask(const Box&, Buttons) override { return false; }
  std::optional<std::string> input(const std::string&, const std::string&) override { return {}; }
  std::string open_file(const std::string&, const std::string&) override { return {}; }
  std::string save_file(const std::string&, const std::string&) override { return {}; }
  bool progress(const std::string&, int64_t, int64_t) override { return true; }
  void progress_done() override {}
  void hourglass(bool) override {}
  void sound(const std::string&) override {}
};

/// Checks of three rows each over three years and sixty categories, until the ledger holds `rows`.
void Fill(store::Database& db, int64_t rows) {
  store::Transaction fill(db, "fill", store::Transaction::History::Summary);
  db.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < ? - 1)"
      " INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Address, Account, Category, Debit, Credit, Amount)"
      " SELECT i / 3 + 1, 'Check', date('2024-01-01', (i / 3 % 1000) || ' days'), i / 3 % 9000 + 1000,"
      "  'Vendor ' || (i / 3 % 500), 'Vendor ' || (i / 3 % 500) || char(10) || '12 Main Street',"
      "  CASE i % 3 WHEN 0 THEN '0SS' ELSE (40 + i % 50) || 'SS' END,"
      "  CASE i % 3 WHEN 0 THEN '<-Break Down->' ELSE '0SS' END,"
      "  CASE i % 3 WHEN 0 THEN 0 ELSE 500000 END, CASE i % 3 WHEN 0 THEN 1000000 ELSE 0 END,"
      "  CASE i % 3 WHEN 0 THEN 1000000 ELSE 500000 END FROM n",
      {rows});
  fill.commit();
}

/// One company a size, made once for all benchmarks.
struct BenchCompany {
  explicit BenchCompany(int64_t rows)
      : folder(fs::temp_directory_path() / ("tallymere-bench-" + std::to_string(getpid()))),
        session((Prepare_Folder(folder, Shipped_Data()), folder), Clock::standing_on(Date(2026, 6, 15)), prompts) {
    Main(session);
    std::string name = std::to_string(rows);
    New_Company(session, name);
    Open_Company_File(session, Company_Path(session, name));
    Set_Recordsets(session);
    Fill(*session.dbCompany, rows);
  }
  ~BenchCompany() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
  static BenchCompany& of(int64_t rows) {
    static std::map<int64_t, std::unique_ptr<BenchCompany>> made;
    auto& company = made[rows];
    if (!company) company = std::make_unique<BenchCompany>(rows);
    return *company;
  }
  store::Database& db() { return *session.dbCompany; }

  fs::path folder;
  Silent prompts;
  Session session;
};

const TransactionHead head{.TransNum = 0,
                           .Type = "Check",
                           .Date = Date(2026, 6, 15),
                           .Number = "Print",
                           .Name = "Acme",
                           .Address = "Acme\r\n1 Main Street"};
const LedgerRow check_rows[] = {
    {.Account = "0SS", .Category = "<-Break Down->", .Credit = Money::dollars(100), .Amount = Money::dollars(100)},
    {.Account = "66SS", .Category = "0SS", .Debit = Money::dollars(60), .Amount = Money::dollars(60)},
    {.Account = "76SS", .Category = "0SS", .Debit = Money::dollars(40), .Amount = Money::dollars(40)}};

void Save_Document(benchmark::State& state) {
  auto& company = BenchCompany::of(state.range(0));
  for (auto _ : state) {
    Transaction_Writer rows(company.session, head);
    for (const LedgerRow& row : check_rows) rows.add(row);
    rows.commit();
  }
}

void Insert_Check(store::Connection& connection, int64_t number) {
  for (const LedgerRow& row : check_rows) {
    auto insert = connection.prepare(
        "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Address, Account, Category, Debit, Credit, Amount)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    insert.bind_all({number, head.Type, head.Date, head.Number, head.Name, head.Address, row.Account, row.Category,
                     row.Debit, row.Credit, row.Amount});
    insert.run();
  }
}

/// The same rows, with nothing but the engine's own commit.
void Raw_Commit(benchmark::State& state) {
  auto& db = BenchCompany::of(state.range(0)).db();
  int64_t number = db.value("SELECT MAX(TransNum) FROM Transactions").integer();
  for (auto _ : state) {
    db.connection().begin();
    Insert_Check(db.connection(), ++number);
    db.connection().commit();
  }
}

/// The same rows, with who, when, what and the change itself in the same commit.
void Commit_With_History(benchmark::State& state) {
  auto& db = BenchCompany::of(state.range(0)).db();
  int64_t number = db.value("SELECT MAX(TransNum) FROM Transactions").integer();
  for (auto _ : state) {
    store::Transaction tx(db, "Check Print, Acme");
    Insert_Check(db.connection(), ++number);
    tx.commit();
  }
}

void Seek(benchmark::State& state) {
  auto& accounts = *BenchCompany::of(state.range(0)).session.sets.Accounts;
  for (auto _ : state) benchmark::DoNotOptimize(accounts.Seek("=", "66SS"));
}

void Balance_Pass(benchmark::State& state) {
  auto& session = BenchCompany::of(state.range(0)).session;
  for (auto _ : state) {
    Update_Accounts(session);
  }
}

void Grouped_Scan(benchmark::State& state) {
  auto& db = BenchCompany::of(state.range(0)).db();
  for (auto _ : state) {
    int64_t sum = 0;
    db.each("SELECT Account, SUM(Debit), SUM(Credit) FROM Transactions GROUP BY Account", {},
            [&](const store::Row& row) { sum += row.integer(1) - row.integer(2); });
    benchmark::DoNotOptimize(sum);
  }
}

void Open_Company(benchmark::State& state) {
  auto& company = BenchCompany::of(state.range(0));
  fs::path path = company.session.CompanyPath;
  for (auto _ : state) {
    Open_Company_File(company.session, path);
    Set_Recordsets(company.session);
  }
}

constexpr int64_t small = 10'000, large = 1'000'000;
BENCHMARK(Raw_Commit)->Arg(small)->Arg(large)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Commit_With_History)->Arg(small)->Arg(large)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Save_Document)->Arg(small)->Arg(large)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Seek)->Arg(small)->Arg(large)->Unit(benchmark::kMicrosecond);
BENCHMARK(Grouped_Scan)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK(Balance_Pass)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK(Open_Company)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);

}  // namespace
