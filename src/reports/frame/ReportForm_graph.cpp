#include <QCheckBox>
#include <QPushButton>
#include <QStackedLayout>

#include "reports/frame/ReportForm.h"
#include "reports/graph/graph_paint.h"
#include "shell/widgets/grid/SSDBGrid.h"

/// A report's figures as a picture, where it has one: in place of the grid, and on paper.
namespace tallymere {

void ReportForm::build_graph() {
  grfPL = named("grfPL", new GraphSheet(graph_, this));
  grfPL->setAccessibleName(QStringLiteral("Graph"));
  grfPL->hide();
  cmdGraph = named("cmdGraph", new QPushButton(QStringLiteral("Grap&h")));
  cmdGraph->setCheckable(true);
  add_button(cmdGraph);
  on(cmdGraph, "cmdGraph_AfterClick", [this] { cmdGraph_AfterClick(); });
}

void ReportForm::cmdGraph_AfterClick() {
  const bool wanted = cmdGraph->isChecked();
  cmdGraph->setChecked(false);  // until there is one
  if (wanted) draw_graph();
  cmdGraph->setChecked(wanted);
  show_instead_of_grid(wanted ? grfPL : nullptr);
}

/// Another report begins with its figures.
void ReportForm::begin_graph(bool another_report) {
  cmdGraph->setVisible(Has_Graph(report_->key));
  if (!another_report) return;
  cmdGraph->setChecked(false);
  show_instead_of_grid(nullptr);
}

void ReportForm::show_instead_of_grid(QWidget* other) {
  if (other && shown_->indexOf(other) < 0) shown_->addWidget(other);
  shown_->setCurrentWidget(other ? other : grdPL);
  cmdGoto->setEnabled(!other);
  cmdPick->setEnabled(!other);
  chkEmpty->setEnabled(!other);
  show_note();
  fit_sheet();
}

void ReportForm::draw_graph() {
  graph_ = Build_Graph(session, request_);
  grfPL->update();
}

}  // namespace tallymere
