// What a grid paints beyond its cells: the hint of an empty one, columns that stay when it is scrolled
// sideways.
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include "shell/widgets/grid/GridHeader.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

void SSDBGrid::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (rows() > 0) return paint_frozen_columns();
  if (hint_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(theme::quiet_text());
  const int top = model_->has_new_line() ? verticalHeader()->defaultSectionSize() : 0;
  painter.drawText(viewport()->rect().adjusted(2 * theme::unit, top, -2 * theme::unit, 0),
                   Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

/// Not below the frozen columns.
void SSDBGrid::scrollTo(const QModelIndex& cell, ScrollHint hint) {
  QTableView::scrollTo(cell, hint);
  const int covered = header_->frozen_edge() - columnViewportPosition(cell.column());
  if (cell.column() >= header_->frozen() && covered > 0)
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
}

/// Once more, over what has moved below them.
void SSDBGrid::paint_frozen_columns() {
  const int edge = header_->frozen_edge();
  if (edge == 0) return;
  QPainter painter(viewport());
  const int last = rowAt(viewport()->height() - 1);
  for (int row = std::max(rowAt(0), 0); row <= (last < 0 ? model_->rowCount() - 1 : last); ++row)
    for (int column = 0; column < header_->frozen(); ++column)
      if (!isColumnHidden(column)) paint_frozen(painter, row, column);
  painter.setPen(theme::grid_line());
  painter.drawLine(edge - 1, 0, edge - 1, viewport()->height());
}

void SSDBGrid::paint_frozen(QPainter& painter, int row, int column) {
  const QModelIndex cell = model_->index(row, column);
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = QRect(header_->sectionPosition(column), rowViewportPosition(row), columnWidth(column), rowHeight(row));
  for (int over = 1; over < columnSpan(row, column); ++over)
    option.rect.setWidth(option.rect.width() + columnWidth(column + over));
  if (selectionModel()->isSelected(cell)) option.state |= QStyle::State_Selected;
  if (alternatingRowColors() && row % 2 == 1) option.features |= QStyleOptionViewItem::Alternate;
  painter.fillRect(
      option.rect,
      palette().brush(option.features & QStyleOptionViewItem::Alternate ? QPalette::AlternateBase : QPalette::Base));
  itemDelegate()->paint(&painter, option, cell);
}

}  // namespace tallymere
