// What customers pay: applied to what they owe, held, deposited, and given back exactly.
#include <random>

#include "core/ledger/settlement.h"
#include "core/ledger/verify.h"
#include "entry/receipts/deposit.h"
#include "entry/receipts/payment.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

struct Till : EntryCompany {
  /// An invoice of two lines, of which the first is a third; or a credit memo.
  int64_t invoice(const char* name, Date date, Money total, const char* number = "") {
    Transaction_Writer rows(*session, {.Type = "Invoice", .Date = date, .Number = number, .Name = name});
    const Money first = total.share(Dollars(1), Dollars(3)).rounded_to_cents();
    const auto add = [&](const char* account, const char* category, Money debit) {
      rows.add({.Account = account, .Category = category, .Debit = debit, .Amount = debit, .AmountReceived = Money()});
    };
    add("AR1", "<-Break Down->", total);
    add("29SS", "AR1", -first);
    add("30SS", "AR1", first - total);
    rows.commit();
    return rows.number();
  }
  Payment payment(const char* name, Money amount, const char* CatID = "UF1") {
    Payment made = New_Payment(*session);
    made.Name = name;
    made.Amount = amount;
    made.CatID = CatID;
    List_Open_Items(*session, made);
    Apply_Automatically(made.items, amount);
    return made;
  }
  int64_t saved(Payment made) {
    const SaveResult result = Enter_Payment(*session, made);
    EXPECT_TRUE(result.written) << (result.fault ? result.fault->box.text : "");
    return made.TransNum;
  }
  Deposit deposit(const std::vector<int64_t>& payments) {
    Deposit made = New_Deposit(*session);
    made.BankID = "0SS";
    made.lines = Held_Lines(*session, payments);
    return made;
  }
  std::string settled(int64_t number) { return Rows_Of(db(), number, "Amount AmountReceived Paid PaidBy"); }
};

std::string Shares(const std::vector<OpenItem>& items) {
  std::string text;
  for (const OpenItem& item : items) text += (item.Recieved ? item.share().to_text() : "-") + " ";
  return text;
}

TEST(Payments, AreAppliedToTheExactInvoiceElseFromTheOldestOn) {
  const auto items = [] {
    return std::vector<OpenItem>{{.Total = Dollars(50), .AmountRecieved = Dollars(20), .before = Dollars(20)},
                                 {.Total = -Dollars(30)},
                                 {.Total = Dollars(80)},
                                 {.Total = Dollars(50)}};
  };
  const struct {
    Money amount;
    const char *shares, *left;
  } cases[] = {{Dollars(50), "- - - 50 ", "0"},   {Dollars(40), "30 - 10 - ", "0"},
               {Dollars(110), "30 - 80 - ", "0"}, {Dollars(170), "30 - 80 50 ", "10"},
               {Money(), "- - - - ", "0"},        {-Dollars(30), "- - - - ", "-30"}};
  for (const auto& c : cases) {
    auto applied = items();
    applied[2].Recieved = true;  // what was applied before is taken back first
    applied[2].AmountRecieved = Dollars(3);
    EXPECT_EQ(Apply_Automatically(applied, c.amount).to_text(), c.left);
    EXPECT_EQ(Shares(applied), c.shares) << c.amount.to_text();
    EXPECT_EQ(Left_To_Apply(applied, c.amount).to_text(), c.left) << "by hand it comes to the same";
  }
  OpenItem item{.Recieved = true, .Total = Dollars(80), .AmountRecieved = Dollars(20), .before = Dollars(20)};
  Tick(item, Dollars(100));
  EXPECT_EQ(item.AmountRecieved, Dollars(80));
  item.Recieved = false;
  Tick(item, Dollars(100));
  EXPECT_EQ(item.AmountRecieved, Dollars(20));
}

