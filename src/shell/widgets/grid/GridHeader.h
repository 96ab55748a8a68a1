#pragma once

#include <QHeaderView>
#include <vector>

#include "shell/widgets/grid/GridModel.h"

namespace tallymere {

/// Column heads, with a band of group captions above them where a grid has groups.
class GridHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridHeader(QWidget* parent);

  void set_groups(std::vector<GridGroup> groups);
  const std::vector<GridGroup>& groups() const { return groups_; }
  /// Room a column needs for its caption, in pixels.
  int width_for(int column) const;

  void set_frozen(int columns);  ///< the first ones stay when the rest is scrolled sideways
  int frozen() const { return frozen_; }
  int frozen_edge() const;  ///< where they end; 0: nothing has moved below them

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;

 private:
  int band_height() const;
  QRect place_of(const GridGroup& group) const;
  void paint_group(QPainter& painter, const GridGroup& group) const;
  QFont head_font() const;

  std::vector<GridGroup> groups_;
  int frozen_ = 0;
};

}  // namespace tallymere
