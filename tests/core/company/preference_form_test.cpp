#include "core/company/preference_form.h"

#include <gtest/gtest.h>

#include "core/company/logo.h"
#include "core/company/preferences.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

TEST(Preferences, WhatAnotherUserChangedMeanwhileStays) {
  TestCompany company;
  Session& session = *company.session;
  const PreferenceForm before = Read_Preferences(session);
  EXPECT_EQ(before.SalesBase, "Accural");
  PreferenceForm mine = before, theirs = before;
  theirs.FinanceAPR = "18%";
  mine.SalesBase = "Cash";
  mine.DefaultBank = "";  // a name that matches no bank
  EXPECT_FALSE(Save_Preferences(session, before, theirs));
  EXPECT_FALSE(Save_Preferences(session, before, mine));
  const PreferenceForm now = Read_Preferences(session);
  EXPECT_EQ(now.FinanceAPR + " " + now.SalesBase + " " + now.DefaultBank, "18% Cash 0SS");
}

TEST(Preferences, RatesAreNumbersAndMissingKeysAreMade) {
  TestCompany company;
  Session& session = *company.session;
  store::Transaction tx(company.db(), "an older company");
  company.db().Execute("DELETE FROM GeneralPrefs WHERE Preference = 'Style'");
  tx.commit();
  const PreferenceForm before = Read_Preferences(session);
  PreferenceForm now = before;
  now.Style = "Custom";
  now.FinanceAPR = "a lot";
  EXPECT_EQ(Save_Preferences(session, before, now)->control, "txtAPR");
  EXPECT_EQ(Read_Preferences(session).Style, "") << "all or nothing";
  now.FinanceAPR = "";
  EXPECT_FALSE(Save_Preferences(session, before, now));
  EXPECT_EQ(Preference(company.db(), preference::Style), "Custom");
}

TEST(Preferences, TheLogoLiesInTheCompanyByteForByte) {
  TestCompany company;
  Session& session = *company.session;
  std::string picture;
  for (int byte = 0; byte < 1000; ++byte) picture.push_back(static_cast<char>(byte * 7));
  const PreferenceForm before = Read_Preferences(session);
  PreferenceForm now = before;
  now.logo = picture;
  EXPECT_FALSE(Save_Preferences(session, before, now));
  EXPECT_EQ(Company_Logo(company.db()), picture);
  now.logo = std::string(Largest_Logo + 1, 'x');
  EXPECT_EQ(Save_Preferences(session, before, now)->box.title, "Company Logo");
  now.logo = "";
  EXPECT_FALSE(Save_Preferences(session, before, now));
  EXPECT_EQ(Company_Logo(company.db()), "");
}

}  // namespace
}  // namespace tallymere