TEST(Payments, PartsAreSharedOverTheRowsAndGivenBackExactly) {
  Till till;
  const int64_t invoice = till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  const int64_t other = till.invoice("Jones", Date(2026, 5, 2), Dollars(40));
  const int64_t first = till.saved(till.payment("Jones", Dollars(100), "0SS"));
  EXPECT_EQ(Rows_Of(till.db(), first, "Account Category Debit Credit Amount Paid"),
            "0SS|AR1|100|0|100|True\nAR1|0SS|0|100|100|True\n");
  const std::string by = std::to_string(first) + ";";
  EXPECT_EQ(till.settled(invoice),
            "150|100|False|" + by + "\n50|33.3333|False|" + by + "\n100|66.6667|False|" + by + "\n");
  const std::string part_paid = till.settled(invoice);
  const int64_t second = till.saved(till.payment("Jones", Dollars(50)));
  EXPECT_EQ(Rows_Of(till.db(), second, "Account Paid"), "UF1|False\nAR1|False\n");
  EXPECT_EQ(till.settled(invoice).substr(0, 13), "150|150|True|");

  // Editing counts its own share back in; another's stays.
  Payment edited = *Load_Payment(*till.session, second);
  EXPECT_EQ(Shares(edited.items), "50 - ");
  edited.Amount = Dollars(40);
  Apply_Automatically(edited.items, *edited.Amount);
  EXPECT_EQ(Shares(edited.items), "- 40 ") << "exactly the other one";
  ASSERT_TRUE(Enter_Payment(*till.session, edited).written);
  EXPECT_EQ(till.settled(invoice), part_paid);
  EXPECT_EQ(till.settled(other).substr(0, 10), "40|40|True");
  ASSERT_TRUE(Enter_Payment(*till.session, edited).written) << "saved again from the same window";
  ASSERT_TRUE(Delete_Payment(*till.session, edited).deleted);
  EXPECT_EQ(till.settled(invoice), part_paid) << "only what it gave is taken back";
  EXPECT_EQ(till.settled(other).substr(0, 10), "40|0|False");
}

TEST(Payments, MistakesAreToldInTheOrderOfTheScreen) {
  Till till;
  till.invoice("Jones", Date(2026, 5, 1), Dollars(150), "17");
  const auto said = [&](Payment payment) {
    const SaveResult result = Enter_Payment(*till.session, payment);
    return result.fault ? result.fault->box.title : result.written ? "saved" : "nothing";
  };
  Payment payment = till.payment("Jones", Dollars(200));
  EXPECT_EQ(said(New_Payment(*till.session)), "nothing");
  payment.Name = "";
  EXPECT_EQ(said(payment), "No Customer");
  payment.Name = "Jones";
  payment.CatID = "";
  EXPECT_EQ(said(payment), "No Bank");
  payment.CatID = "0SS";
  EXPECT_EQ(said(payment), "Not Equal") << "an overpayment";
  payment.items[0].AmountRecieved = Dollars(200);
  EXPECT_EQ(said(payment), "Not Equal") << "more than is open";
  EXPECT_EQ(said(till.payment("Smith", Money())), "No Invoices" + std::string());
  EXPECT_EQ(said(till.payment("Jones", Money(), "0SS")), "No Invoices Paid");
  EXPECT_EQ(said(till.payment("Jones", Dollars(150), "0SS")), "saved");
}

TEST(Payments, TwoUsersNeverPayTheSameTwice) {
  Till till;
  const int64_t invoice = till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  till.invoice("Jones", Date(2026, 5, 2), Dollars(40));
  Payment mine = till.payment("Jones", Dollars(150)), theirs = till.payment("Jones", Dollars(150)),
          beside = till.payment("Jones", Dollars(40));
  ASSERT_TRUE(Enter_Payment(*till.session, theirs).written);
  const SaveResult result = Enter_Payment(*till.session, mine);
  EXPECT_TRUE(result.conflict);
  EXPECT_EQ(Applied_To(till.db(), invoice).size(), 1u);
  EXPECT_EQ(till.count(), 8);
  EXPECT_TRUE(Enter_Payment(*till.session, beside).written) << "what it does not touch is none of its business";
}

