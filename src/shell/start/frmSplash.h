#pragma once

#include "shell/widgets/Form.h"

class QLabel;
class QTimer;

namespace tallymere {

/// The picture shown while the program starts: eleven ticks of 200 ms, or until a click or a key.
class frmSplash : public Form {
  Q_OBJECT

 public:
  explicit frmSplash(Shell& shell_of_frame);
  void show_centred();

 Q_SIGNALS:
  void done();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void build();
  void Timer1_Timer();
  void leave();

  QLabel *Label1, *Label2, *Label3, *Label4, *lblLoad;
  QTimer* Timer1;
  int elapsed_ = 0;
};

}  // namespace tallymere
