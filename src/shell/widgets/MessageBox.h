#pragma once

#include <QDialog>
#include <vector>

#include "core/company/prompts.h"

class QBoxLayout;

namespace tallymere {

/// The one box in which the program says and asks: its icon, the words, below them the thing they are about, and the
/// answers. The usual answer is the coloured one and what Enter gives; Esc and the window's cross give the one that
/// leaves everything as it is. Ctrl+C copies what it says.
class MessageBox : public QDialog {
  Q_OBJECT

 public:
  enum class Answer { Ok, Yes, No, Cancel };

  /// `answers` from left to right, `usual` and `stay` among them.
  MessageBox(QWidget* above, const Box& box, const std::vector<Answer>& answers, Answer usual, Answer stay);

  /// Runs the box until it is answered.
  Answer ask();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;

 private:
  void build(const Box& box);
  QLayout* answer_row(const std::vector<Answer>& answers, Answer usual);

  Answer answer_;
  const Answer stay_;
  QString all_words_;  ///< for the clipboard and those who listen
};

}  // namespace tallymere
