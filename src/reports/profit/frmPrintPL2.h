#pragma once

#include <QTimer>

#include "reports/frame/ReportForm.h"
#include "reports/profit/profit_and_loss.h"

namespace tallymere {

class GraphSheet;

/// The income statement, and the same figures as a graph. Once it is on show the ledger is read ahead, so
/// that another period shows at once.
class frmPrintPL2 : public ReportForm {
  Q_OBJECT

 public:
  explicit frmPrintPL2(Shell& shell_of_frame);

  void take(const Request& asked) override;

 protected:
  Lay_Out pages_to_print() override;
  QPageLayout page_to_print() override;
  void after_load() override;

 private:
  void cmdGraph_AfterClick();
  void draw_graph();
  void show_chosen();
  void read_ahead();

  QTimer idle_;  ///< ticks whenever there is nothing else to do
  PL_Graph graph_;
  GraphSheet* sheet_;
  QPushButton* cmdGraph;
};

/// The graph in place of the grid.
class GraphSheet : public QWidget {
  Q_OBJECT

 public:
  GraphSheet(const PL_Graph& graph, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PL_Graph& graph_;
};

}  // namespace tallymere
