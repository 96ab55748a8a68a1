#pragma once

#include <QFont>
#include <QPageLayout>
#include <QPainter>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>

class QPagedPaintDevice;

namespace tallymere {

class ProgressBar;

/// Something laid out on pages. What it paints is the same on paper, in the preview and in a PDF: it is
/// measured in twips (1440 to the inch) from the page's upper left corner and painted under that scale.
class Pages {
 public:
  static constexpr int twips = 1440;

  explicit Pages(const QPageLayout& page) : page_(page) {}
  virtual ~Pages() = default;
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;

  virtual int count() const = 0;
  virtual void paint(QPainter& painter, int page) const = 0;  ///< pages count from 0

  const QPageLayout& page() const { return page_; }
  QSizeF size() const;  ///< of the whole sheet, in twips

 private:
  QPageLayout page_;
};

/// Lays something out anew on pages of another size or orientation.
using Lay_Out = std::function<std::unique_ptr<Pages>(const QPageLayout& page)>;

/// The family in which paper is written, the same on every machine that has it, whatever the desktop's own is; figures
/// of one width.
QFont Paper_Font();

/// A letter sheet without margins of its own: the pages keep theirs.
QPageLayout Letter_Page(QPageLayout::Orientation orientation);

/// Paints one page on a device of this resolution, whatever it is.
void Paint_Page(const Pages& pages, int page, QPainter& painter, qreal dots_per_inch);

/// Asked before each page; false: stop.
using Keep_Going = std::function<bool(int done, int total)>;

Keep_Going Told_By(ProgressBar& bar);  ///< shows the pages on a bar that can be stopped

/// Pages going one after another to a printer or into a PDF. A printer gets them when the job is finished, not before.
class Paper_Job {
 public:
  /// `offset` moves what is painted, in twips: paper does not lie alike in every printer.
  explicit Paper_Job(QPagedPaintDevice& device, QPointF offset = {});
  ~Paper_Job();
  Paper_Job(const Paper_Job&) = delete;
  Paper_Job& operator=(const Paper_Job&) = delete;

  bool add(const Pages& pages, int page);  ///< false: the device did not take it
  bool finish();                           ///< false: it came to nothing
  void drop();                             ///< none of it is to be printed

 private:
  QPagedPaintDevice& device_;
  QPainter painter_;
  QPointF offset_;
  bool blank_ = true;  ///< the sheet that lies ready is still blank
};

enum class Printed { Whole, Stopped, Refused };
/// Paints the pages `from` to `to` (from 0, both included) on a printer or PDF.
Printed Print_Pages(const Pages& pages, QPagedPaintDevice& device, int from, int to, const Keep_Going& keep_going = {},
                    QPointF offset = {});

/// false: stopped, and no file was written. Throws store::Error 3026 when it cannot be.
bool Write_Pdf(const Pages& pages, const std::filesystem::path& file, const QString& title,
               const Keep_Going& keep_going = {});

}  // namespace tallymere