TEST(Deposits, HoldTheirPaymentsUntilTheyAreDeleted) {
  Till till;
  till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  till.invoice("Smith", Date(2026, 5, 1), Dollars(40));
  const int64_t jones = till.saved(till.payment("Jones", Dollars(150)));
  const int64_t smith = till.saved(till.payment("Smith", Dollars(40)));
  Deposit deposit = till.deposit({jones, smith});
  deposit.Number = "D1";
  deposit.lines.push_back({.Customer = "Tax office", .Amount = Dollars(10), .Memo = "Refund", .CatID = "40SS"});
  Deposit rival = till.deposit({smith});
  EXPECT_EQ(Waiting_Payments(*till.session).size(), 2u) << "picked is not yet deposited";
  ASSERT_TRUE(Enter_Deposit_Form(*till.session, deposit).written);
  EXPECT_EQ(Rows_Of(till.db(), deposit.TransNum, "Type Number Account Category Debit Credit Name Memo"),
            "Ledger Entry|D1|0SS|<-Break Down->|200|0||Deposit\nLedger Entry|D1|UF1|0SS|0|150|Jones|\n"
            "Ledger Entry|D1|UF1|0SS|0|40|Smith|\nLedger Entry|D1|40SS|0SS|0|10|Tax office|Refund\n");
  EXPECT_TRUE(Waiting_Payments(*till.session).empty());
  const SaveResult twice = Enter_Deposit_Form(*till.session, rival);
  ASSERT_TRUE(twice.fault);
  EXPECT_EQ(twice.fault->box.title, "Data has changed");

  Payment held = *Load_Payment(*till.session, jones);
  held.Memo = "changed";
  EXPECT_EQ(Enter_Payment(*till.session, held).fault->box.title, "Payment Deposited");
  till.prompts.boxes.clear();
  EXPECT_FALSE(Delete_Payment(*till.session, held).deleted);
  EXPECT_NE(till.prompts.boxes.at(0).text.find("Ledger Entry D1"), std::string::npos) << "it is named";

  Delete_Transaction(*till.session, deposit.TransNum);
  EXPECT_EQ(Waiting_Payments(*till.session).size(), 2u);
  Deposit single = till.deposit({smith});
  ASSERT_TRUE(Enter_Deposit_Form(*till.session, single).written);
  EXPECT_EQ(Rows_Of(till.db(), single.TransNum, "Account Category Name"), "0SS|UF1|Smith\nUF1|0SS|Smith\n");
}

/// What the windows write is in order; what somebody else spoils is found.
TEST(Deposits, VerifyFollowsTheMoney) {
  Till till;
  const int64_t invoice = till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  const int64_t jones = till.saved(till.payment("Jones", Dollars(150)));
  Deposit deposit = till.deposit({jones});
  ASSERT_TRUE(Enter_Deposit_Form(*till.session, deposit).written);
  const auto faults = [&] {
    std::string names;
    for (const Finding& finding : Verify_Company(till.db()))
      if (finding.check == "payments" || finding.check == "held") names += finding.check + " ";
    return names;
  };
  EXPECT_EQ(faults(), "");
  const std::string of_invoice = " WHERE TransNum = " + std::to_string(invoice),
                    of_share = " WHERE Document = " + std::to_string(invoice),
                    of_payment = " WHERE TransNum = " + std::to_string(jones),
                    of_deposit = " WHERE Account = 'UF1' AND TransNum = " + std::to_string(deposit.TransNum);
  const auto spoiled = [&](const std::string& spoil, const std::string& mend, const std::string& where) {
    till.run("UPDATE " + spoil + where);
    const std::string found = faults();
    till.run("UPDATE " + mend + where);
    return found;
  };
  EXPECT_EQ(spoiled("Transactions SET Name = 'Smith'", "Transactions SET Name = 'Jones'", of_invoice), "payments ");
  EXPECT_EQ(spoiled("Applied SET Amount = 140", "Applied SET Amount = 1500000", of_share), "payments ");
  EXPECT_EQ(spoiled("Transactions SET Paid = False", "Transactions SET Paid = True", of_payment), "held ");
  EXPECT_EQ(spoiled("Transactions SET Credit = Credit + 1", "Transactions SET Credit = Credit - 1", of_deposit),
            "held ");
  EXPECT_EQ(faults(), "");
}

