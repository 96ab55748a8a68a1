#include "reports/graph/graph.h"
#include "support/random_books.h"

namespace tallymere {
namespace {

using testing::Amount_Of;
using testing::Books;
using testing::D;
using testing::Posting;
using testing::RandomBooks;
using Strings = std::vector<std::string>;

/// The rules of the balance sheet walked account by account and row by row.
struct Plainly {
  const RandomBooks& books;
  std::string key;
  Basis basis;
  Date as_of;
  Strings lines = {};
  Money total = {}, second = {};  ///< of the present section

  bool compares() const { return key == "BalCmp"; }
  bool sums_up() const { return key == "BalSum"; }
  bool in_detail() const { return key == "BalDetail"; }

  Strings scope(const std::string& id) const {
    Strings all = {id};
    for (const auto& account : books.accounts)
      if (account.ParentAccount == id)
        for (const std::string& below : scope(account.CatID)) all.push_back(below);
    return all;
  }

  const Posting* first_row(const std::string& number) const {
    for (const Posting& row : books.rows)
      if (std::to_string(row.TransNum) == number) return &row;
    return nullptr;
  }

  bool paid_after(const Posting& row, Date day) const {
    const Posting* payment = first_row(split(row.PaidBy, ";")[0]);
    return payment && payment->day > day;
  }

  std::string name_of(const std::string& id) const {
    for (const auto& account : books.accounts)
      if (account.CatID == id) return id;
    return id == "<-Break Down->" ? id : "";
  }

  Money Sum_Balance(const std::string& id, Date date, bool debit_side, bool lists = false) {
    const Strings ids = scope(id);
    std::vector<const Posting*> found;
    for (const Posting& row : books.rows) {
      if (std::find(ids.begin(), ids.end(), row.Account) == ids.end() || row.day > date) continue;
      if (basis == Basis::Cash) {
        if (row.Type == "Invoice" || (id == "AR1" && row.Type == "Payment")) continue;
        if (row.Type == "Bill" && (row.PaidBy.empty() || paid_after(row, date))) continue;
      }
      found.push_back(&row);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](auto* a, auto* b) { return std::pair(a->day, a->TransNum) < std::pair(b->day, b->TransNum); });
    Money sum;
    for (const Posting* row : found) {
      if (debit_side)
        sum += row->Credit.is_zero() ? row->Debit : -row->Credit;
      else
        sum += row->Credit.is_zero() ? -row->Debit : row->Credit;
      if (lists && in_detail())
        lines.push_back(row->Type + "|" + row->day.to_text() + "|" + row->Number + "|" + row->Name + "|" + row->Memo +
                        "|" + row->Class + "|" + name_of(row->Category) + "|" + Amount_Of(*row).to_text());
    }
    return sum;
  }

  // --- the years

  Money Sum_Period(const std::string& id, Date from, Date to, bool income) const {
    Money sum;
    for (const Posting& row : books.rows) {
      if (row.Account != id || row.day < from || row.day > to) continue;
      if (basis == Basis::Cash && (row.Type == "Invoice" || row.Type == "Bill") && !row.Paid) continue;
      if (basis == Basis::Cash && row.Type == "Bill" && contains(row.PaidBy, ";") && paid_after(row, to)) continue;
      const Money value = row.Credit.is_zero() ? -row.Debit : row.Credit;
      sum += income ? value : -value;
    }
    return sum;
  }

  Money Sum_CashIncome(const std::string& id, Date from, Date to) const {
    const Strings ids = scope(id);
    Money sum;
    for (const Posting& row : books.rows) {
      if (std::find(ids.begin(), ids.end(), row.Account) == ids.end()) continue;
      if (!row.Paid && row.Type != "Invoice") {
        if (row.day >= from && row.day <= to)
          sum += row.Credit.is_zero() ? -Amount_Of(row).abs() : Amount_Of(row).abs();
        continue;
      }
      for (const std::string& number : split(row.PaidBy, ";")) {
        const Posting* payment = first_row(number);
        if (!payment || payment->day < from || payment->day > to) continue;
        const auto head = std::find_if(books.rows.begin(), books.rows.end(), [&](const Posting& other) {
          return other.TransNum == row.TransNum && other.Account == "AR1";
        });
        const Money receivable = head == books.rows.end() ? Money() : Amount_Of(*head);
        Money share = Amount_Of(row);
        if (receivable > Amount_Of(*payment) && !receivable.is_zero())
          share = share.share(Amount_Of(*payment), receivable);
        sum += row.Credit.is_zero() ? -share : share;
      }
    }
    return sum;
  }

