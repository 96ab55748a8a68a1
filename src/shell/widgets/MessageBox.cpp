#include "shell/widgets/MessageBox.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "shell/widgets/Form.h"
#include "shell/widgets/grid/arrow_pointer.h"
#include "shell/widgets/line_icon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int icon_size = 32, widest = 60 * theme::unit;

QString icon_of(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QStringLiteral("information");
    case Icon::Question:
      return QStringLiteral("help");
    case Icon::Critical:
      return QStringLiteral("critical");
    case Icon::None:
      break;
  }
  return {};
}

struct Word {
  const char* name;
  const char* caption;
};

Word word_of(MessageBox::Answer answer) {
  switch (answer) {
    case MessageBox::Answer::Yes:
      return {"cmdYes", "&Yes"};
    case MessageBox::Answer::No:
      return {"cmdNo", "&No"};
    case MessageBox::Answer::Cancel:
      return {"cmdCancel", "Cancel"};
    case MessageBox::Answer::Ok:
      break;
  }
  return {"cmdOk", "OK"};
}

/// With places to break a line at in what has none, as paths and names of any length.
QString breakable(const QString& text) {
  constexpr int longest = 40;
  QString result;
  int run = 0;
  for (const QChar letter : text) {
    result += letter;
    run = letter.isSpace() ? 0 : run + 1;
    if (run < longest && letter != QLatin1Char('/')) continue;
    result += QChar(0x200b);
    run = 0;
  }
  return result;
}

/// Words of any length and any content: plain text, wrapped where a line would be wider than a box should be.
QLabel* words(const char* name, const QString& text) {
  auto* label = new QLabel(breakable(text));
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  const QSize free = label->fontMetrics().size(0, text);
  label->setWordWrap(free.width() > widest);
  label->setMinimumWidth(std::min(free.width() + 2, widest));
  return label;
}

}  // namespace

MessageBox::MessageBox(QWidget* above, const Box& box, const std::vector<Answer>& answers, Answer usual, Answer stay)
    : QDialog(above, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      answer_(stay),
      stay_(stay) {
  setObjectName(QStringLiteral("MessageBox"));
  setWindowTitle(qt(box.title));
  build(box);
  static_cast<QBoxLayout*>(layout())->addLayout(answer_row(answers, usual));
  findChild<QPushButton*>(QString::fromLatin1(word_of(usual).name))->setFocus();
}

void MessageBox::build(const Box& box) {
  QString text = qt(box.text);
  text.remove(QLatin1Char('\r'));
  all_words_ = box.detail.empty() ? text : text + QLatin1Char('\n') + qt(box.detail);
  setAccessibleName(windowTitle());
  setAccessibleDescription(all_words_);

  auto* said = column_layout();
  said->addWidget(words("lblText", text));
  if (!box.detail.empty()) {
    QLabel* detail = words("lblDetail", qt(box.detail));
    QPalette palette = detail->palette();
    palette.setColor(QPalette::WindowText, theme::quiet_text());
    detail->setPalette(palette);
    said->addWidget(detail);
  }
  said->addStretch(1);
  auto* row = row_layout();
  row->setSpacing(2 * theme::gap);
  if (box.icon != Icon::None) {
    auto* icon = new QLabel;
    icon->setPixmap(Line_Icon(icon_of(box.icon)).pixmap(QSize(icon_size, icon_size), devicePixelRatioF()));
    row->addWidget(icon, 0, Qt::AlignTop);
  }
  row->addLayout(said, 1);
  auto* column = column_layout(this);
  column->addLayout(row, 1);
  column->addSpacing(theme::gap);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* MessageBox::answer_row(const std::vector<Answer>& answers, Answer usual) {
  auto* row = row_layout();
  row->addStretch(1);
  for (const Answer answer : answers) {
    const Word word = word_of(answer);
    auto* button = new QPushButton(QString::fromLatin1(word.caption));
    button->setObjectName(QString::fromLatin1(word.name));
    button->setAutoDefault(true);  // Enter gives the answer that has the focus, and that is the coloured one
    button->setDefault(answer == usual);
    connect(button, &QPushButton::clicked, this, [this, answer] {
      answer_ = answer;
      accept();
    });
    row->addWidget(button);
  }
  return row;
}

MessageBox::Answer MessageBox::ask() {
  const ArrowPointer arrow;
  exec();
  return answer_;
}

void MessageBox::reject() {
  answer_ = stay_;
  QDialog::reject();
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy)) return QDialog::keyPressEvent(event);
  QApplication::clipboard()->setText(windowTitle() + QLatin1Char('\n') + all_words_);
}

}  // namespace tallymere