/// A register, or any other window, cannot write over what was settled.
TEST(Deposits, WhatIsSettledHoldsAgainstEveryWriter) {
  Till till;
  const int64_t invoice = till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  const int64_t jones = till.saved(till.payment("Jones", Dollars(150)));
  Deposit deposit = till.deposit({jones});
  ASSERT_TRUE(Enter_Deposit_Form(*till.session, deposit).written);
  const auto rewritten = [&](int64_t number, const char* type, const char* from, const char* to, Money amount,
                             const char* name) {
    return Save_Or_Conflict([&] {
      Transaction_Writer rows(*till.session, {.TransNum = number, .Type = type, .Date = Date(2026, 6, 1), .Name = name},
                              Probe::Of(till.db(), number));
      rows.add({.Account = from, .Category = to, .Credit = amount, .Amount = amount});
      rows.add({.Account = to, .Category = from, .Debit = amount, .Amount = amount});
      rows.commit();
    });
  };
  EXPECT_TRUE(rewritten(deposit.TransNum, "Ledger Entry", "UF1", "0SS", Dollars(140), ""));
  EXPECT_TRUE(rewritten(deposit.TransNum, "Ledger Entry", "40SS", "0SS", Dollars(150), ""));
  EXPECT_TRUE(rewritten(jones, "Payment", "AR1", "UF1", Dollars(140), "Jones"));
  EXPECT_TRUE(rewritten(jones, "Payment", "AR1", "0SS", Dollars(150), "Jones"));
  EXPECT_TRUE(rewritten(invoice, "Invoice", "29SS", "AR1", Dollars(150), "Smith"));
  EXPECT_FALSE(rewritten(deposit.TransNum, "Ledger Entry", "UF1", "1SS", Dollars(150), "")) << "another bank";
  EXPECT_FALSE(rewritten(invoice, "Invoice", "29SS", "AR1", Dollars(200), "Jones"));
  EXPECT_EQ(till.settled(invoice).substr(0, 14), "200|150|False|") << "and 50 of it is open again";
}

TEST(Deposits, AreAllOrNothing) {
  Till till;
  till.invoice("Jones", Date(2026, 5, 1), Dollars(150));
  const int64_t jones = till.saved(till.payment("Jones", Dollars(150)));
  const auto said = [&](Deposit deposit) {
    const SaveResult result = Enter_Deposit_Form(*till.session, deposit);
    return result.fault ? result.fault->box.title : result.conflict ? result.conflict->box.title : "saved";
  };
  Deposit deposit = till.deposit({jones});
  deposit.BankID = "";
  EXPECT_EQ(said(deposit), "No Bank");
  EXPECT_EQ(said(till.deposit({})), "No Items");
  deposit = till.deposit({jones});
  deposit.lines.push_back({.Customer = "X", .Amount = Dollars(1)});
  EXPECT_EQ(said(deposit), "Invalid Data");
  deposit.lines.back() = {.Customer = "X", .Amount = Dollars(1), .CatID = "gone"};
  EXPECT_NE(said(deposit), "saved");
  EXPECT_EQ(Waiting_Payments(*till.session).size(), 1u);
  Deposit next = till.deposit({jones});
  const int64_t taken = till.write("Check", Date(2026, 6, 1), "0SS", "40SS", Dollars(1), "", "", next.TransNum);
  ASSERT_TRUE(Enter_Deposit_Form(*till.session, next).written);
  EXPECT_NE(next.TransNum, taken);
}

}  // namespace
}  // namespace tallymere
