#include "shell/widgets/ScrollRoom.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>

#include "shell/widgets/theme.h"

namespace tallymere {

ScrollRoom::ScrollRoom(QLayout* content) {
  auto* inside = new QWidget;
  inside->setLayout(content);
  setWidget(inside);
  setWidgetResizable(true);
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
  inside->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && widget()->isAncestorOf(now)) ensureWidgetVisible(now, 0, theme::gap);
  });
}

QSize ScrollRoom::sizeHint() const { return widget()->sizeHint(); }

/// As wide as what it holds, and as high as a few lines.
QSize ScrollRoom::minimumSizeHint() const {
  return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), 20 * theme::unit};
}

}  // namespace tallymere
