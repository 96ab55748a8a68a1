// Parts of entry windows: combos whose list grows, windows that hand back numbers.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>

#include "entry/document/PickForm.h"
#include "shell/drop_downs.h"
#include "shell/frmSpell.h"
#include "shell/list_combo.h"
#include "support/test_company.h"

namespace tallymere {

namespace {

/// A frame that shows nothing: it notes what it is told, and answers for the windows it is asked for.
class NoFrame : public Shell {
 public:
  using Shell::Shell;
  Form* Show_Window(const Request&) override { return nullptr; }
  bool has_window(const std::string&) const override { return false; }
  Form* find_window(const std::string&) const override { return nullptr; }
  bool Run_Modal(Form&) override { return false; }
  std::optional<std::string> Ask_Window(const Request&) override { return answer; }
  void Go_To_Transaction(const std::string&, int64_t) override {}
  void Popup(const std::string&, QWidget&, const std::vector<std::string>&,
             std::function<void(const std::string&)>) override {}
  void say(const std::string&) override {}
  void changed(const std::string& table) override { told += table + " "; }

  std::optional<std::string> answer;
  std::string told;
};

class Receipts : public PickForm {
 public:
  explicit Receipts(Shell& frame)
      : PickForm(frame, "frmReceipts", "grdOpen", {{.name = QStringLiteral("Vendor")}}, Picks::Several, {}) {
    for (const int64_t number : {7, 12, 40}) add_row({"Acme"}, number);
  }
  using PickForm::cmdOk;
  using PickForm::grid_;
};

}  // namespace

TEST(EntryParts, ACombosListGrowsWhenItIsLeftAndAsksWhatBelongsToIt) {
  testing::TestCompany company;
  NoFrame frame(*company.session);
  DropDowns lists(*company.session, nullptr);
  ListCombo via(frame, lists, VIA_List, Grow_Unasked(VIA_List));
  ListCombo terms(frame, lists, Terms_List, Grow_Terms("Please Enter the Day Amount for this new Term."));
  ListCombo message(frame, lists, CustomerMessages_List, Grow_Messages());
  lists.fill();

  via.set_text("Pigeon");
  via.settle();
  via.settle();  // once is enough
  EXPECT_TRUE(In_Small_List(*company.session, VIA_List, "pigeon"));
  EXPECT_EQ(frame.told, "VIA ");

  company.prompts.inputs = {"soon", "45"};
  terms.set_text("Net 45");
  terms.settle();
  EXPECT_FALSE(In_Small_List(*company.session, Terms_List, "Net 45")) << "\"soon\" is no day amount";
  terms.set_text("");
  terms.settle();
  terms.set_text("Net 45");
  terms.settle();
  EXPECT_TRUE(In_Small_List(*company.session, Terms_List, "Net 45"));

  company.prompts.answers = {false};
  message.set_text("Thanks!");
  message.settle();
  EXPECT_FALSE(In_Small_List(*company.session, CustomerMessages_List, "Thanks!"));
  EXPECT_EQ(message.text(), "Thanks!") << "it stands on the invoice all the same";
  EXPECT_EQ(frame.told, "VIA Terms ");
}

TEST(EntryParts, SpellingGoesThroughTheUnknownWordsAndHandsBackTheText) {
  testing::TestCompany company;
  const auto folder = company.session->folder / "dictionaries";
  std::filesystem::create_directory(folder);
  std::ofstream(folder / "en_US.aff") << "SET UTF-8\nTRY esiartnolcdu\n";
  std::ofstream(folder / "en_US.dic") << "2\nsteel\nbolt\n";
  NoFrame frame(*company.session);
  frmSpell spell(frame);
  spell.show();
  spell.take({.window = "frmSpell", .key = "Steel blot, <stel> blot"});
  auto* word = spell.findChild<QLabel*>(QStringLiteral("lblWord"));
  auto* change = spell.findChild<QLineEdit*>(QStringLiteral("txtChange"));
  const auto click = [&](const char* name) { spell.findChild<QPushButton*>(QString::fromLatin1(name))->click(); };
  EXPECT_EQ(word->text(), QStringLiteral("blot"));
  change->setText(QStringLiteral("bolts of"));
  click("cmdChange");
  EXPECT_EQ(word->text(), QStringLiteral("stel")) << "what was put in is not asked about";
  EXPECT_EQ(change->text(), QStringLiteral("steel")) << "the likeliest is proposed";
  click("cmdChange");
  click("cmdIgnore");
  EXPECT_TRUE(spell.accepted());
  EXPECT_EQ(spell.answer(), "Steel bolts of, <steel> blot");

  std::vector<std::string> texts = {"steel", "blot", "M8"};
  frame.answer = "bolt";
  EXPECT_TRUE(Check_Spelling(frame, texts));
  EXPECT_EQ(texts, (std::vector<std::string>{"steel", "bolt", "M8"}));
  texts = {"blot", "stel"};
  frame.answer.reset();
  EXPECT_FALSE(Check_Spelling(frame, texts)) << "stopped";
  EXPECT_EQ(texts[1], "stel");
}

TEST(EntryParts, APickWindowHandsBackTheNumbersOfTheChosenRows) {
  testing::TestCompany company;
  NoFrame frame(*company.session);
  Receipts pick(frame);
  pick.show();
  pick.grid_->select_rows({0, 2});
  pick.cmdOk->click();
  ASSERT_TRUE(pick.accepted());
  frame.answer = pick.answer();
  EXPECT_EQ(Ask_Numbers(frame, {}), (std::vector<int64_t>{7, 40}));
  frame.answer.reset();
  EXPECT_EQ(Ask_Numbers(frame, {}), std::nullopt) << "cancelled";
}

}  // namespace tallymere