  Money result(Date from, Date to) const {
    Money net;
    for (const auto& account : books.accounts) {
      const std::string& type = account.AccountType;
      if (type == "Income" || type == "Other Income")
        net +=
            basis == Basis::Cash ? Sum_CashIncome(account.CatID, from, to) : Sum_Period(account.CatID, from, to, true);
      if (type == "Cost of Goods Sold" || type == "Expense" || type == "Other Expense")
        net -= Sum_Period(account.CatID, from, to, false);
    }
    return net;
  }
  Money Net_Income(Date day) const { return result(Date(day.year(), 1, 1), day); }
  Money Retained_Earnings(Date day) {
    return result(Date(1900, 1, 1), Date(day.year() - 1, 12, 31)) + Sum_Balance("RE1", day, false);
  }

  // --- the sheet

  static std::string blanks(int count, const std::string& text) {
    return std::string(static_cast<size_t>(count), ' ') + text;
  }

  void line(const std::string& label, Money first, Money other, bool is_total) {
    std::string text = label + (in_detail() ? "|||||||" : key == "BalStand" && is_total ? "||" : "|") + first.to_text();
    if (compares()) text += "|" + other.to_text();
    lines.push_back(text);
  }
  void head(const std::string& label) {
    if (!sums_up()) lines.push_back(label);
  }
  void whole(const std::string& label, Money first, Money other) {
    if (!sums_up()) line(label, first, other, true);
  }

  Date year_ago() const { return as_of.add_months(-12); }

  void account(const std::string& id, int indent, bool debit_side, bool is_top) {
    if (in_detail()) lines.push_back(blanks(indent, id));
    const Money first = Sum_Balance(id, as_of, debit_side, true);
    const Money other = compares() ? Sum_Balance(id, year_ago(), debit_side) : Money();
    if (!sums_up()) line(blanks(indent, id), first, other, false);
    if (is_top) total += first;
    second += other;
    for (const auto& child : books.accounts)
      if (child.ParentAccount == id) account(child.CatID, is_top ? 20 : indent + 5, debit_side, false);
  }

  void section(const std::string& type, int indent, bool debit_side) {
    total = second = {};
    Strings top;
    for (const auto& account : books.accounts) {
      const bool has_parent = std::any_of(books.accounts.begin(), books.accounts.end(),
                                          [&](auto& other) { return other.CatID == account.ParentAccount; });
      if (!has_parent && account.AccountType == type && account.CatID != "RE1") top.push_back(account.CatID);
    }
    std::sort(top.begin(), top.end(), [](auto& a, auto& b) { return folded(a) < folded(b); });
    for (const std::string& id : top) account(id, indent, debit_side, true);
  }

  void control(const std::string& label, const std::string& id, bool debit_side) {
    if (in_detail()) lines.push_back(blanks(10, label));
    total = Sum_Balance(id, as_of, debit_side, true);
    second = compares() ? Sum_Balance(id, year_ago(), debit_side) : Money();
    if (!sums_up()) line(blanks(10, label), total, second, false);
  }

  void Load_Standard() {
    lines.push_back("Assets");
    head(blanks(5, "Current Assets"));
    head(blanks(10, "Cash"));
    section("Bank", 15, true);
    whole(blanks(10, "Total Cash"), total, second);
    Money sum = total, other = second;
    head(blanks(10, "Current Assets"));
    section("Current Asset", 15, true);
    whole(blanks(10, "Total Current Assets"), total, second);
    sum += total, other += second;
    control("Accounts Receivable", "AR1", true);
    sum += total, other += second;
    sums_up() ? line(blanks(5, "Current Assets"), sum, other, false)
              : whole(blanks(5, "Total Current Assets"), sum, other);
    head(blanks(5, "Fixed Assets"));
    section("Fixed Asset", 10, true);
    sums_up() ? line(blanks(5, "Fixed Assets"), total, second, false)
              : whole(blanks(5, "Total Fixed Assets"), total, second);
    line("Total Assets", sum + total, other + second, true);
    if (sums_up()) lines.emplace_back();
    lines.push_back("Liabilities & Equity");
    head(blanks(5, "Current Liabilities"));
    control("Accounts Payable", "AP1", false);
    sum = total, other = second;
    head(blanks(10, "Credit Cards"));
    section("Credit Card", 15, false);
    whole(blanks(10, "Total Credit Cards"), total, second);
    sum += total, other += second;
    head(blanks(10, "Other Current Liabilities"));
    section("Current Liability", 15, false);
    whole(blanks(10, "Total Other Current Liabilities"), total, second);
    sum += total, other += second;
    line(blanks(5, "Total Current Liabilities"), sum, other, !sums_up());
    head(blanks(5, "Long Term Liabilities"));
    section("Long Term Liability", 10, false);
    line(blanks(5, sums_up() ? "Long Term Liabilities" : "Total Long Term Liabilities"), total, second, !sums_up());
    sum += total, other += second;
    head(blanks(5, "Equity"));
    section("Equity", 10, false);
    for (const char* label : {"Net Income", "Retained Earnings"}) {
      const bool is_net = std::string(label) == "Net Income";
      const Money first = is_net ? Net_Income(as_of) : Retained_Earnings(as_of);
      const Money prior = !compares() ? Money() : is_net ? Net_Income(year_ago()) : Retained_Earnings(year_ago());
      if (!sums_up()) line(blanks(10, label), first, prior, false);
      total += first, second += prior;
    }
    line(blanks(5, sums_up() ? "Equity" : compares() ? "Total Cquity" : "Total Equity"), total, second, !sums_up());
    line("Total Liabilities & Equity", sum + total, other + second, true);
  }
};

TEST(BalanceSheet, EveryVariantAgreesWithAPlainReadingOnRandomBooks) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
    RandomBooks random(seed);
    random.write(books);
    const Date as_of = seed % 7 == 0 ? Date(2023, 12, 31) : random.day();
    for (const char* key : {"BalStand", "BalSum", "BalCmp", "BalDetail"})
      for (const Basis basis : {Basis::Cash, Basis::Accrual}) {
        Plainly plainly{random, key, basis, as_of};
        plainly.Load_Standard();
        EXPECT_EQ(testing::Lines(books.report(key, as_of, as_of, basis)), plainly.lines)
            << key << (basis == Basis::Cash ? " cash, " : " accrual, ") << as_of.to_text() << ", seed " << seed;
        for (const std::string& line : plainly.lines) figures += line.find_first_of("123456789") != std::string::npos;
      }
  }
  EXPECT_GT(figures, 5000);
}

