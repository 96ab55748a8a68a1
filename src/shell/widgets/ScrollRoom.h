#pragma once

#include <QScrollArea>

namespace tallymere {

/// Room for what a small screen cannot show whole: it scrolls, and follows the focus. Elsewhere nobody sees that it is
/// there.
class ScrollRoom : public QScrollArea {
 public:
  explicit ScrollRoom(QLayout* content);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
};

}  // namespace tallymere
