#include "lists/parties/vendors.h"

#include <gtest/gtest.h>

#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;
using Rows = std::vector<std::string>;

TEST(Boxes1099, KeepTheNamesAndFindTheirRowsAgain) {
  const Rows rows{"1: Rents:", "7: Nonemployee compensation"};
  EXPECT_EQ(Boxes_Text(rows), "Rents:,Nonemployee compensation,;");
  EXPECT_EQ(Boxes_Text({}), ";");
  EXPECT_EQ(Boxes_Text({"1: Intrest Income:"}), "Intrest Income:,;");
  EXPECT_EQ(Selected_Boxes("Rents:,Nonemployee compensation,;", Form1099::MISC), rows);
  for (const char* nothing : {"", ";", ",;", " ,,;", "Rents:,;"})
    EXPECT_TRUE(Selected_Boxes(nothing, Form1099::INT).empty()) << nothing << " names no box of the form";
  EXPECT_EQ(Selected_Boxes("Royalties;", Form1099::MISC), Rows{"2: Royalties"}) << "as other programs write it";
  for (const Form1099 form : {Form1099::INT, Form1099::MISC})
    for (const std::string_view row : Box_Rows(form))
      EXPECT_EQ(Selected_Boxes(Boxes_Text({std::string(row)}), form), Rows{std::string(row)});
}

struct Vendors : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;
  std::string value(const char* sql) { return company.db().value(sql).text(); }
};

TEST_F(Vendors, TheFirstMistakeIsNamed) {
  ListRow row(session, Vendor_Rows);
  EXPECT_EQ(Save_Vendor(session, row, {.chk1099 = true}).fault->box.title, "No Name");
  EXPECT_EQ(Save_Vendor(session, row, {.Name = "Acme", .TaxID = " ", .chk1099 = true}).fault->box.text,
            "Please Supply a Valid Tax ID");
  EXPECT_TRUE(Save_Vendor(session, row, {.Name = "Acme"}).ok());
  EXPECT_EQ(value("SELECT Boxes || Balance || Eligible1099 FROM Vendors"), ";00");
}

TEST_F(Vendors, WhatThe1099ReportsIsKeptThroughViewingAndUnticking) {
  VendorForm form{.Name = "Acme",
                  .ShippingAddress = "1 Way",
                  .TaxID = "36",
                  .chk1099 = true,
                  .lblCat = "41SS",
                  .boxes = {"1: Rents:"}};
  ListRow fresh(session, Vendor_Rows);
  ASSERT_TRUE(Save_Vendor(session, fresh, form).ok());
  const char* setup = "SELECT ShippingAddress || \"1099Cat\" || Boxes || \"1099MISC\" || Eligible1099 FROM Vendors";
  EXPECT_EQ(value(setup), "1 Way41SSRents:,;-1-1");

  company.run("UPDATE Vendors SET Boxes = 'Rents;', Type = 'Landlord'");  // written by another program
  ListRow row(session, Vendor_Rows, "Acme");
  form = Vendor_Form(row);
  EXPECT_EQ(form.boxes, Rows{"1: Rents:"});
  const std::string before = value("SELECT COUNT(*) FROM History");
  ASSERT_TRUE(Save_Vendor(session, row, form).ok());
  EXPECT_EQ(value("SELECT COUNT(*) FROM History"), before) << "viewing and saving is no action";
  form.chk1099 = false;
  form.boxes.clear();
  ASSERT_TRUE(Save_Vendor(session, row, form).ok());
  EXPECT_EQ(value(setup), "1 Way41SSRents;-10");
  form.chk1099 = true;
  form.form = Form1099::INT;
  form.boxes = {"1: Intrest Income:"};
  ASSERT_TRUE(Save_Vendor(session, row, form).ok());
  EXPECT_EQ(value(setup), "1 Way41SSIntrest Income:,;0-1");
  EXPECT_EQ(value("SELECT Type FROM Vendors"), "Landlord");
}

TEST_F(Vendors, ANewNameGoesToItemsAndPayrollItemsThatNameIt) {
  ListRow fresh(session, Vendor_Rows);
  ASSERT_TRUE(Save_Vendor(session, fresh, {.Name = "Acme"}).ok());
  company.run("INSERT INTO Items (ItemName, InvVendor, TaxVendor) VALUES ('Hose', 'acme', ''), ('Tax', '', 'Acme')");
  company.run("UPDATE PayrollItems SET LiabilityAgency = 'Acme'");
  ListRow row(session, Vendor_Rows, "Acme");
  ASSERT_TRUE(Save_Vendor(session, row, {.Name = "Zed & Co", .carry = Carry::Lists}).ok());
  EXPECT_EQ(value("SELECT GROUP_CONCAT(InvVendor || TaxVendor) FROM Items"), "Zed & Co,Zed & Co");
  EXPECT_EQ(value("SELECT COUNT(*) FROM PayrollItems WHERE LiabilityAgency <> 'Zed & Co'"), "0");
}

}  // namespace
}  // namespace tallymere
