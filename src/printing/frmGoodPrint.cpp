#include "printing/frmGoodPrint.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/widgets/theme.h"

namespace tallymere {

frmGoodPrint::frmGoodPrint(Shell& shell_of_frame, std::vector<NumberedCheck> run)
    : Form(shell_of_frame, "frmGoodPrint", Place::Above), run_(std::move(run)) {
  setWindowTitle(QStringLiteral("Checks Sent to Printer"));
  auto* text = named(
      "Label1",
      new QLabel(QStringLiteral("Checks have been sent to the Printer. Remember to Sign your Checks. If your checks "
                                "print incorrectly, enter the check number of the first check to incorrectly print in "
                                "the text box below. Otherwise, just click Ok.")));
  text->setWordWrap(true);
  txtNum = named("txtNum", new QLineEdit);
  txtNum->setAccessibleName(QStringLiteral("First check that printed incorrectly"));
  txtNum->setFixedWidth(16 * theme::unit);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  auto* column = column_layout(this);
  column->addWidget(text);
  column->addWidget(txtNum);
  column->addLayout(button_row({}, {cmdOk}));
  setFixedWidth(56 * theme::unit);
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
}

void frmGoodPrint::cmdOk_AfterClick() {
  const std::string typed = utf8(txtNum->text().trimmed());
  if (typed.empty()) return finish(true);
  const auto number = Check_Number(typed);
  if (!number)
    return show_fault(
        {{"Please enter a number value for the first check.", "Number needed", Icon::Information}, "txtNum"});
  const int64_t back = Good_Print(session, run_, *number);
  if (back > 0) shell.changed("Transactions");
  shell.say(back == 1 ? "One check waits to be printed again."
                      : std::to_string(back) + " checks wait to be printed again.");
  finish(true);
}

}  // namespace tallymere
