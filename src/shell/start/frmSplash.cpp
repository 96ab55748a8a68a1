#include "shell/start/frmSplash.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "shell/widgets/line_icon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int tick = 200;    // milliseconds
constexpr int shown = 2001;  // counted in whole ticks: the eleventh ends it
const QColor ground(0x0f, 0x66, 0x73), ground_end(0x0a, 0x43, 0x4d), ink(0xff, 0xff, 0xff), quiet(0xbf, 0xe0, 0xe5);

QLabel* line(const QString& text, qreal scale, bool bold, const QColor& color) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * scale);
  font.setBold(bold);
  label->setFont(font);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, color);
  label->setPalette(palette);
  return label;
}

}  // namespace

frmSplash::frmSplash(Shell& shell_of_frame) : Form(shell_of_frame, "frmSplash", Place::Above) {
  setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  setFocusPolicy(Qt::StrongFocus);
  build();
  Timer1 = new QTimer(this);
  Timer1->setObjectName(QStringLiteral("Timer1"));
  Timer1->setInterval(tick);
  on(Timer1, &QTimer::timeout, "Timer1_Timer", [this] { Timer1_Timer(); });
}

void frmSplash::build() {
  Label1 = named("Label1", line(QStringLiteral("Quillbrook Software Inc."), 1.0, false, quiet));
  Label2 =
      named("Label2", line(QStringLiteral("Ver. %1").arg(QCoreApplication::applicationVersion()), 1.0, false, quiet));
  Label3 = named("Label3", line(QStringLiteral("Tallymere"), 3.2, true, ink));
  Label4 = named("Label4", line(QStringLiteral("Tallymere"), 3.2, true, ground_end));  // its shadow
  lblLoad = named("lblLoad", line(QStringLiteral("Loading"), 1.0, false, ink));
  lblLoad->setMinimumWidth(30 * theme::unit);
  Label4->setContentsMargins(2, 3, 0, 0);
  Label3->setContentsMargins(0, 0, 2, 3);
  auto* mark = new QLabel;
  mark->setPixmap(Program_Icon().pixmap(QSize(96, 96)));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(4 * theme::unit, 4 * theme::unit, 4 * theme::unit, 3 * theme::unit);
  grid->setHorizontalSpacing(3 * theme::unit);
  grid->addWidget(mark, 0, 0, 2, 1, Qt::AlignTop);
  grid->addWidget(Label4, 0, 1, 1, 2);
  grid->addWidget(Label3, 0, 1, 1, 2);
  grid->addWidget(Label1, 1, 1, 1, 2, Qt::AlignTop);
  grid->setRowStretch(2, 1);
  grid->addWidget(lblLoad, 3, 0, 1, 2);
  grid->addWidget(Label2, 3, 2, Qt::AlignRight);
  setFixedSize(62 * theme::unit, 27 * theme::unit);
}

void frmSplash::show_centred() {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  move(screen.center() - rect().center());
  show();
  setFocus();
  Timer1->start();
}

void frmSplash::Timer1_Timer() {
  elapsed_ += tick;
  if (elapsed_ >= shown) return leave();
  lblLoad->setText(lblLoad->text() + QStringLiteral("..."));
}

void frmSplash::leave() {
  if (!Timer1->isActive()) return;
  Timer1->stop();
  Q_EMIT done();
  finish(true);
}

void frmSplash::mousePressEvent(QMouseEvent*) { leave(); }
void frmSplash::keyPressEvent(QKeyEvent*) { leave(); }

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QLinearGradient gradient(0, 0, 0, height());
  gradient.setColorAt(0, ground);
  gradient.setColorAt(1, ground_end);
  painter.fillRect(rect(), gradient);
  // Faint ruled lines, as in a ledger.
  painter.setPen(QColor(255, 255, 255, 18));
  for (int y = 3 * theme::unit; y < height(); y += 3 * theme::unit) painter.drawLine(0, y, width(), y);
}

}  // namespace tallymere
