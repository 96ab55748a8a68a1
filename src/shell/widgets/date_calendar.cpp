#include "shell/widgets/date_calendar.h"

#include <QCalendarWidget>
#include <QPushButton>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

QDate q_date(Date day) { return {day.year(), static_cast<int>(day.month()), static_cast<int>(day.day())}; }

Date our_date(QDate day) { return {day.year(), static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day())}; }

QCalendarWidget* month_of(Date shown, Date today, QWidget* parent) {
  auto* month = new QCalendarWidget(parent);
  month->setObjectName(QStringLiteral("calendar"));
  month->setAccessibleName(QStringLiteral("Calendar"));
  month->setFirstDayOfWeek(Qt::Sunday);
  month->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  month->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  month->setSelectedDate(q_date(shown));
  QTextCharFormat plain;
  plain.setForeground(parent->palette().color(QPalette::Text));
  month->setWeekdayTextFormat(Qt::Saturday, plain);
  month->setWeekdayTextFormat(Qt::Sunday, plain);
  QTextCharFormat now;
  now.setFontWeight(QFont::Bold);
  now.setForeground(parent->palette().color(QPalette::Link));
  month->setDateTextFormat(q_date(today), now);
  for (const auto& [name, mark] :
       {std::pair("qt_calendar_prevmonth", 0x2039), std::pair("qt_calendar_nextmonth", 0x203A)})
    if (auto* button = month->findChild<QToolButton*>(QLatin1String(name))) {
      button->setIcon({});
      button->setText(QString(QChar(mark)));
    }
  return month;
}

}  // namespace

DateCalendar::DateCalendar(QWidget* field, Date shown, Date today, std::function<void(Date)> picked)
    : QFrame(field, Qt::Popup) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
  QCalendarWidget* month = month_of(shown, today, this);
  auto* now = new QPushButton(QStringLiteral("&Today"), this);
  now->setObjectName(QStringLiteral("cmdToday"));
  column->addWidget(month);
  column->addWidget(now, 0, Qt::AlignRight);
  const auto take = [this, picked](Date day) {
    picked(day);
    close();
  };
  connect(month, &QCalendarWidget::clicked, this, [take](QDate day) { take(our_date(day)); });
  connect(month, &QCalendarWidget::activated, this, [take](QDate day) { take(our_date(day)); });
  connect(now, &QPushButton::clicked, this, [take, today] { take(today); });
  setFocusProxy(month);
}

void DateCalendar::open() {
  adjustSize();
  const QWidget* field = parentWidget();
  const QRect screen = field->screen()->availableGeometry();
  QPoint place = field->mapToGlobal(QPoint(0, field->height()));
  if (place.y() + height() > screen.bottom()) place.setY(field->mapToGlobal(QPoint()).y() - height());
  place.setX(std::max(screen.left(), std::min(place.x(), screen.right() - width())));
  move(place);
  show();
  setFocus(Qt::PopupFocusReason);
}

void DateCalendar::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  Q_EMIT closed();
}

}  // namespace tallymere
