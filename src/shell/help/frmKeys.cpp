#include "shell/help/frmKeys.h"

#include <QFile>
#include <QPushButton>
#include <QTextBrowser>

#include "shell/widgets/theme.h"

namespace tallymere {

frmKeys::frmKeys(Shell& shell_of_frame) : Form(shell_of_frame, "frmKeys") {
  setWindowTitle(QStringLiteral("Keys"));
  txtKeys = named("txtKeys", new QTextBrowser);
  txtKeys->setAccessibleName(QStringLiteral("Keys"));
  QFile page(QStringLiteral(":/help/keyboard.md"));
  if (page.open(QIODevice::ReadOnly)) txtKeys->setMarkdown(QString::fromUtf8(page.readAll()));
  auto* cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  on(cmdClose, "cmdClose_Click", [this] { finish(false); });
  auto* column = column_layout(this);
  column->addWidget(txtKeys, 1);
  column->addLayout(plain_button_row({}, {cmdClose}));
}

QSize frmKeys::sizeHint() const { return Form::sizeHint().expandedTo({92 * theme::unit, 70 * theme::unit}); }

}  // namespace tallymere
