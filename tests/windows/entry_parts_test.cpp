// Parts of entry windows: combos whose list grows, windows that hand back numbers.
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "entry/document/PickForm.h"
#include "shell/drop_downs.h"
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
