#include "printing/layout.h"

#include <fstream>
#include <sstream>

#include "core/store/error.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

Layout Sample() {
  Layout layout("crpInvoice");
  layout.SetText("Number", "1042");
  layout.SetText("Message", "two\r\nlines\tand \\ all");
  layout.SetPicture("Logo", std::string("\x89PNG\0\n\t\xff", 8));
  layout.Suppress("Boxes");
  layout.add_detail({{"Item", "Bolt"}, {"Amount", "5.00"}});
  layout.add_detail({});
  return layout;
}

TEST(Layout, WhatIsHandedOverComesOutTheSame) {
  std::stringstream handed;
  Write_Layout_File({"Invoice 1042", {"/own", "/shipped"}, {Sample(), Layout("crpPO")}}, handed);
  const LayoutFile read = Read_Layout_File(handed);
  EXPECT_EQ(read.title, "Invoice 1042");
  EXPECT_EQ(read.places.own, "/own");
  EXPECT_EQ(read.places.shipped, "/shipped");
  ASSERT_EQ(read.layouts.size(), 2u);
  EXPECT_EQ(read.layouts[0], Sample());
  EXPECT_EQ(read.layouts[1], Layout("crpPO"));
}

TEST(Layout, AFileCutShortOrMeddledWithIsRefused) {
  std::ostringstream whole;
  Write_Layout_File({"T", {}, {Sample()}}, whole);
  const std::string text = whole.str();
  const auto refused = [](const std::string& given) {
    std::istringstream in(given);
    try {
      Read_Layout_File(in);
      return false;
    } catch (const store::Error& error) {
      return error.number == store::errors::not_a_database;
    }
  };
  for (size_t length = 0; length + 4 < text.size(); ++length) EXPECT_TRUE(refused(text.substr(0, length))) << length;
  for (const char* line :
       {"text\tNumber\t1\nend\n", "layout\tA\ndetail\tItem\nend\n", "layout\tA\npicture\tLogo\t?\nend\n",
        "layout\tA\ntext\tN\t\\x\nend\n", "layout\nend\n", "sound\tbell\nend\n"})
    EXPECT_TRUE(refused("tallymere-layouts 1\n" + std::string(line))) << line;
}

TEST(Layout, RowsOfNumberedObjectsAreWrittenOut) {
  EXPECT_EQ(Object_Names("Date Text9..Text11  Memo"),
            (std::vector<std::string>{"Date", "Text9", "Text10", "Text11", "Memo"}));
  EXPECT_TRUE(Object_Names("").empty());
}

TEST(Layout, WritingOneOutNeverTakesTheOneSomebodyDrew) {
  testing::TempFolder folder;
  const LayoutPlaces places{folder.path() / "layouts", testing::data_folder / "layouts"};
  const auto own = Write_Out_Layout(places, "crpPO");
  EXPECT_EQ(std::filesystem::file_size(own), std::filesystem::file_size(places.shipped_file("crpPO")));
  std::ofstream(own) << "mine";
  EXPECT_THROW(Write_Out_Layout(places, "crpPO"), store::Error);
  EXPECT_EQ(std::filesystem::file_size(own), 4u);
  EXPECT_THROW(Write_Out_Layout(places, "../model/Users"), store::Error);
}

}  // namespace
}  // namespace tallymere
