#include "reports/transactions/transaction_reports.h"

#include <set>

#include "core/values/text.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;
using testing::Lines;
using Strings = std::vector<std::string>;

const Date may(2026, 5, 1), middle(2026, 5, 15), may_end(2026, 5, 31), june(2026, 6, 10);

struct ReportBooks : Books {
  ReportBooks() {
    add("Bank", "Bank");
    add("Till", "Bank", "Bank");
    add("Card", "Credit Card");
    add("Rent", "Expense");
    post({3, "Check", middle, "Bank", {}, D(40), "Zoe", "", false, "", "Rent"});
    post({3, "Check", middle, "Rent", D(40), {}, "Zoe", "", false, "", "Bank"});
    post({2, "Deposit", middle, "Till", D(100), {}, "Abel", "", false, "", "<-Break Down->"});
    post({1, "Check", may, "Card", {}, D(15), "Zoe", "", false, "", "Rent"});
    post({4, "Deposit", june, "Till", D(1000), {}, "Abel"});
  }
  ReportTable listed(const std::string& key, const std::string& fields, const std::string& option = "",
                     const std::string& value = "", Date from = may) {
    ReportRequest made = request(key, from, may_end);
    made.options["fields"] = fields;
    if (!option.empty()) made.options[option] = value;
    return Build_Report(*session, made);
  }
};

TEST(TransactionReports, ACategoryIsPositiveOnItsOwnSideAndTakesInItsSubtree) {
  ReportBooks books;
  ReportTable bank = books.listed("AcctRep", "Type,Account,Category,Amount,Balance,", "category", "Bank");
  EXPECT_EQ(Lines(bank), (Strings{"Deposit|Till|<-Break Down->|100|100", "Check|Bank|Rent|-40|60", "", "TOTAL|||60"}));
  EXPECT_EQ(bank.heading.title, "Category Report: Bank");
  EXPECT_EQ(bank.columns[2].caption + bank.columns[3].caption, "Category<-Break Down->");
  EXPECT_FALSE(bank.columns[3].is_right());
  EXPECT_TRUE(bank.columns[4].is_right() && bank.columns[5].is_right());
  EXPECT_EQ(bank.style(0), "Small");
  EXPECT_EQ(bank.key(1).text, "Check");
  EXPECT_EQ(bank.key(1).number, 3);
  EXPECT_EQ(Lines(books.listed("PrintAcctRep", "Amount,Balance,", "category", "Card")), (Strings{"15|15", "", "15"}));
}

TEST(TransactionReports, TheRunningBalanceStartsFromTheDayBefore) {
  ReportBooks books;
  books.post({5, "Check", may_end.plus_days(-31), "Bank", {}, D(7)});  // 4/30
  EXPECT_EQ(Lines(books.listed("PrintAcctBal", "Amount,Balance,", "category", "Bank")),
            (Strings{"|-7", "100|93", "-40|53", "", "60"}));
  EXPECT_EQ(Lines(books.listed("PrintAcctBal", "Balance,Amount,", "category", "Card", middle)),
            (Strings{"15", "", "TOTAL|$0.00"}))
      << "a quiet period, too, shows where it stands";
  books.post({6, "Check", middle, "Card", {}, D(5)});
  EXPECT_EQ(Lines(books.listed("PrintAcctBal", "Balance,Amount,", "category", "Card", middle)),
            (Strings{"15", "20|5", "", "TOTAL|5"}));
  EXPECT_EQ(Lines(books.listed("PrintAcctBal", "Type,Balance,", "category", "Card", middle)),
            (Strings{"Opening Balance|15", "Check|20"}))
      << "reckoned without the amounts on show";
  EXPECT_EQ(Lines(books.listed("PrintAcctBal", "Bogus,", "category", "Bank")).size(), 4U);  // all fields
}

