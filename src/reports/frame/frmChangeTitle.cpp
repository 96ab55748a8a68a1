#include "reports/frame/frmChangeTitle.h"

#include <QLineEdit>
#include <QPushButton>

#include "shell/widgets/theme.h"

namespace tallymere {

frmChangeTitle::frmChangeTitle(Shell& shell_of_frame, const std::string& present)
    : Form(shell_of_frame, "frmChangeTitle", Place::Above) {
  setWindowTitle(QStringLiteral("Enter Title"));
  Text1 = named("Text1", new QLineEdit(qt(present)));
  Text1->setAccessibleName(QStringLiteral("Title"));
  Text1->selectAll();
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* column = column_layout(this);
  column->addWidget(Text1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumWidth(50 * theme::unit);
  on(cmdOk, "cmdOk_AfterClick", [this] { finish(true); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

std::string frmChangeTitle::title() const { return utf8(Text1->text()); }

}  // namespace tallymere
