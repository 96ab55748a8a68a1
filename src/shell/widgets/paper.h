#pragma once

#include <QFrame>
#include <QLabel>

class QHBoxLayout;

/// What documents on screen are made of: a sheet, the line for the amount in words, figures with a caption.
namespace tallymere {

/// The sheet of paper: one fine line around what is written on it.
class Paper : public QFrame {
 public:
  Paper() { setFrameShape(QFrame::NoFrame); }

 protected:
  void paintEvent(QPaintEvent*) override;
};

/// The words of an amount stand on a line. The asterisks before them are cut when there is no room, the words never:
/// they are set smaller.
class WordsLine : public QLabel {
 public:
  WordsLine() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QFont fitting_font() const;
};

/// "Hours: 80": a caption and the label that shows the figure.
QHBoxLayout* figure_row(const char* caption, QLabel* value);

}  // namespace tallymere
