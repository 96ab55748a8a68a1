#include "core/company/users.h"

#include <gtest/gtest.h>

#include "core/company/company_settings.h"
#include "core/company/login.h"
#include "core/store/recordset.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct Users : ::testing::Test {
  std::string save(const std::string& editing, const UserForm& form) {
    const auto fault = Save_User(*company.session, editing, form);
    return fault ? fault->box.title + "@" + fault->control : "";
  }
  std::string names() {
    std::string text;
    for (const UserRow& row : User_List(company.db())) text += row.UserName + (row.has_password ? "* " : " ");
    return text;
  }
  TestCompany company;
};

TEST_F(Users, NamesAreNeitherEmptyNorDoubledAndTheAdministratorKeepsHis) {
  EXPECT_EQ(save("", {.UserName = "Ann", .password = {true, "a", "b"}}), "No Match@txtPassword");
  EXPECT_EQ(save("", {.UserName = " "}), "No User@txtUser");
  EXPECT_EQ(save("", {.UserName = "ADMIN"}), "Duplicate User Name@txtUser");
  EXPECT_EQ(save("", {.UserName = "Ann", .password = {true, "a", "a"}, .flags = {true, false, false, false, true}}),
            "");
  EXPECT_EQ(save("Ann", {.UserName = "Admin"}), "Duplicate User Name@txtUser");
  EXPECT_EQ(save("Admin", {.UserName = "Boss"}), "Access Denied@txtUser");
  EXPECT_EQ(save("Ann", {.UserName = "ann", .flags = {true, false, false, false, true}}), "") << "only its case";
  EXPECT_EQ(names(), "Admin ann* ");
}

TEST_F(Users, AnUntouchedPasswordStaysATouchedOneGoesEvenToNothing) {
  save("", {.UserName = "Ann", .password = {true, " Secret", " Secret"}});
  save("Ann", {.UserName = "Ann", .password = {false, "", ""}, .flags = {.AR = true}});
  EXPECT_TRUE(Accepted_User(company.db(), "ann", " Secret"));
  EXPECT_FALSE(Accepted_User(company.db(), "ann", "Secret")) << "exactly as typed";
  save("Ann", {.UserName = "Ann", .password = {true, "", ""}});
  EXPECT_TRUE(Accepted_User(company.db(), "Ann", ""));
}

TEST_F(Users, WhoIsGoneMayNothingAndIsNotMadeAgain) {
  save("", {.UserName = "Ann", .password = {}, .flags = {true, true, true, true, true}});
  EXPECT_TRUE(Flags_Of(company.db(), "Ann").Payroll);
  company.prompts.answers = {false, true};
  EXPECT_FALSE(Delete_User(*company.session, "Admin"));
  EXPECT_FALSE(Delete_User(*company.session, ""));
  EXPECT_FALSE(Delete_User(*company.session, "Ann")) << "No was said";
  EXPECT_TRUE(Delete_User(*company.session, "Ann"));
  EXPECT_FALSE(Flags_Of(company.db(), "Ann").Payroll);
  EXPECT_FALSE(Edit_User(*company.session, "Ann"));
  EXPECT_THROW(save("Ann", {.UserName = "Ann"}), store::Error);
  EXPECT_EQ(names(), "Admin ");
}

TEST(CompanySettings, InfoOfAnotherUserIsNotWrittenOver) {
  TestCompany company;
  Session& session = *company.session;
  const CompanyInfo before = Read_Company_Info(session);
  CompanyInfo mine = before, theirs = before;
  theirs.FedID = "12-3456789";
  mine.LegalCity = "Galena";
  EXPECT_TRUE(Save_Company_Info(session, before, mine, {true, "a", "A"}));
  EXPECT_FALSE(Save_Company_Info(session, before, theirs, {}));
  EXPECT_THROW(Save_Company_Info(session, before, mine, {}), store::Error);
  EXPECT_EQ(Read_Company_Info(session), theirs);
}

TEST(CompanySettings, ColorsThatACompanyLacksAreAdded) {
  TestCompany company;
  Session& session = *company.session;
  store::Transaction tx(company.db(), "an older company");
  company.db().Execute("DELETE FROM Colors WHERE Items = 'BillBack'");
  tx.commit();
  WindowColors colors = Read_Colors(session);
  EXPECT_EQ(colors[2], 0xFFFFFF);
  colors[2] = 0x00FF00;
  Save_Colors(session, colors);
  EXPECT_EQ(Read_Colors(session), colors);
  EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM Colors").integer(), 4);
}

}  // namespace
}  // namespace tallymere
