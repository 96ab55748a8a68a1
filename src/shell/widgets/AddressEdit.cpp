#include "shell/widgets/AddressEdit.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>

#include "core/values/text.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int most_lines_by_enter = 3;
constexpr int lines_shown = 5;

}  // namespace

AddressEdit::AddressEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setMinimumHeight(QFontMetrics(font()).lineSpacing() * 3 + theme::unit);
}

std::string AddressEdit::text() const { return replace_all(toPlainText().toStdString(), "\n", "\r\n"); }

void AddressEdit::set_text(const std::string& text) {
  setPlainText(QString::fromStdString(replace_all(text, "\r\n", "\n")));
}

QSize AddressEdit::sizeHint() const {
  const QFontMetrics metrics(font());
  return {metrics.averageCharWidth() * 36, metrics.lineSpacing() * lines_shown + 2 * theme::unit};
}

void AddressEdit::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool whole = !toPlainText().isEmpty() && textCursor().selectedText().size() == toPlainText().size();
  // The window moves on; also from an address just entered: selected whole, it must not give way to a line
  // end.
  if (enter && (whole || blockCount() > most_lines_by_enter)) return event->ignore();
  QPlainTextEdit::keyPressEvent(event);
}

void AddressEdit::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) selectAll();
}

void AddressEdit::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) return;
  QTextCursor cursor = textCursor();
  cursor.clearSelection();
  setTextCursor(cursor);
  if (const QString all = toPlainText(); all.endsWith(QLatin1Char('\n'))) setPlainText(all.chopped(1));
  Q_EMIT LostFocus();
}

}  // namespace tallymere
