#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>

#include "reports/profit/profit_and_loss.h"
#include "shell/widgets/printed_pages.h"

class QPainter;

namespace tallymere {

/// What a graph is drawn in. Income is the darker of the two on paper, so that they differ without colour
/// too.
struct Graph_Colors {
  QColor ink, soft, line, income, expense;

  static Graph_Colors on_paper();
  static Graph_Colors on_screen();  ///< light or dark as the desktop is
};

/// Income and expense over the months as bars, with their figures in a small table below, and the largest
/// expenses as bars with amount and share. The same on screen, paper and PDF; what does not fit is put
/// together (months to quarters to years, small expenses to "Other"), so that no label meets another.
void Paint_PL_Graph(QPainter& painter, const QRectF& room, const PL_Graph& graph, const Graph_Colors& colors,
                    const QFont& font);

/// The graph on one page, below the report's heading.
class Graph_Pages : public Pages {
 public:
  Graph_Pages(const PL_Graph& graph, const QPageLayout& page);

  int count() const override { return 1; }
  void paint(QPainter& painter, int page) const override;

 private:
  const PL_Graph& graph_;
};

}  // namespace tallymere
