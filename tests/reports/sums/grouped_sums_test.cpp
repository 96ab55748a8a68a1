#include "reports/sums/ledger_sums.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::D;

TEST(GroupedSums, TakeAReportsOwnTestAndValue) {
  testing::Books books;
  const Date may(2026, 5, 1), june(2026, 6, 1);
  books.add("AR1", "Accounts Receivable");
  books.add("Job", "Accounts Receivable", "AR1");
  books.post({.TransNum = 1, .Type = "Invoice", .day = may, .Account = "AR1", .Debit = D(100), .Name = "Ann"});
  books.post({.TransNum = 2, .Type = "Payment", .day = may, .Account = "AR1", .Credit = D(30), .Name = "Ann"});
  books.post({.TransNum = 3, .Type = "Deposit", .day = may, .Account = "Job", .Debit = D(7), .Name = "Bob"});
  books.post({.TransNum = 4, .Type = "Invoice", .day = june, .Account = "AR1", .Debit = D(900), .Name = "Eve"});
  const DateRange days{may, may};

  EXPECT_EQ(Sum_Categories(books.db(), {"ar1", "Job"}, days, {}).at("AR1"), D(-70));
  const Sum_Of amounts{.counted = "Transactions.Type <> 'Invoice'", .value = "Amount"};
  EXPECT_EQ(Sum_Categories(books.db(), {"AR1"}, days, amounts).at("AR1"), D(30));

  std::map<std::string, Money> told;
  Sum_Names(books.db(), days, amounts, [&](std::string_view name, std::string_view id, Money sum) {
    told[std::string(name) + "/" + std::string(id)] = sum;
  });
  EXPECT_EQ(told, (std::map<std::string, Money>{{"Ann/AR1", D(30)}, {"Bob/Job", D(7)}})) << "only names of the period";
  Sum_Names(books.db(), days, {.counted = "Transactions.Type = 'Bill'"},
            [&](std::string_view name, std::string_view, Money sum) { EXPECT_TRUE(sum.is_zero()) << name; });
}

}  // namespace
}  // namespace tallymere
