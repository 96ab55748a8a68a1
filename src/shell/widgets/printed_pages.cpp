#include "shell/widgets/printed_pages.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "core/store/error.h"

namespace tallymere {

namespace {

constexpr int pdf_resolution = 1200;

}  // namespace

QSizeF Pages::size() const {
  return page_.fullRect(QPageLayout::Inch).size() * twips;
}

QPageLayout Letter_Page(QPageLayout::Orientation orientation) {
  return QPageLayout(QPageSize(QPageSize::Letter), orientation, QMarginsF());
}

void Paint_Page(const Pages& pages, int page, QPainter& painter, qreal dots_per_inch) {
  painter.save();
  painter.scale(dots_per_inch / Pages::twips, dots_per_inch / Pages::twips);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  pages.paint(painter, page);
  painter.restore();
}

bool Print_Pages(const Pages& pages, QPagedPaintDevice& device, int from, int to) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  for (int page = from; page <= to; ++page) {
    if (page > from && !device.newPage()) return false;
    Paint_Page(pages, page, painter, device.logicalDpiX());
  }
  return painter.end();
}

void Write_Pdf(const Pages& pages, const std::filesystem::path& file, const QString& title) {
  QSaveFile out(QString::fromStdString(file.string()));
  bool written = out.open(QIODevice::WriteOnly);
  if (written) {
    QPdfWriter writer(&out);
    writer.setPageLayout(pages.page());
    writer.setResolution(pdf_resolution);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Tallymere"));
    written = Print_Pages(pages, writer, 0, pages.count() - 1);
  }
  if (!written || !out.commit())
    throw store::Error(store::errors::disk_full, "'" + file.string() + "' cannot be written.");
}

}  // namespace tallymere
