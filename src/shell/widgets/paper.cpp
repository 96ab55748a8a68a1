#include "shell/widgets/paper.h"

#include <QHBoxLayout>
#include <QPainter>

#include "shell/widgets/theme.h"

namespace tallymere {

void Paper::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlpha(90);
  painter.setPen(edge);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  edge.setAlpha(40);
  painter.setPen(edge);
  painter.drawRect(rect().adjusted(3, 3, -4, -4));
}

QSize WordsLine::sizeHint() const { return {60 * theme::unit, QFontMetrics(font()).height() + theme::unit}; }
QSize WordsLine::minimumSizeHint() const { return {20 * theme::unit, sizeHint().height()}; }

void WordsLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawLine(0, height() - 1, width(), height() - 1);
  painter.setFont(fitting_font());
  painter.drawText(rect().adjusted(0, 0, 0, -3), Qt::AlignRight | Qt::AlignBottom, text());
}

QFont WordsLine::fitting_font() const {
  QString words = text();
  while (words.startsWith(QLatin1String("* "))) words.remove(0, 2);
  QFont fitting = font();
  // Widths do not shrink in step with the size: tried until the words fit.
  while (QFontMetricsF(fitting, this).horizontalAdvance(words) + 1 > width() && fitting.pointSizeF() > 4)
    fitting.setPointSizeF(fitting.pointSizeF() - 0.25);
  return fitting;
}

QHBoxLayout* figure_row(const char* caption, QLabel* value) {
  auto* row = row_layout();
  row->addWidget(new QLabel(QString::fromLatin1(caption)));
  row->addWidget(value);
  row->addStretch(1);
  return row;
}

}  // namespace tallymere
