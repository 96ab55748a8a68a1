#include "core/values/tsv.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallymere {
namespace {

TEST(Tsv, CellsComeBackAsTheyWereMeant) {
  const Tsv table = Parse_Tsv("Name\tNotes\r\nA\\tB\tone\\ntwo\\\\n\r\n\t\nlast\tno line feed", "Class.tsv");
  EXPECT_EQ(table.fields, (std::vector<std::string>{"Name", "Notes"}));
  EXPECT_EQ(table.rows,
            (std::vector<std::vector<std::string>>{{"A\tB", "one\ntwo\\n"}, {"", ""}, {"last", "no line feed"}}));
  EXPECT_EQ(Parse_Tsv("Name\n\n", "Class.tsv").rows, (std::vector<std::vector<std::string>>{{""}}));
  EXPECT_TRUE(Parse_Tsv("Name", "Class.tsv").rows.empty());
}

TEST(Tsv, ErrorsSayWhere) {
  struct Case {
    std::string text, error;
  };
  const Case cases[] = {
      {"", "T.tsv, line 1: a field without a name"},
      {"A\t\n", "T.tsv, line 1: a field without a name"},
      {"A\tB\tA\n", "T.tsv, line 1: field A stands twice"},
      {"A\tB\n1\t2\n3\n", "T.tsv, line 3: 1 cells, not 2"},
      {"A\tB\n1\t2\t3\n", "T.tsv, line 2: 3 cells, not 2"},
      {"A\tB\n1\t2\n\n", "T.tsv, line 3: 1 cells, not 2"},
      {"A\nC:\\x\n", "T.tsv, line 2: a backslash without t, n, r or backslash behind it"},
      {"A\nend\\", "T.tsv, line 2: a backslash without t, n, r or backslash behind it"},
  };
  for (const Case& c : cases) {
    try {
      Parse_Tsv(c.text, "T.tsv");
      ADD_FAILURE() << "accepted: " << c.text;
    } catch (const Tsv_Error& error) {
      EXPECT_EQ(error.what(), c.error);
    }
  }
  EXPECT_THROW(Read_Tsv("no such folder/Class.tsv"), Tsv_Error);
}

}  // namespace
}  // namespace tallymere
