#include "shell/widgets/MessageBox.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace tallymere {

using Answer = MessageBox::Answer;

namespace {

void press(MessageBox& box, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
  QTest::keyClick(box.focusWidget(), key, with);
}

const Box delete_check{"Are you sure?", "Confirm Delete", Icon::Question, "Delete Check 12 to Acme for $5.00?"};

/// What the box answers to what `act` does with it once it stands.
Answer answered(const Box& box, const std::vector<Answer>& answers, Answer usual, Answer stay,
                const std::function<void(MessageBox&)>& act) {
  MessageBox asking(nullptr, box, answers, usual, stay);
  QTimer::singleShot(20, &asking, [&] { act(asking); });
  return asking.ask();
}

}  // namespace

TEST(MessageBox, EnterGivesTheColouredAnswerAndEscStays) {
  struct Case {
    std::vector<Answer> answers;
    Answer usual, stay;
  };
  for (const Case& now : {Case{{Answer::Yes, Answer::No}, Answer::No, Answer::No},
                          Case{{Answer::Yes, Answer::No}, Answer::Yes, Answer::No},
                          Case{{Answer::Yes, Answer::No, Answer::Cancel}, Answer::Yes, Answer::Cancel}}) {
    const auto with = [&](Qt::Key key) {
      return answered(delete_check, now.answers, now.usual, now.stay, [&](MessageBox& box) { press(box, key); });
    };
    EXPECT_EQ(with(Qt::Key_Return), now.usual);
    EXPECT_EQ(with(Qt::Key_Enter), now.usual);
    EXPECT_EQ(with(Qt::Key_Escape), now.stay);
    EXPECT_EQ(answered(delete_check, now.answers, now.usual, now.stay, [](MessageBox& box) { box.close(); }), now.stay);
  }
}

TEST(MessageBox, LettersWithAltChooseAndTheColourFollowsTheFocus) {
  const auto choose = [](const std::function<void(MessageBox&)>& act) {
    return answered(delete_check, {Answer::Yes, Answer::No, Answer::Cancel}, Answer::Cancel, Answer::Cancel, act);
  };
  EXPECT_EQ(choose([](MessageBox& box) { press(box, Qt::Key_Y, Qt::AltModifier); }), Answer::Yes);
  EXPECT_EQ(choose([](MessageBox& box) { press(box, Qt::Key_N, Qt::AltModifier); }), Answer::No);
  EXPECT_EQ(choose([](MessageBox& box) {
              press(box, Qt::Key_Y);  // a letter typed ahead answers nothing
              press(box, Qt::Key_Backtab, Qt::ShiftModifier);
              EXPECT_TRUE(box.findChild<QPushButton*>("cmdNo")->isDefault());
              EXPECT_FALSE(box.findChild<QPushButton*>("cmdCancel")->isDefault());
              press(box, Qt::Key_Return);
            }),
            Answer::No);
}

TEST(MessageBox, NamesWhatItIsAboutAndFitsTheSmallestScreen) {
  const std::string path = "/very" + std::string(70, 'x') + "/long/folder/names/" + std::string(120, 'y') + ".cmf";
  answered({"An Error Occured.\r\nCall.", "Error", Icon::Critical, path}, {Answer::Ok}, Answer::Ok, Answer::Ok,
           [&](MessageBox& box) {
             EXPECT_LE(box.width(), 640);
             EXPECT_LE(box.height(), 540);
             const auto* detail = box.findChild<QLabel*>("lblDetail");
             ASSERT_TRUE(detail);
             EXPECT_GE(detail->height(), detail->heightForWidth(detail->width()));
             EXPECT_FALSE(box.findChild<QLabel*>("lblText")->text().contains('\r'));
             press(box, Qt::Key_C, Qt::ControlModifier);
             EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "Error\nAn Error Occured.\nCall.\n" + path);
             press(box, Qt::Key_Return);
           });
  answered({"Done.", "Backup"}, {Answer::Ok}, Answer::Ok, Answer::Ok, [](MessageBox& box) {
    EXPECT_FALSE(box.findChild<QLabel*>("lblDetail"));
    box.close();
  });
}

}  // namespace tallymere
