#include "shell/start/start_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/widgets/line_icon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int columns = 2;

QLabel* centred_label(qreal scale, bool bold) {
  auto* label = new QLabel;
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * scale);
  font.setBold(bold);
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QToolButton* shortcut_button(const StartPanel::Shortcut& shortcut) {
  auto* button = new QToolButton;
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setIcon(Line_Icon(shortcut.icon));
  button->setText(QStringLiteral(" ") + shortcut.caption + QStringLiteral(" "));
  button->setIconSize(QSize(20, 20));
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  button->setMinimumSize(20 * theme::unit, 4 * theme::unit);
  return button;
}

void quieten(QLabel* label) {
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, theme::quiet_text());
  label->setPalette(palette);
}

}  // namespace

const std::vector<StartPanel::Shortcut>& Company_Shortcuts() {
  static const std::vector<StartPanel::Shortcut> shortcuts = {
      {QStringLiteral("Write a check"), QStringLiteral("check"), "mnuChecks"},
      {QStringLiteral("Create an invoice"), QStringLiteral("invoice"), "mnuInvoices"},
      {QStringLiteral("Enter a bill"), QStringLiteral("bill"), "mnuBill"},
      {QStringLiteral("Receive a payment"), QStringLiteral("payment"), "mnuPayments"},
      {QStringLiteral("Categories"), QStringLiteral("categories"), "mnuAccounts"},
      {QStringLiteral("Profit and loss"), QStringLiteral("graph"), "mnuRBasic"}};
  return shortcuts;
}

const std::vector<StartPanel::Shortcut>& Start_Shortcuts() {
  static const std::vector<StartPanel::Shortcut> shortcuts = {
      {QStringLiteral("Choose a company"), QStringLiteral("open"), "frmStart"}};
  return shortcuts;
}

StartPanel::StartPanel(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("StartPanel"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4 * theme::unit, 4 * theme::unit, 4 * theme::unit, 4 * theme::unit);
  column->setSpacing(theme::gap);
  auto* mark = new QLabel;
  mark->setPixmap(Program_Icon().pixmap(QSize(48, 48), devicePixelRatioF()));
  mark->setAlignment(Qt::AlignCenter);
  name_ = centred_label(1.6, true);
  line_ = centred_label(1.0, false);
  quieten(line_);
  figures_ = new QGridLayout;
  figures_->setHorizontalSpacing(4 * theme::gap);
  figures_->setVerticalSpacing(theme::gap / 2);
  buttons_ = new QGridLayout;
  buttons_->setSpacing(theme::gap);
  column->addWidget(mark);
  column->addWidget(name_);
  column->addWidget(line_);
  column->addLayout(figures_);
  column->addLayout(buttons_);
}

/// A card on the frame's background, whatever colour the company gave it.
void StartPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(theme::grid_line());
  painter.setBrush(palette().window());
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::unit, theme::unit);
}

void StartPanel::show_company(const QString& name, const QString& line, const std::vector<Figure>& figures,
                              const std::vector<Shortcut>& shortcuts) {
  name_->setText(name_->fontMetrics().elidedText(name, Qt::ElideRight, 320));
  line_->setText(line);
  show_figures(figures);
  show_shortcuts(shortcuts);
  centre();
}

void StartPanel::show_figures(const std::vector<Figure>& figures) {
  figures_->setContentsMargins(0, figures.empty() ? 0 : 2 * theme::gap, 0, 0);
  while (QLayoutItem* item = figures_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  int row = 0;
  for (const Figure& figure : figures) {
    auto* caption = new QLabel(fontMetrics().elidedText(figure.caption, Qt::ElideRight, 240));
    auto* amount = new QLabel(figure.amount);
    caption->setTextFormat(Qt::PlainText);
    quieten(caption);
    amount->setFont(theme::tabular(amount->font()));
    amount->setAlignment(Qt::AlignRight);
    amount->setObjectName(QStringLiteral("figure_%1").arg(row));
    figures_->addWidget(caption, row, 0);
    figures_->addWidget(amount, row++, 1);
    caption->show();
    amount->show();
  }
}

void StartPanel::show_shortcuts(const std::vector<Shortcut>& shortcuts) {
  buttons_->setContentsMargins(0, shortcuts.empty() ? 0 : 2 * theme::gap, 0, 0);
  for (QToolButton* button : findChildren<QToolButton*>()) {
    buttons_->removeWidget(button);
    button->hide();
    button->setParent(nullptr);
    button->deleteLater();  // it may be the one that was just clicked
  }
  int place = 0;
  for (const Shortcut& shortcut : shortcuts) {
    QToolButton* button = shortcut_button(shortcut);
    connect(button, &QToolButton::clicked, this,
            [this, command = shortcut.command] { Q_EMIT chosen(QString::fromStdString(command)); });
    const int span = shortcuts.size() == 1 ? columns : 1;
    buttons_->addWidget(button, place / columns, place % columns, 1, span);
    button->show();  // a button that is yet to show takes no room when the card is measured
    ++place;
  }
}

void StartPanel::centre() {
  adjustSize();
  const QSize room = parentWidget()->size();
  move(std::max(0, (room.width() - width()) / 2), std::max(0, (room.height() - height()) * 2 / 5));
}

}  // namespace tallymere
