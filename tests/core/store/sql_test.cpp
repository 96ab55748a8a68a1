#include "core/store/sql.h"

#include <gtest/gtest.h>

#include "core/store/error.h"

namespace tallymere::store {
namespace {

TEST(Sql, TheProgramsPointsOfSqlBecomeTheEngines) {
  struct Case {
    std::string program, engine;
  };
  const Case cases[] = {
      {"SELECT * FROM T WHERE Date >= #1/31/2001#", "SELECT * FROM T WHERE Date >= '2001-01-31'"},
      {"WHERE Dormant = False AND Paid = true", "WHERE Dormant = 0 AND Paid = -1"},
      {"WHERE Name = 'True #1/1/2001# O''Hara'", "WHERE Name = 'True #1/1/2001# O''Hara'"},
      {"WHERE Name LIKE 'a*b?'", "WHERE Name LIKE 'a%b_' ESCAPE '\\'"},
      {"WHERE Name like '50%_off*' OR Memo = '*'", "WHERE Name like '50\\%\\_off%' ESCAPE '\\' OR Memo = '*'"},
      {"SELECT 1099Cat, Boxes FROM Vendors", "SELECT \"1099Cat\", Boxes FROM Vendors"},
      {"SELECT Default FROM PreTaxSet ORDER BY Index", "SELECT \"Default\" FROM PreTaxSet ORDER BY \"Index\""},
      {"SELECT Group, SUM(1e3) FROM T GROUP BY Group", "SELECT \"Group\", SUM(1e3) FROM T GROUP BY \"Group\""},
      {"SELECT Limit, a.Limit FROM T AS a WHERE Limit > 0 ORDER BY Limit LIMIT 1",
       "SELECT \"Limit\", a.\"Limit\" FROM T AS a WHERE \"Limit\" > 0 ORDER BY \"Limit\" LIMIT 1"},
      {"SELECT [Order No] FROM T WHERE TransNum = 12", "SELECT [Order No] FROM T WHERE TransNum = 12"},
  };
  for (const Case& c : cases) EXPECT_EQ(Translate(c.program), c.engine);
  for (auto broken : {"WHERE Date = #13/45/2001#", "WHERE Name = 'open", "WHERE Date = #1/1/2001"})
    EXPECT_THROW(Translate(broken), Error) << broken;
}

/// Each pair is a fault of its own: rows that a plain comparison with null would drop, or an operator torn apart.
TEST(Sql, AnEmptyFieldIsAnEmptyTextWhetherNullOrNot) {
  struct Case {
    std::string program, engine;
    std::vector<Value> params = {};
  };
  const Case cases[] = {
      {"WHERE SourceName <> 'Inventory Part'", "WHERE SourceName IS NOT 'Inventory Part'"},
      {"WHERE NOT a!='x'", "WHERE NOT a IS NOT 'x'"},
      {"WHERE Class = '' AND b=''", "WHERE (Class = '' OR Class IS NULL) AND (b='' OR b IS NULL)"},
      {"WHERE a <> '' AND b = 'x' AND c >= 'x'", "WHERE a <> '' AND b = 'x' AND c >= 'x'"},
      {"WHERE t.Name = ? AND n = ?", "WHERE (t.Name = ? OR t.Name IS NULL) AND n = ?", {"", 3}},
      {"WHERE Name <> ?2 AND Class = ?1", "WHERE Name IS NOT ?2 AND (Class = ?1 OR Class IS NULL)", {"", "x"}},
      {"UPDATE T SET a = '', b = ? WHERE a = ''", "UPDATE T SET a = '', b = ? WHERE (a = '' OR a IS NULL)", {""}},
      {"SELECT a || b = '', Trim(c) = ''", "SELECT a || b = '', Trim(c) = ''"},
      {"WHERE T.Type NOT IN ('Bill', ?)", "WHERE IFNULL(T.Type, '') COLLATE NOCASE NOT IN ('Bill', ?)", {"x"}},
      {"WHERE Class IN ('', 'x')", "WHERE IFNULL(Class, '') COLLATE NOCASE IN ('', 'x')"},
      {"WHERE a IN ('x') AND b NOT IN (1) AND c = 'IN ('", "WHERE a IN ('x') AND b NOT IN (1) AND c = 'IN ('"},
  };
  for (const Case& c : cases) EXPECT_EQ(Translate(c.program, c.params), c.engine);
}

TEST(Sql, OnlyAQueryOverOnePlainTableIsADynaset) {
  EXPECT_EQ(Split_Query("SELECT * FROM Accounts WHERE CatID IN ('a', 'b') ORDER BY A, B").table, "Accounts");
  EXPECT_EQ(Split_Query("select Name from [Other Names]").table, "Other Names");
  EXPECT_EQ(Split_Query("SELECT * FROM T WHERE x = (SELECT MAX(y) FROM U GROUP BY z)").rest,
            " WHERE x = (SELECT MAX(y) FROM U GROUP BY z)");
  for (auto several : {"SELECT a FROM T, U", "SELECT a FROM T UNION SELECT b FROM U", "SELECT DISTINCT a FROM T",
                       "SELECT COUNT(*) FROM T", "SELECT a FROM T GROUP BY a", "SELECT a FROM (SELECT 1)",
                       "SELECT a FROM T INNER JOIN U ON T.x = U.x"})
    EXPECT_EQ(Split_Query(several).table, "") << several;
}

}  // namespace
}  // namespace tallymere::store
