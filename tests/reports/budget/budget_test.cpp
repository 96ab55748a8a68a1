#include "reports/budget/budget.h"

#include "core/store/error.h"
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

Budget_Amounts Each_Month(Money amount) {
  Budget_Amounts amounts;
  amounts.fill(amount);
  return amounts;
}

TEST(Budget, AYearIsTwelveRowsHoweverItWas) {
  Books books;
  const auto rows = [&] { return books.db().value("SELECT COUNT(*) FROM Budget").integer(); };
  Save_Budget(*books.session, "Rent", 2026, {}, {});
  EXPECT_EQ(rows(), 12) << "an empty box is a zero";
  EXPECT_EQ(Load_Budget(books.db(), "Rent", 2026), Each_Month({}));
  Save_Budget(*books.session, "Rent", 2026, Each_Month({}), Each_Month(D(5)));
  EXPECT_EQ(rows(), 12);
  EXPECT_EQ(Load_Budget(books.db(), "Rent", 2025), Budget_Amounts());

  books.run("DELETE FROM Budget WHERE Month > 10");
  books.run("INSERT INTO Budget (Category, Year, Month, Amount) VALUES ('Rent', 2026, 3, ?)", {D(9)});
  Budget_Amounts ten = Each_Month(D(5));
  ten[10] = ten[11] = std::nullopt;
  EXPECT_EQ(Load_Budget(books.db(), "Rent", 2026), ten) << "of a month that stands twice, the first";
  Budget_Amounts wanted = Each_Month(D(6));
  Save_Budget(*books.session, "Rent", 2026, ten, wanted);
  EXPECT_EQ(rows(), 12);
  EXPECT_EQ(Load_Budget(books.db(), "Rent", 2026), wanted);
}

TEST(Budget, WhatAnotherUserChangedIsNotWrittenOver) {
  Books books;
  Save_Budget(*books.session, "Rent", 2026, {}, Each_Month(D(5)));
  const auto other = books.another_user();
  Save_Budget(*other, "Rent", 2026, Each_Month(D(5)), Each_Month(D(7)));
  try {
    Save_Budget(*books.session, "Rent", 2026, Each_Month(D(5)), Each_Month(D(8)));
    ADD_FAILURE();
  } catch (const store::Error& error) {
    EXPECT_EQ(error.number, store::errors::data_changed);
  }
  EXPECT_EQ(Load_Budget(books.db(), "Rent", 2026), Each_Month(D(7)));
}

TEST(Budget, FromLastYearWithAPercentage) {
  Books books;
  books.add("Auto", "Expense");
  books.add("Fuel", "Expense", "Auto");
  books.post(
      {.TransNum = 1, .Type = "Check", .day = Date(2025, 2, 28), .Account = "Fuel", .Debit = Money::dollars(33, 33)});
  books.post({.TransNum = 2, .Type = "Check", .day = Date(2025, 2, 1), .Account = "Auto", .Debit = D(10)});
  books.post({.TransNum = 3, .Type = "Check", .day = Date(2026, 2, 1), .Account = "Auto", .Debit = D(900)});
  Budget_Amounts wanted = Each_Month({});
  wanted[1] = Money::dollars(44, 63);
  EXPECT_EQ(Budget_From_Actual(books.db(), "Auto", 2026, 3), wanted);
}

/// Budget against actual, month by month and row by row.
Strings Plain_Comparison(const RandomBooks& books,
                         const std::map<std::tuple<std::string, int, unsigned>, Money>& budget, Date start, Date end) {
  const std::function<Money(const std::string&, Date)> actual = [&](const std::string& id, Date month) {
    Money sum;
    for (const Posting& row : books.rows)
      if (row.Account == id && row.day >= month && row.day <= month.end_of_month()) sum += Amount_Of(row);
    for (const auto& child : books.accounts)
      if (child.ParentAccount == id) sum += actual(child.CatID, month);
    return sum;
  };
  auto accounts = books.accounts;
  std::stable_sort(accounts.begin(), accounts.end(),
                   [](auto& a, auto& b) { return folded(a.CatID) < folded(b.CatID); });
  Strings lines;
  for (const auto& account : accounts) {
    const std::string& id = account.CatID;
    if (id == "AR1" || id == "UF1" || account.AccountType == "Bank" || account.AccountType == "Credit Card") continue;
    if (!account.ParentAccount.empty() && account.ParentAccount != "gone") continue;
    std::string line = id;
    for (Date month = start.first_of_month(); month <= end; month = month.add_months(1)) {
      bool any = false;
      Money planned;
      for (const auto& [key, amount] : budget)
        if (std::get<0>(key) == id && std::get<1>(key) == month.year()) {
          any = true;
          if (std::get<2>(key) == month.month()) planned = amount;
        }
      const Money spent = actual(id, month);
      line += any ? "|" + spent.to_text() + "|" + planned.to_text() + "|" + (spent - planned).to_text() : "|||";
    }
    line.erase(line.find_last_not_of('|') + 1);
    lines.push_back(line);
  }
  return lines;
}

