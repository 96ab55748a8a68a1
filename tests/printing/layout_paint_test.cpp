#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "printing/layout.h"
#include "support/child_process.h"
#include "support/pdf_text.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::Pdf_Pages;
using testing::Pdf_Text;
using testing::PdfWord;

/// Layouts as the command line has them painted, people's own drawings in a folder of the test.
struct LayoutPaint : ::testing::Test {
  testing::TempFolder folder;
  LayoutPlaces places{folder.path() / "layouts", testing::data_folder / "layouts"};
  fs::path pdf = folder / "out.pdf";
  std::string said;

  int paint(std::vector<Layout> layouts) {
    {
      std::ofstream handed(folder / "handed", std::ios::binary);
      Write_Layout_File({"Test", places, std::move(layouts)}, handed);
    }
    const fs::path program = fs::path(testing::cli_program).parent_path() / "tallymere-paint";
    testing::ChildProcess child(
        {"/bin/sh", "-c",
         "exec '" + program.string() + "' '" + (folder / "handed").string() + "' '" + pdf.string() + "' 2>&1"});
    said = child.rest();
    return child.wait_for_end();
  }
  std::string shipped(const std::string& name) const {
    std::ifstream in(places.shipped_file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  void draw_own(const std::string& name, const std::string& drawing) {
    fs::create_directories(places.own);
    std::ofstream(places.own_file(name), std::ios::binary) << drawing;
  }
  PdfWord word(const std::string& text) const {
    for (const PdfWord& word : testing::Pdf_Words(pdf))
      if (word.text == text) return word;
    ADD_FAILURE() << text << " is not on the page: " << Pdf_Text(pdf);
    return {};
  }
};

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

Layout Invoice(int lines) {
  Layout layout("crpInvoice");
  layout.SetText("Number", "1042");
  layout.SetText("BillingAddress", "Ann Oak\r\n1 Mill Road\r\nOakdale, MN");
  layout.SetText("Total", "$77.00");
  layout.SetText("Message", "Thanks");
  for (int line = 1; line <= lines; ++line)
    layout.add_detail({{"Item", "Bolt" + std::to_string(line)}, {"Amount", std::to_string(line) + ".00"}});
  return layout;
}

TEST_F(LayoutPaint, TextsStandWhereTheDrawingSaysAsWordsThatCanBeRead) {
  ASSERT_EQ(paint({Invoice(2)}), 0) << said;
  EXPECT_NEAR(word("1042").right, 576, 1.5);  // anchored at its end
  EXPECT_LT(word("1042").top, 80);
  EXPECT_GT(word("1042").bottom, 80);
  EXPECT_NEAR(word("Ann").left, 36, 1.5);
  EXPECT_GT(word("Mill").top, word("Ann").top + 8);  // a line of its own
  EXPECT_NEAR(word("Bolt2").top - word("Bolt1").top, 14, 1.5);
  EXPECT_THAT(Pdf_Text(pdf), HasSubstr("Price/Rate"));            // captions of the drawing
  EXPECT_THAT(Pdf_Text(pdf), Not(HasSubstr("Billing address")));  // but none of its samples
  EXPECT_THAT(Pdf_Text(pdf), Not(HasSubstr("Page")));
}

TEST_F(LayoutPaint, MoreLinesThanASheetHoldsGoOnAndTheFootStandsOnTheLast) {
  ASSERT_EQ(paint({Invoice(60), Invoice(1)}), 0) << said;
  ASSERT_EQ(Pdf_Pages(pdf), 4);
  EXPECT_THAT(Pdf_Text(pdf, 1), HasSubstr("Page 1 of 3"));
  EXPECT_THAT(Pdf_Text(pdf, 1), Not(HasSubstr("$77.00")));
  EXPECT_THAT(Pdf_Text(pdf, 3), HasSubstr("$77.00"));
  EXPECT_THAT(Pdf_Text(pdf, 4), Not(HasSubstr("Page")));
  const std::string all = Pdf_Text(pdf) + " ";
  for (int line = 1; line <= 60; ++line) EXPECT_THAT(all, HasSubstr("Bolt" + std::to_string(line) + " "));
}

TEST_F(LayoutPaint, LongTextsBreakShrinkAndDropTheirStarsButStayInTheirRoom) {
  Layout check("crpCheck");
  std::string stars = "Nine hundred and 00/100";
  for (int star = 0; star < 200; ++star) stars += " *";
  check.SetText("AmountInWords", stars);
  check.SetText("Payee", "TheVeryLongNameOfAPayeeThatIsOneWordAndWouldRunIntoTheAmountBesideItOnTheFace");
  Layout invoice = Invoice(0);
  invoice.add_detail({{"Item", "Long"}, {"Description", "many words that break into lines " + std::string(60, 'x')}});
  invoice.add_detail({{"Item", "Next"}});
  invoice.SetText("Total", "$123,456,789,012,345.00");
  ASSERT_EQ(paint({check, invoice}), 0) << said;
  for (const PdfWord& word : testing::Pdf_Words(pdf)) {
    EXPECT_LE(word.right, word.text == "*" ? 537 : 577) << word.text;
  }
  EXPECT_NEAR(word("Nine").bottom - word("Nine").top, 11.6, 1);  // stars gave way, not the letters' size
  for (const PdfWord& word : testing::Pdf_Words(pdf))
    EXPECT_LE(word.right, word.text.starts_with("TheVeryLong") ? 463 : 577) << word.text;
  EXPECT_GT(word("Next").top, word("Long").top + 20);
  EXPECT_LE(word("$123,456,789,012,345.00").right, 577);
  EXPECT_GE(word("$123,456,789,012,345.00").left, 485);
}

TEST_F(LayoutPaint, AChangedDrawingIsUsedAsDrawingProgramsSaveIt) {
  // Moved by its group, letters in "style", the place on a tspan.
  std::string drawing = Replaced(
      shipped("crpInvoice"), "<text id=\"Message\" x=\"36\" y=\"700\">Thank you</text>",
      "<g transform=\"translate(100,0) scale(2)\"><text id=\"Message\" style=\"font-size:4.5px;text-anchor:end\">"
      "<tspan x=\"50\" y=\"350\">Sample</tspan></text></g><text id=\"text99\" x=\"36\" y=\"730\">My words</text>");
  drawing = Replaced(drawing, "<rect id=\"Message.box\"", "<rect id=\"gone\"");
  draw_own("crpInvoice", drawing);
  ASSERT_EQ(paint({Invoice(1)}), 0) << said;
  EXPECT_EQ(said, "");
  EXPECT_NEAR(word("Thanks").right, 200, 1.5);
  EXPECT_NEAR(word("Thanks").bottom, 702, 3);
  EXPECT_THAT(Pdf_Text(pdf), HasSubstr("My words"));
  EXPECT_THAT(Pdf_Text(pdf), Not(HasSubstr("Sample")));
}

TEST_F(LayoutPaint, AFaultyDrawingIsNamedWithWhatItLacksAndTheShippedOneServes) {
  const std::string good = shipped("crpInvoice");
  struct Case {
    std::string drawing, said;
  };
  std::string deep = "<svg width=\"8in\" height=\"11in\">";
  for (int level = 0; level < 5000; ++level) deep += "<g>";
  const Case cases[] = {
      {Replaced(Replaced(good, "<text id=\"Total\"", "<text id=\"Totall\""), "id=\"Detail.room\"", "id=\"room\""),
       "it lacks Total, Detail.room"},
      {"", "it is no drawing"},
      {"no drawing", "it is no drawing"},
      {good.substr(0, good.size() / 2), "it is no drawing"},
      {"<html/>", "it is no SVG drawing"},
      {Replaced(good, "width=\"8.5in\"", "width=\"100%\""), "how wide and high"},
      {Replaced(good, "width=\"8.5in\"", "width=\"8500in\""), "no size of paper"},
      {Replaced(good, "viewBox=\"0 0 612 792\"", "viewBox=\"0 0 0 792\""), "viewBox"},
      {"<!DOCTYPE svg [<!ENTITY a \"aaaa\">]>" + good.substr(good.find("<svg")), "entities"},
      {deep, "it is no drawing"},
  };
  for (const Case& c : cases) {
    draw_own("crpInvoice", c.drawing);
    EXPECT_EQ(paint({Invoice(1), Invoice(1)}), 0) << said;
    EXPECT_THAT(said, HasSubstr("crpInvoice.svg' is not used: ")) << c.said;
    EXPECT_THAT(said, HasSubstr(c.said));
    EXPECT_EQ(said.find("is not used"), said.rfind("is not used")) << "told once";
    EXPECT_EQ(Pdf_Pages(pdf), 2);
  }
}

TEST_F(LayoutPaint, NoMeddledDrawingBringsThePainterDown) {
  const std::string good = shipped("crpPSlip");
  unsigned seed = 7;
  const auto next = [&] { return seed = seed * 1103515245 + 12345, (seed >> 16) & 0x7fff; };
  Layout slip("crpPSlip");
  slip.add_detail({{"Item", "Bolt"}, {"Qty", "1"}});
  for (int round = 0; round < 60; ++round) {
    std::string drawing = good;
    for (int change = 0; change < 6; ++change) {
      const size_t at = next() % drawing.size();
      if (next() % 3 == 0)
        drawing.erase(at, next() % 40);
      else if (next() % 2 == 0)
        drawing[at] = static_cast<char>(next());
      else
        drawing.insert(at, good.substr(next() % good.size(), next() % 60));
    }
    draw_own("crpPSlip", drawing);
    EXPECT_EQ(paint({slip}), 0) << "round " << round << ": " << said;
  }
}

TEST_F(LayoutPaint, EveryShippedDrawingServes) {
  for (const LayoutDef& def : Layout_Defs()) {
    EXPECT_EQ(paint({Layout(std::string(def.name))}), 0) << said;
    EXPECT_EQ(said, "") << def.name;
    const std::string drawing = shipped(std::string(def.name));
    for (const std::string& object : Object_Names(def.fills))
      if (def.name == "crpCheck") {
        EXPECT_THAT(drawing, HasSubstr("id=\"" + object)) << object;  // what code fills is to be seen somewhere
      }
  }
}

}  // namespace
}  // namespace tallymere
