#include "shell/widgets/QuillbrookDatePick.h"

#include <QAction>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "shell/widgets/Form.h"
#include "shell/widgets/date_calendar.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

/// A small month sheet in the text's colour.
QIcon calendar_icon(const QColor& color) {
  constexpr int side = 64;
  QPixmap sheet(side, side);
  sheet.fill(Qt::transparent);
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawRoundedRect(QRectF(8, 12, 48, 44), 5, 5);
  painter.drawLine(QPointF(8, 26), QPointF(56, 26));
  painter.drawLine(QPointF(21, 6), QPointF(21, 16));
  painter.drawLine(QPointF(43, 6), QPointF(43, 16));
  for (const qreal y : {36.0, 46.0})
    for (const qreal x : {21.0, 32.0, 43.0}) painter.drawPoint(QPointF(x, y));
  return QIcon(sheet);
}

}  // namespace

Clock clock_of(const QWidget* widget) {
  for (const QWidget* outer = widget; outer; outer = outer->parentWidget())
    if (const auto* form = qobject_cast<const Form*>(outer)) return form->clock();
  return Clock::system();
}

QuillbrookDatePick::QuillbrookDatePick(QWidget* parent) : QLineEdit(parent) {
  setFont(theme::tabular(font()));
  setPlaceholderText(QStringLiteral("m/d/yyyy"));
  setMinimumWidth(QFontMetrics(font()).horizontalAdvance(QStringLiteral("00/00/0000")) + 6 * theme::unit);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  open_ = addAction(calendar_icon(palette().color(QPalette::Text)), QLineEdit::TrailingPosition);
  open_->setToolTip(QStringLiteral("Calendar (Alt+Down)"));
  connect(open_, &QAction::triggered, this, &QuillbrookDatePick::show_calendar);
  connect(this, &QLineEdit::textEdited, this, [this] { mark_faulty(this, !text().trimmed().isEmpty() && !typed()); });
}

Date QuillbrookDatePick::value() const { return maybe_value().value_or(clock_of(this).today()); }

std::optional<Date> QuillbrookDatePick::maybe_value() const {
  if (const auto day = typed()) return day;
  return text().trimmed().isEmpty() && blank_allowed_ ? std::nullopt : value_;
}

void QuillbrookDatePick::set_value(const std::optional<Date>& day) {
  value_ = day;
  show_value();
}

void QuillbrookDatePick::allow_blank(bool allowed) { blank_allowed_ = allowed; }

std::optional<Date> QuillbrookDatePick::typed() const {
  return Date::parse(text().toStdString(), clock_of(this).today());
}

void QuillbrookDatePick::show_value() {
  setText(value_ ? QString::fromStdString(value_->to_text()) : QString());
  mark_faulty(this, false);
}

void QuillbrookDatePick::settle() {
  const std::optional<Date> before = value_;
  value_ = maybe_value();
  show_value();
  if (value_ != before) Q_EMIT Change();
}

void QuillbrookDatePick::move_to(Date day) {
  setText(QString::fromStdString(day.to_text()));
  settle();
  selectAll();
}

std::optional<Date> QuillbrookDatePick::reached_by(int key) const {
  const Date from = value();
  switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_Up:
      return from == Date(9999, 12, 31) ? from : from.plus_days(1);
    case Qt::Key_Minus:
    case Qt::Key_Down:
      return from == Date(100, 1, 1) ? from : from.plus_days(-1);
    case Qt::Key_T:
      return clock_of(this).today();
    case Qt::Key_M:
      return from.first_of_month();
    case Qt::Key_H:
      return from.end_of_month();
    case Qt::Key_Y:
      return Date(from.year(), 1, 1);
    case Qt::Key_R:
      return Date(from.year(), 12, 31);
    default:
      return std::nullopt;
  }
}

void QuillbrookDatePick::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier))
    return show_calendar();
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  // "3-15" is a date too: a dash is a separator while the text is being written.
  const bool writing = event->key() == Qt::Key_Minus && isModified() && !hasSelectedText();
  if (plain && !writing && !isReadOnly())
    if (const auto day = reached_by(event->key())) return move_to(*day);
  QLineEdit::keyPressEvent(event);
}

void QuillbrookDatePick::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) return;
  settle();
  Q_EMIT LostFocus();
}

void QuillbrookDatePick::showEvent(QShowEvent* event) {
  if (!value_ && !blank_allowed_ && text().isEmpty()) set_value(clock_of(this).today());
  QLineEdit::showEvent(event);
}

/// On paper of another colour the sign stays visible.
void QuillbrookDatePick::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (open_ && event->type() == QEvent::PaletteChange) open_->setIcon(calendar_icon(palette().color(QPalette::Text)));
}

void QuillbrookDatePick::show_calendar() {
  if (isReadOnly()) return;
  auto* calendar = new DateCalendar(this, value(), clock_of(this).today(), [this](Date day) { move_to(day); });
  connect(calendar, &DateCalendar::closed, this, &QuillbrookDatePick::CloseUp);
  calendar->open();
}

}  // namespace tallymere