TEST(TransactionReports, OneVendorItemOrPeriod) {
  ReportBooks books;
  EXPECT_EQ(Lines(books.listed("VendorRep", "TransNum,Amount,", "name", "zoe")),
            (Strings{"1|-15", "3|-40", "", "TOTAL|-55"}));  // the debit side stays out
  EXPECT_EQ(books.listed("VendorRep", "Amount,", "name", "Zoe").heading.title, "Vendor Report: Zoe");
  EXPECT_EQ(Lines(books.listed("Date", "TransNum,Account,Debit,Bogus,")),
            (Strings{"1|Card", "2|Till|100", "3|Bank", "3|Rent|40"}));  // no Amount, no total
  books.run("UPDATE Transactions SET Item = 'Nail', Qty = 2.5 WHERE TransNum = 2");
  ReportTable item = books.listed("ItemRep", "Date,Qty,Amount,", "item", "nail");
  EXPECT_EQ(Lines(item), (Strings{"5/15/2026|2.5|100", "", "TOTAL||100"}));
  EXPECT_TRUE(std::holds_alternative<double>(item.value(0, 2).content()));
  EXPECT_EQ(Lines(books.listed("ItemRep", "Date,Amount,", "item", "none")), (Strings{"", "TOTAL|$0.00"}));
}

TEST(TransactionReports, NamesEachHaveTheirHead) {
  ReportBooks books;
  EXPECT_EQ(books.listed("Customer", "Type,").notice, "No Customers to Report");
  for (auto name : {"Zoe", "Idle", "Abel"}) books.add_customer(name);
  ReportTable table = books.listed("Customer", "TransNum,Amount,");
  EXPECT_EQ(Lines(table), (Strings{"Abel", "2|100", "Idle", "Zoe", "1|-15", "3|-40", "3|40", "", "TOTAL|85"}));
  EXPECT_EQ(table.style(0), "Bold");
  EXPECT_EQ(table.notice, "");
  books.run("DELETE FROM PayrollItems");
  books.run("INSERT INTO PayrollItems (Name) VALUES ('Salary')");
  books.run("UPDATE Transactions SET PayrollItem = 'Salary' WHERE TransNum = 2");
  EXPECT_EQ(Lines(books.listed("PayItem", "Type,PayrollItem,Amount,")),
            (Strings{"Salary", "Deposit|Salary|100", "", "TOTAL||100"}));
}

TEST(TransactionReports, ComeUpWithTheirColumnsAndDates) {
  ReportBooks books;
  struct Case {
    const char* key;
    std::string columns, period;
  };
  for (const Case& c :
       {Case{"PrintAcctRep", "Type,Date,Number,Name,Memo,Category,Amount,Balance,", "1/1/2026 - 6/15/2026"},
        Case{"VendorRep", "Type,Date,Number,Name,Memo,Category,Amount,Balance,", "6/1/2026 - 6/15/2026"},
        Case{"ItemRep", "Type,Date,Number,Name,Memo,Qty,Amount,", "1/1/2026 - 6/15/2026"},
        Case{"PayItem", "Type,Date,Number,Name,PayrollItem,Amount,", "1/1/2026 - 6/15/2026"},
        Case{"Date", "Date,Type,Number,Name,Memo,Account,Amount,", "6/1/2026 - 6/15/2026"}}) {
    ReportRequest request = Default_Request(*books.session, c.key);
    EXPECT_EQ(request.option("fields"), c.columns) << c.key;
    EXPECT_EQ(Period_Text(request.from, request.to), c.period) << c.key;
  }
  ReportRequest whole = Default_Request(*books.session, "Date");
  whole.options["fields"] = "";
  ReportTable all = Build_Report(*books.session, whole);
  EXPECT_EQ(all.columns.size(), books.db().find_table("Transactions")->fields.size() + 1);
  EXPECT_EQ(all.columns[1].caption + "," + all.columns[9].caption, "Trans #,Category");
  EXPECT_EQ(Lines(all).at(0).substr(0, 17), "4|Deposit|6/10/20");
}

TEST(Reports, KeysAreUniqueAndFoundByTheirWindow) {
  std::set<std::string> keys;
  for (const ReportDef& report : Reports()) {
    EXPECT_TRUE(keys.insert(folded(report.key)).second) << report.key;
    EXPECT_EQ(Find_Report(report.window, report.asked_as()), &report);
    EXPECT_EQ(Find_Report(upper(report.key)), &report);
  }
}

}  // namespace
}  // namespace tallymere
