#pragma once

#include <QRectF>
#include <QString>

#include "reports/frame/page_columns_paint.h"
#include "shell/widgets/printed_pages.h"

class QPainter;

namespace tallymere {

/// A report as a typeset statement: its heading on the first page and a running head on the others, the
/// column heads on every page, totals under a rule, basis and page numbers at the foot. The table must
/// outlive it.
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

  // --- measuring
  void part_into_pages();
  int first_of_next(int start, int row) const;
  bool is_head(int row) const;
  bool is_total(int row) const;
  qreal row_height(int row) const;
  qreal lead(int row) const;
  qreal beyond(int row, int column, const Print_Fonts::Look& look) const;
  qreal lines_of(int row, int column, qreal room) const;
  qreal room_of(const Panel& panel, size_t at, int row) const;
  qreal heading_height(bool first_page) const;
  qreal heads_height() const;
  qreal groups_height() const;

  // --- painting
  void paint_heading(QPainter& painter, bool first_page) const;
  void paint_heads(QPainter& painter, const Panel& panel, Place at) const;
  void paint_groups(QPainter& painter, const Panel& panel, Place at) const;
  void paint_rows(QPainter& painter, const Panel& panel, Place at, int first, int end) const;
  void paint_row(QPainter& painter, const Panel& panel, Place at, int row, qreal height) const;
  void paint_cell(QPainter& painter, const QRectF& cell, qreal room, int row, int column) const;
  void paint_rule(QPainter& painter, const QRectF& cell, int row) const;
  void paint_foot(QPainter& painter, int page) const;

  const ReportTable& table_;
  Page_Columns columns_;
  Print_Fonts fonts_;
  std::vector<int> decimals_;    ///< the most that an amount of each column shows
  std::vector<int> first_rows_;  ///< of each page, over all panels
  qreal heads_height_ = 0;
  int label_column_ = -1;
  bool is_list_ = false;  ///< many columns: a hairline leads the eye along a row
  int grand_total_ = -1;
};

/// Upright where the table fits so, else lying.
QPageLayout Page_For(const ReportTable& table);

void Write_Report_Pdf(const ReportTable& table, const std::filesystem::path& file);

}  // namespace tallymere
