#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "app/windows.h"
#include "layout_faults.h"
#include "reports/reports.h"
#include "shell/frmMain.h"
#include "shell/widgets/Form.h"
#include "support/test_company.h"

/// Every window of the table on the smallest screen: 960 by 540, and again where everything is twice as large.
namespace tallymere {

using testing::Layout_Faults;
using testing::TestCompany;

namespace {

/// What a window must be told to show something.
Request Asked_For(const std::string& window) {
  if (window == "frmRegister") return {.window = window, .key = "0SS", .new_instance = true};
  for (const ReportDef& report : Reports())
    if (report.window == window) return {.window = window, .key = std::string(report.asked_as())};
  return {.window = window, .key = {}};
}

/// Words as long as people's words are.
void write_long_words(TestCompany& company) {
  company.run("UPDATE CompanyInfo SET Name = 'The Northern Harbor and Timber Trading Company of Duluth'");
  company.run("UPDATE Accounts SET Balance = ?", {Money::parse("-12345678.90").value()});
}

class EveryWindow : public ::testing::Test {
 protected:
  EveryWindow() : frame(Make_Frame(*company.session)) {
    write_long_words(company);
    frame->Start();
    if (Form* start = frame->find_window("frmStart")) start->close();
    frame->Create_Company("Every Window");
    frame->resize(960, 540);
    QApplication::processEvents();
  }
  ~EveryWindow() override {
    company.prompts.answers.assign(20, false);
    frame.reset();
    QApplication::processEvents();
  }

  void look_at(const std::string& name) {
    Form* form = frame->Show_Window(Asked_For(name));
    QApplication::processEvents();
    QApplication::processEvents();
    ASSERT_TRUE(form) << name;
    for (const std::string& fault : Layout_Faults(*form)) ADD_FAILURE() << name << ": " << fault;
    QWidget* whole = qobject_cast<QMdiSubWindow*>(form->parentWidget()) ? form->parentWidget() : form;
    const QSize room = whole == form ? QSize(960, 540) : whole->parentWidget()->size();
    EXPECT_LE(whole->width(), room.width()) << name;
    EXPECT_LE(whole->height(), room.height()) << name;
    EXPECT_TRUE(company.prompts.boxes.empty()) << name << " says " << company.prompts.boxes.front().text;
    if (qEnvironmentVariableIsSet("TALLYMERE_SHOTS"))
      whole->grab().save(qEnvironmentVariable("TALLYMERE_SHOTS") + "/" + QString::fromStdString(name) + ".png");
    company.prompts.boxes.clear();
    company.prompts.answers.assign(4, false);
    form->finish(false);
    QApplication::processEvents();
    company.prompts.answers.clear();
    company.prompts.boxes.clear();
  }

  TestCompany company;
  std::unique_ptr<frmMain> frame;
};

}  // namespace

TEST_F(EveryWindow, FitsTheSmallestScreenAndNamesItsControls) {
  ASSERT_EQ(QGuiApplication::primaryScreen()->size(), QSize(960, 540)) << "run with a screen of tests/windows";
  for (const auto& [name, make] : Windows()) look_at(name);
}

TEST_F(EveryWindow, TheFrameAndItsStartWindowFitToo) {
  for (const std::string& fault : Layout_Faults(*frame->findChild<QWidget*>("StartPanel")))
    ADD_FAILURE() << "StartPanel: " << fault;
  EXPECT_LE(frame->minimumSizeHint().width(), 960);
  EXPECT_LE(frame->minimumSizeHint().height(), 540);
  for (const char* name : {"frmStart", "frmCreate"}) look_at(name);
}

/// The looker sees each kind of fault; a window without one is left in peace.
TEST(LayoutFaults, AreSeen) {
  QWidget window;
  window.resize(300, 200);
  const auto put = [&](QWidget* control, const char* name, QRect place) {
    control->setParent(&window);
    control->setObjectName(QString::fromLatin1(name));
    control->setGeometry(place);
  };
  put(new QPushButton("Save && Close"), "cmdOk", {10, 10, 30, 30});
  put(new QLabel("A whole sentence of words"), "lbl", {10, 60, 40, 20});
  put(new QLineEdit, "txt", {10, 100, 100, 30});
  put(new QCheckBox("Over it"), "chk", {60, 110, 100, 30});
  put(new QPushButton("Away"), "cmdAway", {250, 150, 100, 30});
  auto* well = new QLineEdit;
  put(well, "txtWell", {150, 10, 100, 30});
  well->setAccessibleName("Well named");
  window.show();
  std::string all;
  for (const std::string& fault : Layout_Faults(window)) all += fault + "\n";
  for (const char* part : {"cmdOk needs", "lbl \"A whole sentence of words\" needs", "overlaps",
                           "cmdAway stands beyond", "txt has no name for those who listen"})
    EXPECT_NE(all.find(part), std::string::npos) << part << " in\n" << all;
  EXPECT_EQ(all.find("txtWell"), std::string::npos) << all;
}

}  // namespace tallymere
