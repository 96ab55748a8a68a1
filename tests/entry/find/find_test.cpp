#include "entry/find/find.h"

#include <gtest/gtest.h>

#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;

struct Finding : ::testing::Test {
  Finding() {
    company.write("Check", Date(2026, 3, 1), "0SS", "40SS", Dollars(12, 50), "O'Brien & Sons", "101");
    company.write("Bill", Date(2026, 2, 1), "AP1", "41SS", Dollars(12, 50), "100% Wool_", "101");
    company.write("Ledger Entry", Date(2026, 2, 1), "0SS", "29SS", Dollars(80), "", "7");
    store::Transaction tx(company.db(), "memo");
    company.db().Execute("UPDATE Transactions SET Memo = 'Blue paint, 5% off' WHERE TransNum = 2");
    tx.commit();
  }
  std::string found(const FindRequest& request) {
    EXPECT_FALSE(Check_Find(request)) << Check_Find(request)->box.text;
    std::string text;
    for (const FoundRow& row : Find_Transactions(*company.session, request))
      text += std::to_string(row.TransNum) + ":" + row.Category + " ";
    return text;
  }
  EntryCompany company;
};

TEST_F(Finding, EveryRowOfATransactionIsFoundUnderItsOwnCategory) {
  const std::string check = "1:Checking 1:Advertising and Promotion ";
  EXPECT_EQ(found({.by = FindBy::Name, .text = "o'brien & sons"}), check);
  EXPECT_EQ(found({.by = FindBy::Date, .date = Date(2026, 3, 1)}), check);
  EXPECT_EQ(found({.by = FindBy::Amount, .text = "12.5"}), "2:Accounts Payable 2:Automobile " + check);
  EXPECT_EQ(found({.by = FindBy::Number, .text = "101"}), "2:Accounts Payable 2:Automobile " + check);
  EXPECT_EQ(found({.by = FindBy::Number, .text = "10"}), "");
}

TEST_F(Finding, PartsOfNamesAndMemosTakeSignsAsTheyStand) {
  const std::string bill = "2:Accounts Payable 2:Automobile ";
  EXPECT_EQ(found({.by = FindBy::Name, .text = "wool"}), bill);
  EXPECT_EQ(found({.by = FindBy::Name, .text = "% w"}), bill);
  EXPECT_EQ(found({.by = FindBy::Name, .text = "_X"}), "") << "no wildcard";
  EXPECT_EQ(found({.by = FindBy::Memo, .text = "PAINT"}), bill);
  EXPECT_EQ(found({.by = FindBy::Memo, .text = "5% off"}), bill);
  EXPECT_EQ(found({.by = FindBy::Memo, .text = ""}), "") << "not the whole ledger";
}

TEST_F(Finding, RangesWorkEitherWayRound) {
  EXPECT_EQ(found({.by = FindBy::Date, .date = Date(2026, 2, 28), .date_to = Date(2026, 1, 1)}),
            "2:Accounts Payable 2:Automobile 3:Checking 3:Sales Income ");
  EXPECT_EQ(found({.by = FindBy::Amount, .text = "$100.00", .text_to = "50"}), "3:Checking 3:Sales Income ");
}

TEST(FindRequests, WhatCannotBeLookedUpIsSaid) {
  const auto said = [](const FindRequest& request) {
    const auto fault = Check_Find(request);
    return fault ? fault->box.title + ": " + fault->box.text + " @" + fault->control : "";
  };
  EXPECT_EQ(said({.by = FindBy::Amount, .text = "twelve"}),
            "No Value: Please Enter a Number value in the Box @txtNumber");
  EXPECT_EQ(said({.by = FindBy::Amount, .text = "1e9"}), "No Value: Please Enter a Number value in the Box @txtNumber");
  EXPECT_EQ(said({.by = FindBy::Amount, .text = "12", .text_to = "x"}),
            "No Value: Please Enter a Number value in the Box @txtNumberTo");
  EXPECT_EQ(said({.by = FindBy::Name, .text = "  "}), "No Value: Please Pick a Name @cmbVen");
}

}  // namespace
}  // namespace tallymere
