#include "shell/widgets/printed_pages.h"

#include <QFile>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include "core/backup/whole_file.h"
#include "core/company/prompts.h"
#include "core/store/error.h"

namespace tallymere {

namespace {

constexpr int pdf_resolution = 1200;

}  // namespace

QSizeF Pages::size() const { return page_.fullRect(QPageLayout::Inch).size() * twips; }

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

Keep_Going Told_By(ProgressBar& bar) {
  return [&bar](int done, int total) { return bar.at(done, total); };
}

Printed Print_Pages(const Pages& pages, QPagedPaintDevice& device, int from, int to, const Keep_Going& keep_going) {
  QPainter painter;
  if (!painter.begin(&device)) return Printed::Refused;
  for (int page = from; page <= to; ++page) {
    if (keep_going && !keep_going(page - from, to - from + 1)) {
      if (auto* printer = dynamic_cast<QPrinter*>(&device)) printer->abort();
      return Printed::Stopped;
    }
    if (page > from && !device.newPage()) return Printed::Refused;
    Paint_Page(pages, page, painter, device.logicalDpiX());
  }
  return painter.end() ? Printed::Whole : Printed::Refused;
}

bool Write_Pdf(const Pages& pages, const std::filesystem::path& file, const QString& title,
               const Keep_Going& keep_going) {
  WholeFile whole(file);
  QFile out(QString::fromStdString(whole.path().string()));
  auto printed = Printed::Refused;
  if (out.open(QIODevice::WriteOnly)) {
    QPdfWriter writer(&out);
    writer.setPageLayout(pages.page());
    writer.setResolution(pdf_resolution);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Tallymere"));
    printed = Print_Pages(pages, writer, 0, pages.count() - 1, keep_going);
  }
  if (printed == Printed::Stopped) return false;
  if (printed == Printed::Refused || !out.flush() || out.error() != QFileDevice::NoError)
    throw store::Error(store::errors::disk_full, "'" + file.string() + "' cannot be written.");
  out.close();
  whole.finish();
  return true;
}

}  // namespace tallymere
