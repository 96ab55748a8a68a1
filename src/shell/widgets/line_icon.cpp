#include "shell/widgets/line_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// The icons are linked in from a library: without this nobody would ask for them.
static void load_resources() { Q_INIT_RESOURCE(resources); }

namespace tallymere {

namespace {

/// Draws the lines of an SVG file in the palette's text colour of the moment, so a change of scheme needs no
/// new icon.
class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(QByteArray svg) : svg_(std::move(svg)) {}

  QIconEngine* clone() const override { return new LineIconEngine(svg_); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QByteArray tinted = svg_;
    tinted.replace("currentColor", color_for(mode).name().toLatin1());
    QSvgRenderer(tinted).render(painter, QRectF(rect));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1.0);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

 private:
  static QColor color_for(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
    return palette.color(QPalette::ButtonText);
  }

  QByteArray svg_;
};

QString path_of(const QString& name) {
  load_resources();
  return QStringLiteral(":/icons/%1.svg").arg(name);
}

}  // namespace

QIcon Line_Icon(const QString& name) {
  QFile file(path_of(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new LineIconEngine(file.readAll()));
}

QIcon Program_Icon() { return QIcon(path_of(QStringLiteral("tallymere"))); }

}  // namespace tallymere
