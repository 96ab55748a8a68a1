#include <gmock/gmock.h>

#include <fstream>

#include "forms/forms.h"
#include "forms/pay_books.h"
#include "reports/frame/renderers.h"
#include "support/pdf_text.h"
#include "support/places.h"

namespace tallymere {
namespace {

using ::testing::HasSubstr;
using testing::PayBooks;

/// Forms as `tallymere-cli form` writes them.
struct FormCommand : ::testing::Test {
  PayBooks books{7};
  std::string said;

  FormCommand() {
    books.hire(3);
    books.pay(60, Date(2026, 1, 1), 360);
    books.run("UPDATE CompanyInfo SET LegalName = 'Acme Legal', FedID = '41-7654321', LegalState = 'MN'");
  }
  int form(const std::string& words, const std::string& out = "") {
    const std::string folder = books.folder.path().string();
    testing::ChildProcess child({"/bin/sh", "-c",
                                 "exec 2>&1; cd '" + folder + "'; exec '" + testing::cli_program + "' form " + words +
                                     " --company Acme.cmf --folder . " + (out.empty() ? "" : "--out " + out)});
    said = child.rest();
    return child.wait_for_end();
  }
  std::string pdf(const std::string& words) {
    EXPECT_EQ(form(words, "form.pdf"), 0) << said;
    std::string text = testing::Pdf_Text(books.folder / "form.pdf");
    for (const auto& [joined, letters] : {std::pair("\uFB03", "ffi"), {"\uFB00", "ff"}, {"\uFB01", "fi"}})
      for (size_t at; (at = text.find(joined)) != std::string::npos;) text.replace(at, 3, letters);
    return text;
  }
  std::string content(const std::string& name) {
    std::ifstream in(books.folder / name);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

TEST_F(FormCommand, EachFormsAmountsStandOnItsSheetAndInItsCsv) {
  for (const FormDef& def : Forms()) {
    const std::string words = std::string(def.key) + " --year 2026" + (def.quarterly ? " --quarter 2" : "");
    const FormPaper paper = def.build(*books.session, {.year = 2026, .quarter = 2});
    const std::string sheet = pdf(words);
    EXPECT_THAT(sheet, HasSubstr("Figures for filing, not the official form.")) << def.key;
    EXPECT_THAT(sheet, HasSubstr("41-7654321")) << def.key;
    ASSERT_FALSE(paper.layouts.empty()) << def.key;
    for (const auto& [object, text] : paper.layouts.front().texts())
      if (text.starts_with("$")) {
        EXPECT_THAT(sheet, HasSubstr(text)) << def.key << " " << object;
      }
    ASSERT_EQ(form(words, "form.csv"), 0) << said;
    std::ostringstream csv;
    Write_Csv(paper.table, csv);
    EXPECT_EQ(content("form.csv"), csv.str()) << def.key;
    EXPECT_GT(paper.table.rows(), 3) << def.key;
  }
}

TEST_F(FormCommand, WhatIsWrongWithACallIsSaid) {
  EXPECT_EQ(form("nonsense --year 2026"), 2);
  EXPECT_THAT(said, HasSubstr("no such form: nonsense"));
  EXPECT_EQ(form("941 --year 2026"), 2);
  EXPECT_THAT(said, HasSubstr("--quarter takes 1 to 4"));
  EXPECT_EQ(form("941 --year 2026 --quarter 5"), 2);
  EXPECT_EQ(form("941 --year 2026 --quarter 1", "form.txt"), 2);
  EXPECT_THAT(said, HasSubstr("ends with .pdf or .csv"));
  EXPECT_EQ(form("941 --year 2026 --quarter 1", "Acme.cmf.csv/x.csv"), 1);
}

}  // namespace
}  // namespace tallymere
