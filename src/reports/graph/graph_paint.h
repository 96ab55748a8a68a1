#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QWidget>
#include <array>

#include "reports/graph/graph.h"
#include "shell/widgets/printed_pages.h"

class QPainter;

namespace tallymere {

/// What a graph is drawn in. The series differ in lightness too, so that paper without colour tells them apart.
struct Graph_Colors {
  QColor ink, soft, line;
  std::array<QColor, 3> series;
  QColor bars, below_zero;

  static Graph_Colors on_paper();
  static Graph_Colors on_screen();  ///< light or dark as the desktop is
};

/// The parts from the top down. The same on screen, paper and PDF; what does not fit is put together (months to
/// quarters to years, small bars to "Other"), so that no label meets another.
void Paint_Graph(QPainter& painter, const QRectF& room, const Graph& graph, const Graph_Colors& colors,
                 const QFont& font);

/// The graph on one page, below the report's heading.
class Graph_Pages : public Pages {
 public:
  Graph_Pages(const Graph& graph, const QPageLayout& page);

  int count() const override { return 1; }
  void paint(QPainter& painter, int page) const override;

 private:
  const Graph& graph_;
};

/// The graph in place of a report's grid.
class GraphSheet : public QWidget {
  Q_OBJECT

 public:
  GraphSheet(const Graph& graph, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Graph& graph_;
};

}  // namespace tallymere