TEST(Budget, TheComparisonAgreesWithAPlainReadingOnRandomBooks) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 40 && !HasFailure(); ++seed) {
    RandomBooks random(seed);
    random.write(books);
    std::map<std::tuple<std::string, int, unsigned>, Money> budget;
    for (int at = 0; at < 60; ++at) {
      const std::tuple key(random.any(random.accounts).CatID, 2024 + random.pick(3),
                           1u + static_cast<unsigned>(random.pick(12)));
      const Money amount = Money::from_units(random.pick(500000));
      if (budget.emplace(key, amount).second)
        books.run("INSERT INTO Budget (Category, Year, Month, Amount) VALUES (?, ?, ?, ?)",
                  {std::get<0>(key), std::get<1>(key), static_cast<int>(std::get<2>(key)), amount});
    }
    const Date start = random.day(), end = start.plus_days(random.pick(300));
    const Strings plain = Plain_Comparison(random, budget, start, end);
    EXPECT_EQ(testing::Lines(books.report("BudCompare", start, end)), plain) << "seed " << seed;
    for (const std::string& line : plain) figures += line.find_first_of("123456789") != std::string::npos;
  }
  EXPECT_GT(figures, 150);
}

TEST(Budget, MonthsStandInGroupsAndADeletedCategoryStaysInTheListing) {
  Books books;
  books.add("Rent", "Expense");
  Save_Budget(*books.session, "Rent", 2026, {}, Each_Month(D(5)));
  Save_Budget(*books.session, "9SS", 2026, {}, Each_Month(D(1)));
  ReportTable table = books.report("BudCompare", Date(2026, 3, 5), Date(2026, 3, 20));
  ASSERT_EQ(table.groups.size(), 1u);
  EXPECT_EQ(table.groups[0].caption, "Mar 2026");
  EXPECT_EQ(table.columns[4].caption, "$ Over Budget");
  EXPECT_EQ(testing::Line_Of(table, "Rent"), "Rent|0|5|-5");
  books.post({.TransNum = 1, .Type = "Check", .day = Date(2026, 4, 30), .Account = "Rent", .Debit = D(7)});
  books.add("Sales", "Income");  // nothing planned, nothing compared
  books.post({.TransNum = 2, .Type = "Deposit", .day = Date(2026, 4, 30), .Account = "Sales", .Credit = D(9)});
  const Graph graph = Build_Graph(*books.session, books.request("BudCompare", Date(2026, 3, 5), Date(2026, 4, 1)));
  const auto amounts = [&](size_t part, size_t month) {
    return std::get<Graph_Months>(graph.parts.at(part)).months.at(month).amounts;
  };
  EXPECT_EQ(amounts(0, 1), (std::vector{D(0), D(0)}));
  EXPECT_EQ(amounts(1, 0), (std::vector{D(0), D(5)}));
  EXPECT_EQ(amounts(1, 1), (std::vector{D(7), D(5)}));
  const std::string twelve_ones = "|1|1|1|1|1|1|1|1|1|1|1|1|12", fives = "|5|5|5|5|5|5|5|5|5|5|5|5|60";
  EXPECT_EQ(testing::Lines(books.report("BudList", Date(2026, 1, 1), Date(2026, 12, 31))),
            (Strings{"9SS" + twelve_ones, "Rent" + fives}));
  EXPECT_TRUE(testing::Lines(books.report("BudList", Date(2025, 1, 1), Date(2025, 12, 31))).empty());
  EXPECT_EQ(testing::Lines(books.report("BudList", Date(2025, 1, 1), Date(2026, 12, 31)))[0], "2026");
}

}  // namespace
}  // namespace tallymere
