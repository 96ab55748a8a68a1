#include "shell/widgets/unsaved.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

namespace {

QString content_of(const SSDBGrid& grid) {
  QString text;
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column)
      text += QString::fromStdString(grid.text(row, column)) + QLatin1Char('\t');
  return text;
}

/// What a person put into a field; nothing for controls that only show.
QString content_of(const QWidget& field) {
  if (const auto* grid = qobject_cast<const SSDBGrid*>(&field)) return content_of(*grid);
  if (const auto* combo = qobject_cast<const QComboBox*>(&field)) return combo->currentText();
  if (const auto* line = qobject_cast<const QLineEdit*>(&field)) return line->text();
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&field)) return box->toPlainText();
  if (const auto* check = qobject_cast<const QAbstractButton*>(&field); check && check->isCheckable())
    return check->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
  return {};
}

/// A cell that is being written in belongs to its grid.
bool is_field(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !name.endsWith(QLatin1String("_cell"));
}

}  // namespace

const Box Save_Changes{"Do you wish to record your changes?", "Save Changes", Icon::Question};

std::string Content_Of(const QWidget& window) {
  QString all;
  for (const QWidget* field : window.findChildren<QWidget*>())
    if (is_field(*field)) all += content_of(*field) + QLatin1Char('\n');
  return all.toStdString();
}

}  // namespace tallymere
