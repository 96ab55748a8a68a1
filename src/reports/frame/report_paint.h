#pragma once

#include <QRectF>
#include <QString>

#include "reports/frame/page_breaks.h"
#include "reports/frame/page_columns_paint.h"
#include "shell/widgets/printed_pages.h"

class QPainter;

namespace tallymere {

/// A report as a typeset statement: its heading on the first page and a running head on the others, the
/// column heads on every page, and whose rows a page goes on with; totals under a rule; basis, note and page
/// numbers at the foot. The table must outlive it.
class Report_Pages : public Pages {
 public:
  Report_Pages(const ReportTable& table, const QPageLayout& page);

  int count() const override;
  void paint(QPainter& painter, int page) const override;

 private:
  using Panel = std::vector<int>;
  struct Place {
    qreal left, top;
  };

  // --- measuring: report_measure_paint.cpp
  void measure();
  qreal width_of(int column) const { return columns_.widths[static_cast<size_t>(column)]; }
  qreal row_height(int row) const;
  qreal lead(int row) const;
  std::vector<std::string> lines_of(int row, int column, qreal room) const;
  qreal room_of(const Panel& panel, size_t at, int row) const;
  std::vector<std::string> caption_lines(int column) const;
  std::vector<std::string> note_lines() const;
  qreal heading_height(bool first_page) const;
  qreal heads_height() const;
  qreal groups_height() const;
  qreal rows_top(bool first_page) const;
  qreal continued_height() const { return fonts_.of("sBold").row_height(); }

  // --- painting
  void paint_heading(QPainter& painter, bool first_page) const;
  void paint_heads(QPainter& painter, const Panel& panel, Place at) const;
  void paint_groups(QPainter& painter, const Panel& panel, Place at) const;
  void paint_continued(QPainter& painter, const std::string& text, const QRectF& line) const;
  void paint_rows(QPainter& painter, const Panel& panel, Place at, int first, int end) const;
  void paint_row(QPainter& painter, const Panel& panel, Place at, int row) const;
  void paint_cell(QPainter& painter, const QRectF& cell, qreal room, int row, int column) const;
  void paint_rule(QPainter& painter, const QRectF& cell, int row) const;
  void paint_foot(QPainter& painter, int page) const;

  const ReportTable& table_;
  Page_Columns columns_;
  Print_Fonts fonts_;
  std::vector<int> spans_;       ///< of each row's label
  std::vector<double> heights_;  ///< of each row
  std::vector<Page_Start> starts_;
  qreal heads_height_ = 0, foot_height_ = 0;
  int label_column_ = -1;
  bool is_list_ = false;  ///< many columns: a hairline leads the eye along a row
};

/// What stands where on a sheet, in twips.
struct Sheet {
  static constexpr qreal side = 900, top = 720, bottom = 900;  ///< margins; the top one is half an inch
  static constexpr qreal below_heading = 260;
  static qreal room_on(const QPageLayout& page) {
    return page.fullRect(QPageLayout::Inch).width() * Pages::twips - 2 * side;
  }
};

/// Upright where the table fits so, else lying.
QPageLayout Page_For(const ReportTable& table);

void Write_Report_Pdf(const ReportTable& table, const std::filesystem::path& file);

}  // namespace tallymere
