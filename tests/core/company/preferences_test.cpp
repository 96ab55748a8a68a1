#include "core/company/preferences.h"

#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

TEST(Preferences, AMissingKeyIsMadeOnceAndFoundInAnyCase) {
  testing::TestCompany company;
  store::Database& db = company.db();
  const auto set = [&](std::string_view key, std::string_view State) {
    store::Transaction tx(db, "Preferences");
    Set_Preference(db, key, State);
    Set_Background(db, "NewBack", 0x332211);
    tx.commit();
  };
  const auto rows = [&](const char* sql) { return db.value(sql).integer(); };
  const int64_t before = rows("SELECT COUNT(*) FROM GeneralPrefs");

  company.run("DELETE FROM GeneralPrefs WHERE Preference = 'SalesBase'");
  EXPECT_EQ(Preference(db, preference::SalesBase), "");
  EXPECT_FALSE(Sales_Tax_On_Cash(db));
  EXPECT_EQ(Background(db, "NewBack"), std::nullopt);
  set(preference::SalesBase, "Cash");
  set("salesbase", "Accural");
  EXPECT_EQ(Preference(db, preference::SalesBase), "Accural");
  EXPECT_EQ(rows("SELECT COUNT(*) FROM GeneralPrefs"), before);
  EXPECT_EQ(Background(db, "newback"), 0x332211);
  EXPECT_EQ(rows("SELECT COUNT(*) FROM Colors WHERE Items = 'NewBack'"), 1);

  company.run("UPDATE GeneralPrefs SET State = NULL WHERE Preference = 'LogoPath'");
  set(preference::LogoPath, "logo.jpg");
  EXPECT_EQ(Preference(db, preference::LogoPath), "logo.jpg");
  const int64_t actions = rows("SELECT MAX(RowKey) FROM History");
  set(preference::LogoPath, "logo.jpg");
  EXPECT_EQ(rows("SELECT MAX(RowKey) FROM History"), actions) << "what is so already leaves no trace";
}

}  // namespace
}  // namespace tallymere
