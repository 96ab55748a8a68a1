#include "shell/widgets/grid/GridHeader.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyleOption>

#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int side = theme::unit;  ///< blank at both sides of a caption

}  // namespace

GridHeader::GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setHighlightSections(false);
  setSectionsClickable(true);
  setMinimumSectionSize(3 * theme::unit);
}

void GridHeader::set_groups(std::vector<GridGroup> groups) {
  groups_ = std::move(groups);
  Q_EMIT geometriesChanged();
  updateGeometry();
  viewport()->update();
}

void GridHeader::set_frozen(int columns) {
  frozen_ = columns;
  viewport()->update();
}

int GridHeader::frozen_edge() const {
  if (offset() == 0 || frozen_ == 0 || frozen_ >= count()) return 0;
  const int edge = sectionPosition(frozen_);
  return edge <= viewport()->width() / 2 ? edge : 0;  // the rest needs room, too
}

QFont GridHeader::head_font() const {
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  return bold;
}

int GridHeader::width_for(int column) const {
  const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  return QFontMetrics(head_font()).size(0, caption).width() + 2 * side + 2;
}

int GridHeader::band_height() const {
  int lines = 0;
  for (const GridGroup& group : groups_)
    lines = std::max(lines, static_cast<int>(group.caption.count(QLatin1Char('\n'))) + 1);
  return lines == 0 ? 0 : lines * QFontMetrics(head_font()).lineSpacing() + theme::unit;
}

QSize GridHeader::sizeHint() const {
  int lines = 1;
  for (int column = 0; model() && column < count(); ++column) {
    const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    lines = std::max(lines, static_cast<int>(caption.count(QLatin1Char('\n'))) + 1);
  }
  const QFontMetrics metrics(head_font());
  return {QHeaderView::sizeHint().width(), band_height() + lines * metrics.lineSpacing() + theme::unit + 2};
}

QRect GridHeader::place_of(const GridGroup& group) const {
  int left = 0;
  int width = 0;
  bool first = true;
  for (int column = group.first; column < group.first + group.count && column < count(); ++column) {
    if (isSectionHidden(column)) continue;
    if (first) left = sectionViewportPosition(column);
    first = false;
    width += sectionSize(column);
  }
  return {left, 0, width, band_height()};
}

void GridHeader::paint_group(QPainter& painter, const GridGroup& group) const {
  QRect place = place_of(group);
  if (place.isEmpty()) return;
  if (groups_.size() == 1)
    place = place.united({0, 0, viewport()->width(), place.height()}).intersected(viewport()->rect());
  painter.setPen(theme::grid_line());
  if (groups_.size() > 1) painter.drawLine(place.topRight(), place.bottomRight());
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  QString rest = group.caption;
  rest.remove(QLatin1Char('\r'));
  const QString title = rest.section(QLatin1Char('\n'), 0, 0);
  rest = rest.section(QLatin1Char('\n'), 1);
  QRect line = place.adjusted(side, theme::unit / 2, -side, 0);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(head_font());
  painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop, title);
  line.setTop(line.top() + QFontMetrics(head_font()).lineSpacing());
  painter.setFont(font());
  painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop, rest);
}

void GridHeader::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setPen(theme::grid_line());
    painter.drawLine(0, height() - 1, viewport()->width(), height() - 1);
  }
  QHeaderView::paintEvent(event);
  QPainter painter(viewport());
  if (frozen_edge() > 0)
    for (int column = 0; column < frozen_; ++column)
      if (!isSectionHidden(column))
        paintSection(&painter, {sectionPosition(column), 0, sectionSize(column), height()}, column);
  for (const GridGroup& group : groups_) paint_group(painter, group);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int column) const {
  const QRect head = rect.adjusted(0, band_height(), 0, 0);
  painter->save();
  painter->fillRect(head, palette().color(QPalette::Window));
  painter->setPen(theme::grid_line());
  painter->drawLine(head.bottomLeft(), head.bottomRight());
  painter->drawLine(head.right(), head.top() + theme::unit / 2, head.right(), head.bottom() - theme::unit / 2);
  painter->setPen(palette().color(QPalette::WindowText));
  painter->setFont(head_font());
  QRect room = head.adjusted(side, 0, -side, 0);
  if (isSortIndicatorShown() && sortIndicatorSection() == column) {
    QStyleOptionHeader arrow;
    arrow.initFrom(this);
    arrow.sortIndicator =
        sortIndicatorOrder() == Qt::AscendingOrder ? QStyleOptionHeader::SortDown : QStyleOptionHeader::SortUp;
    const int size = theme::unit + 4;
    const bool right =
        (model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0;
    arrow.rect =
        QRect(right ? room.left() - size / 2 : room.right() - size / 2, head.center().y() - size / 2, size, size);
    style()->drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &arrow, painter, this);
    right ? room.setLeft(room.left() + size) : room.setRight(room.right() - size);
  }
  const int align = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
  const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const bool one_line = !caption.contains(QLatin1Char('\n'));
  painter->drawText(room, align,
                    one_line ? QFontMetrics(head_font()).elidedText(caption, Qt::ElideRight, room.width()) : caption);
  painter->restore();
}

}  // namespace tallymere
