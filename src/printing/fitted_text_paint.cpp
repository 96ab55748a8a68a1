#include "printing/fitted_text_paint.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextLayout>

namespace tallymere {

namespace {

using Text = Layout_Sheet::Text;

constexpr qreal smallest = 0.6;  // of a text's own size
constexpr qreal step = 0.95;

QStringList Own_Lines(QString content) {
  content.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  content.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  while (content.endsWith(QLatin1Char('\n'))) content.chop(1);
  return content.split(QLatin1Char('\n'));
}

QStringList Wrapped(const QString& line, const QFont& font, qreal width) {
  QTextLayout layout(line, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  QStringList parts;
  layout.beginLayout();
  for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
    part.setLineWidth(width);
    parts << line.mid(part.textStart(), part.textLength()).trimmed();
  }
  layout.endLayout();
  return parts.isEmpty() ? QStringList{QString()} : parts;
}

QStringList Broken(const QStringList& own, const QFont& font, qreal width) {
  QStringList lines;
  for (const QString& line : own) lines << Wrapped(line, font, width);
  return lines;
}

qreal Widest(const QStringList& lines, const QFont& font) {
  const QFontMetricsF metrics(font);
  qreal widest = 0;
  for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
  return widest;
}

QFont Sized(const QFont& font, qreal scale) {
  QFont made = font;
  made.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * scale)));
  return made;
}

/// "One hundred and 00/100 * * * *" with as many stars as there is room for.
QString With_Fitting_Stars(QString line, const QFont& font, qreal width) {
  const QFontMetricsF metrics(font);
  while (line.endsWith(QLatin1String(" *")) && metrics.horizontalAdvance(line) > width) line.chop(2);
  return line;
}

/// Where a line of this width begins.
qreal Left_Of(const Text& text, qreal width) {
  switch (text.anchor) {
    case Layout_Sheet::Anchor::Start:
      return text.at.x();
    case Layout_Sheet::Anchor::Middle:
      return text.at.x() - width / 2;
    case Layout_Sheet::Anchor::End:
      break;
  }
  return text.at.x() - width;
}

void Write(QPainter& painter, const Text& text, const QFont& font, const QStringList& lines, QPointF moved) {
  painter.setFont(font);
  painter.setPen(text.color);
  const QFontMetricsF metrics(font);
  qreal base = text.at.y();
  for (const QString& line : lines) {
    painter.drawText(QPointF(Left_Of(text, metrics.horizontalAdvance(line)), base) + moved, line);
    base += Line_Height(font);
  }
}

/// The room below the top of the first line, to its box's end.
qreal Height_For(const Text& text) { return text.box->bottom() - text.at.y() + QFontMetricsF(text.font).ascent(); }

bool Fits(const QStringList& lines, const QFont& font, qreal width, qreal height) {
  constexpr qreal hair = 1;
  const auto count = static_cast<qreal>(lines.size());
  return Widest(lines, font) <= width + hair &&
         ((count - 1) * Line_Height(font) + QFontMetricsF(font).height() <= height + hair || count == 1);
}

QStringList Cut(QStringList lines, const QFont& font, qreal width, qreal height) {
  const auto room = static_cast<qsizetype>(std::max(1.0, height / Line_Height(font)));
  if (lines.size() > room) {
    lines = lines.mid(0, room);
    lines.back() += QStringLiteral(" …");
  }
  for (QString& line : lines) line = QFontMetricsF(font).elidedText(line, Qt::ElideRight, width);
  return lines;
}

}  // namespace

qreal Line_Height(const QFont& font) { return font.pixelSize() * 1.2; }

QStringList Broken_Lines(const Text& text, const QString& content) {
  const QStringList own = Own_Lines(content);
  return text.box ? Broken(own, text.font, text.box->width()) : own;
}

void Paint_Fitted(QPainter& painter, const Text& text, const QString& content) {
  if (content.isEmpty()) return;
  QStringList own = Own_Lines(content);
  if (!text.box) return Write(painter, text, text.font, own, {});
  const qreal width = text.box->width(), height = Height_For(text);
  if (own.size() == 1) own[0] = With_Fitting_Stars(own[0], text.font, width);
  const bool single = own.size() == 1 && height < Line_Height(text.font) + QFontMetricsF(text.font).height() * smallest;
  QFont font = text.font;
  QStringList lines;
  for (qreal scale = 1; scale > smallest * step; scale *= step) {
    font = Sized(text.font, scale);
    lines = single ? own : Broken(own, font, width);
    if (Fits(lines, font, width, height)) return Write(painter, text, font, lines, {});
  }
  Write(painter, text, font, Cut(lines, font, width, height), {});
}

void Paint_Lines(QPainter& painter, const Text& text, const QStringList& lines, QPointF moved, qreal height) {
  QFont font = text.font;
  const qreal widest = Widest(lines, font);
  if (text.box && widest > text.box->width()) font = Sized(font, std::max(smallest, text.box->width() / widest));
  Write(painter, text, font, text.box ? Cut(lines, font, text.box->width(), height) : lines, moved);
}

}  // namespace tallymere