Money Figure(const ReportTable& table, const std::string& label) {
  for (int row = table.rows() - 1; row >= 0; --row)
    if (table.text(row, 1) == label)
      for (int column = 2; column < static_cast<int>(table.columns.size()); ++column)
        if (!table.value(row, column).is_null()) return table.value(row, column).money();
  ADD_FAILURE() << "no row " << label;
  return {};
}

/// A chart in which every row of the ledger shows.
void Open_Books(Books& books) {
  for (const auto& [id, type] : std::map<std::string, std::string>{{"AR1", "Accounts Receivable"},
                                                                   {"AP1", "Accounts Payable"},
                                                                   {"RE1", "Equity"},
                                                                   {"OE1", "Equity"},
                                                                   {"Bank", "Bank"},
                                                                   {"Tax", "Current Liability"},
                                                                   {"Stock", "Current Asset"},
                                                                   {"Goods", "Cost of Goods Sold"},
                                                                   {"Sales", "Income"},
                                                                   {"Rent", "Expense"}})
    books.add(id, type);
}

TEST(BalanceSheet, BalancesOnAccrualWhateverIsPostedInPairs) {
  Books books;
  Open_Books(books);
  const Strings accounts = {"AR1", "AP1", "RE1", "OE1", "Bank", "Tax", "Stock", "Goods", "Sales", "Rent"};
  std::mt19937 random(7);
  const auto pick = [&](size_t below) { return random() % below; };
  for (int64_t number = 1; number <= 200; ++number) {
    const Date day = Date(2024, 1, 1).plus_days(static_cast<int>(pick(900)));
    const Money amount = Money::from_units(static_cast<int64_t>(pick(9000000)));
    books.post({.TransNum = number, .Type = "Check", .day = day, .Account = accounts[pick(10)], .Debit = amount});
    books.post({.TransNum = number, .Type = "Check", .day = day, .Account = accounts[pick(10)], .Credit = amount});
  }
  for (const Date as_of : {Date(2023, 1, 1), Date(2024, 12, 31), Date(2025, 1, 1), Date(2026, 6, 15)}) {
    const ReportTable table = books.report("BalStand", as_of, as_of, Basis::Accrual);
    EXPECT_EQ(Figure(table, "Total Assets"), Figure(table, "Total Liabilities & Equity")) << as_of.to_text();
    EXPECT_EQ(table.heading.note, "");
  }
  const auto on = [&](Date day) { return books.report("BalStand", day, day, Basis::Accrual); };
  const Money last_year = Figure(on(Date(2024, 12, 31)), "          Net Income");
  EXPECT_FALSE(last_year.is_zero());
  EXPECT_EQ(Figure(on(Date(2025, 1, 1)), "          Retained Earnings"),
            Figure(on(Date(2024, 12, 31)), "          Retained Earnings") + last_year)
      << "a year ends without an entry";
}

