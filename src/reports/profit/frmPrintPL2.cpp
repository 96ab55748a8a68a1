#include "reports/profit/frmPrintPL2.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>

#include "reports/profit/graph_paint.h"
#include "reports/sums/kept_ledger.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmPrintPL2::frmPrintPL2(Shell& shell_of_frame) : ReportForm(shell_of_frame, "frmPrintPL2") {
  sheet_ = named("grfPL", new GraphSheet(graph_, this));
  sheet_->hide();
  cmdGraph = named("cmdGraph", new QPushButton(QStringLiteral("Grap&h")));
  cmdGraph->setCheckable(true);
  add_button(cmdGraph);
  on(cmdGraph, "cmdGraph_AfterClick", [this] { cmdGraph_AfterClick(); });
  on(&idle_, &QTimer::timeout, "idle_Timer", [this] { read_ahead(); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && isAncestorOf(now)) idle_.start(0);  // back from where the ledger may have changed
  });
}

void frmPrintPL2::read_ahead() {
  if (!session.company_open() || !KeptLedger::Read_Ahead(*session.dbCompany)) idle_.stop();
}

/// Another statement begins with its figures.
void frmPrintPL2::take(const Request& asked) {
  if (asked.key != report_request().key) cmdGraph->setChecked(false);
  ReportForm::take(asked);
  show_chosen();
}

void frmPrintPL2::cmdGraph_AfterClick() {
  const bool wanted = cmdGraph->isChecked();
  cmdGraph->setChecked(false);  // until there is one
  if (wanted) draw_graph();
  cmdGraph->setChecked(wanted);
  show_chosen();
}

void frmPrintPL2::draw_graph() {
  graph_ = Build_PL_Graph(session, report_request());
  sheet_->update();
}

void frmPrintPL2::show_chosen() { show_instead_of_grid(cmdGraph->isChecked() ? sheet_ : nullptr); }

/// Only a graph that is on show is reckoned.
void frmPrintPL2::after_load() {
  idle_.start(0);
  if (cmdGraph->isChecked()) draw_graph();
}

Lay_Out frmPrintPL2::pages_to_print() {
  if (!cmdGraph->isChecked()) return ReportForm::pages_to_print();
  return [this](const QPageLayout& page) { return std::make_unique<Graph_Pages>(graph_, page); };
}

QPageLayout frmPrintPL2::page_to_print() {
  return cmdGraph->isChecked() ? Letter_Page(QPageLayout::Landscape) : ReportForm::page_to_print();
}

GraphSheet::GraphSheet(const PL_Graph& graph, QWidget* parent) : QWidget(parent), graph_(graph) {
  setMinimumSize(56 * theme::unit, 52 * theme::unit);
  setAccessibleName(QStringLiteral("Graph of income and expense"));
}

void GraphSheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint_PL_Graph(painter, QRectF(rect()).adjusted(3 * theme::unit, theme::unit, -3 * theme::unit, -theme::unit), graph_,
                 Graph_Colors::on_screen(), theme::tabular(font()));
}

}  // namespace tallymere
