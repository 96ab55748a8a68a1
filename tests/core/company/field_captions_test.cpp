#include "core/company/field_captions.h"

#include <gtest/gtest.h>

#include <cctype>

#include "core/company/schema.h"

namespace tallymere {
namespace {

TEST(FieldCaptions, NoFieldRunsItsWordsTogetherOnTheScreen) {
  for (const TableDef& table : company_tables())
    for (const FieldDef& field : table.fields) {
      const std::string caption = Field_Caption(field.name);
      for (size_t at = 1; at < caption.size(); ++at)
        EXPECT_FALSE(std::islower(caption[at - 1]) && std::isupper(caption[at])) << caption;
    }
  EXPECT_EQ(Field_Caption("PaidThrough"), "Paid Through");
  EXPECT_EQ(Field_Caption("FUTAHold"), "FUTA Hold");
  EXPECT_EQ(Field_Caption("FOB"), "FOB");
  EXPECT_EQ(Field_Caption("Account") + Field_Caption("Category"), "Category<-Break Down->");
}

}  // namespace
}  // namespace tallymere
