#include "shell/widgets/printed_pages.h"

#include <QFile>
#include <QFontDatabase>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QPrinter>

#include "core/backup/whole_file.h"
#include "core/company/prompts.h"
#include "core/store/error.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int pdf_resolution = 1200;

}  // namespace

QSizeF Pages::size() const { return page_.fullRect(QPageLayout::Inch).size() * twips; }

QFont Paper_Font() {
  QFont font;
  for (const char* family : {"Noto Sans", "Segoe UI", "Liberation Sans", "DejaVu Sans"})
    if (QFontDatabase::hasFamily(QLatin1String(family))) {
      font.setFamilies({QLatin1String(family)});
      break;
    }
  font.setHintingPreference(QFont::PreferNoHinting);
  return theme::tabular(font);
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

Keep_Going Told_By(ProgressBar& bar) {
  return [&bar](int done, int total) { return bar.at(done, total); };
}

Paper_Job::Paper_Job(QPagedPaintDevice& device, QPointF offset) : device_(device), offset_(offset) {
  painter_.begin(&device);
}

Paper_Job::~Paper_Job() {
  if (painter_.isActive()) drop();
}

bool Paper_Job::add(const Pages& pages, int page) {
  if (!painter_.isActive() || (!blank_ && !device_.newPage())) return false;
  blank_ = false;
  painter_.save();
  painter_.translate(offset_ * device_.logicalDpiX() / Pages::twips);
  Paint_Page(pages, page, painter_, device_.logicalDpiX());
  painter_.restore();
  return true;
}

bool Paper_Job::finish() { return painter_.isActive() && painter_.end(); }

void Paper_Job::drop() {
  if (auto* printer = dynamic_cast<QPrinter*>(&device_)) printer->abort();
  painter_.end();
}

Printed Print_Pages(const Pages& pages, QPagedPaintDevice& device, int from, int to, const Keep_Going& keep_going,
                    QPointF offset) {
  Paper_Job job(device, offset);
  for (int page = from; page <= to; ++page) {
    if (keep_going && !keep_going(page - from, to - from + 1)) return Printed::Stopped;
    if (!job.add(pages, page)) return Printed::Refused;
  }
  return job.finish() ? Printed::Whole : Printed::Refused;
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
