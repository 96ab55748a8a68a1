#pragma once

#include <QColor>

#include "shell/widgets/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

namespace tallymere {

/// All colours at a glance: hues from left to right, light above and dark below, greys in the last columns. Mouse and arrow
/// keys pick.
class ColorPalette : public QWidget {
  Q_OBJECT

 public:
  explicit ColorPalette(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  static QColor color_at(double across, double down);  ///< both 0 to 1

 Q_SIGNALS:
  void Picked(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { pick(event); }
  void mouseMoveEvent(QMouseEvent* event) override { pick(event); }
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void pick(QMouseEvent* event);
  void pick_at(QPointF place);

  QPointF place_{0.5, 0.3};  ///< where the last pick was
};

/// A colour for the one that comes as `number`; the answer is the one picked. Both as they are kept.
class frmColorPicker : public Form {
  Q_OBJECT

 public:
  explicit frmColorPicker(Shell& shell_of_frame);

  void take(const Request& request) override;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void build();
  void show_color(const QColor& color);
  void text_typed();
  void picScreenColor_Click();
  void tmrScreenColor_Timer();

  QColor color_;
  ColorPalette* picColor;
  QLabel* picPreView;
  QLineEdit* txtColor;  ///< "A0C8FF"
  QTimer* tmrScreenColor;
  QPushButton *picScreenColor, *cmdOk, *cmdCancel;
};

}  // namespace tallymere