TEST(BalanceSheet, ItsFootSaysByHowMuchAndWhyItDoesNotBalance) {
  Books books;
  Open_Books(books);
  books.run("INSERT INTO Items (ItemName, ItemType) VALUES ('Rake', 'Inventory Part')");
  const Date day(2026, 5, 1);
  books.post({.TransNum = 1, .Type = "Invoice", .day = day, .Account = "AR1", .Debit = D(20)});
  for (const char* account : {"Stock", "Goods", "Sales"}) {
    Posting row{.TransNum = 1, .Type = "Invoice", .day = day, .Account = account, .Credit = D(20)};
    row.Item = "Rake";
    if (std::string(account) != "Stock") row.SourceName = "Inventory Part";
    books.post(row);
  }
  const ReportTable table = books.report("BalSum", day, day, Basis::Accrual);
  EXPECT_EQ(Figure(table, "Total Assets"), D(0));
  EXPECT_EQ(Figure(table, "Total Liabilities & Equity"), D(40));
  EXPECT_TRUE(table.heading.note.starts_with("Total Assets are 40.00 less than Total Liabilities & Equity. Sold inv"))
      << table.heading.note;
  EXPECT_EQ(testing::Lines(table).size(), 10u) << "no row makes up for it";
}

TEST(BalanceSheet, CashWaitsForThePaymentAndGoToLeadsToTheYear) {
  Books books;
  Open_Books(books);
  books.add("Sub", "Bank", "Bank");
  books.add("Lost", "Bank", "gone");
  const Date may(2026, 5, 1), june(2026, 6, 1);
  books.post(
      {.TransNum = 1, .Type = "Invoice", .day = may, .Account = "AR1", .Debit = D(100), .PaidBy = "2;", .Paid = true});
  books.post({.TransNum = 1,
              .Type = "Invoice",
              .day = may,
              .Account = "Sales",
              .Credit = D(100),
              .PaidBy = "2;",
              .Paid = true});
  books.post({.TransNum = 2, .Type = "Payment", .day = june, .Account = "Sub", .Debit = D(100)});
  books.post({.TransNum = 2, .Type = "Payment", .day = june, .Account = "AR1", .Credit = D(100)});
  books.post({.TransNum = 3, .Type = "Bill", .day = may, .Account = "AP1", .Credit = D(30)});
  books.post({.TransNum = 3, .Type = "Bill", .day = may, .Account = "Rent", .Debit = D(30)});
  books.post({.TransNum = 4, .Type = "Check", .day = may, .Account = "Lost", .Debit = D(1)});
  const ReportTable before = books.report("BalStand", may, may, Basis::Cash);
  EXPECT_EQ(Figure(before, "          Accounts Receivable"), D(0));
  EXPECT_EQ(Figure(before, "          Accounts Payable"), D(0));
  EXPECT_EQ(Figure(before, "          Net Income"), D(0));
  const ReportTable after = books.report("BalStand", june, june, Basis::Cash);
  EXPECT_EQ(Figure(after, "          Accounts Receivable"), D(0));
  EXPECT_EQ(Figure(after, "          Net Income"), D(100));
  EXPECT_EQ(Figure(after, "          Total Cash"), D(101)) << "a bank whose parent is gone stands at the top";

  const ReportRequest request = books.request("BalStand", june, june);
  for (int row = 0; row < after.rows(); ++row)
    if (after.text(row, 1) == std::string(20, ' ') + "Sub") {
      const auto opened = Go_To_Request(after.key(row), request);
      ASSERT_TRUE(opened);
      EXPECT_EQ(opened->key, "PrintAcctBal");
      EXPECT_EQ(opened->from, Date(2026, 1, 1));
      EXPECT_EQ(opened->option(report_option::category), "Sub");
    }
  EXPECT_FALSE(books.report("BalDetail", june, june, Basis::Cash).leads_on());
}

TEST(BalanceSheet, EachMonthOfItsGraphIsTheSheetOfThatDay) {
  Books books;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    RandomBooks random(seed);
    random.write(books);
    const Date as_of = random.day();
    const Basis basis = seed % 2 ? Basis::Cash : Basis::Accrual;
    const Graph graph = Build_Graph(*books.session, books.request("BalStand", as_of, as_of, basis));
    const auto& months = std::get<Graph_Months>(graph.parts.at(0)).months;
    ASSERT_EQ(months.size(), 12u);
    for (const size_t at : {0, 5, 11}) {
      const Date day = std::min(months[at].first_day.end_of_month(), as_of);
      const ReportTable table = books.report("BalStand", day, day, basis);
      const std::vector<Money>& amounts = months[at].amounts;
      EXPECT_EQ(amounts[0], Figure(table, "Total Assets")) << "seed " << seed;
      EXPECT_EQ(amounts[1] + amounts[2], Figure(table, "Total Liabilities & Equity")) << "seed " << seed;
      EXPECT_EQ(amounts[2], Figure(table, "     Total Equity")) << "seed " << seed;
    }
  }
}

}  // namespace
}  // namespace tallymere
