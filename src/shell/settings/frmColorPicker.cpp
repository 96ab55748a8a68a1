#include "shell/settings/frmColorPicker.h"

#include <QCursor>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "shell/widgets/company_color.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr double greys_from = 0.92;  // of the palette's width
constexpr double key_step = 0.02;

/// The colour under the pointer, wherever on the screen that is; invalid where the desktop does not let a program look.
QColor color_on_screen() {
  const QPoint at = QCursor::pos();
  QScreen* screen = QGuiApplication::screenAt(at);
  if (!screen) return {};
  const QPoint there = at - screen->geometry().topLeft();
  const QImage pixel = screen->grabWindow(0, there.x(), there.y(), 1, 1).toImage();
  return pixel.isNull() ? QColor() : pixel.pixelColor(0, 0);
}

}  // namespace

// --- the palette ---------------------------------------------------------------------------------

ColorPalette::ColorPalette(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
  setMinimumSize(32 * theme::unit, 20 * theme::unit);
}

QSize ColorPalette::sizeHint() const { return {48 * theme::unit, 24 * theme::unit}; }

QColor ColorPalette::color_at(double across, double down) {
  const double light = 1 - std::clamp(down, 0.0, 1.0);
  if (across >= greys_from) return QColor::fromHslF(0, 0, light);
  return QColor::fromHslF(std::clamp(across / greys_from, 0.0, 0.999), 0.8F, light);
}

void ColorPalette::paintEvent(QPaintEvent*) {
  QImage picture(size(), QImage::Format_RGB32);
  for (int y = 0; y < height(); ++y)
    for (int x = 0; x < width(); ++x)
      picture.setPixelColor(x, y, color_at(double(x) / width(), double(y) / std::max(1, height() - 1)));
  QPainter painter(this);
  painter.drawImage(0, 0, picture);
  painter.setPen(QPen(hasFocus() ? theme::accent() : Qt::black, 2));
  painter.drawEllipse(QPointF(place_.x() * width(), place_.y() * height()), 5, 5);
}

void ColorPalette::pick(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  pick_at({event->position().x() / width(), event->position().y() / height()});
}

void ColorPalette::pick_at(QPointF place) {
  place_ = {std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0)};
  update();
  Q_EMIT Picked(color_at(place_.x(), place_.y()));
}

void ColorPalette::keyPressEvent(QKeyEvent* event) {
  const QPointF step = event->key() == Qt::Key_Left    ? QPointF(-key_step, 0)
                       : event->key() == Qt::Key_Right ? QPointF(key_step, 0)
                       : event->key() == Qt::Key_Up    ? QPointF(0, -key_step)
                       : event->key() == Qt::Key_Down  ? QPointF(0, key_step)
                                                       : QPointF();
  step.isNull() ? QWidget::keyPressEvent(event) : pick_at(place_ + step);
}

// --- the window ----------------------------------------------------------------------------------

frmColorPicker::frmColorPicker(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmColorPicker", Place::Above), tmrScreenColor(new QTimer(this)) {
  setWindowTitle(QStringLiteral("Pick Color"));
  build();
  tmrScreenColor->setInterval(50);
  on(picColor, &ColorPalette::Picked, "picColor_MouseMove", [this](const QColor& color) { show_color(color); });
  on(txtColor, &QLineEdit::textEdited, "txtColor_Change", [this] { text_typed(); });
  on(picScreenColor, "picScreenColor_Click", [this] { picScreenColor_Click(); });
  on(tmrScreenColor, &QTimer::timeout, "tmrScreenColor_Timer", [this] { tmrScreenColor_Timer(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { finish(true, std::to_string(Color_To_Store(color_))); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmColorPicker::build() {
  picColor = named("picColor", new ColorPalette);
  picColor->setAccessibleName(QStringLiteral("Palette"));
  picPreView = named("picPreView", new QLabel(QStringLiteral("1,234.50")));
  picPreView->setFrameShape(QFrame::Box);
  picPreView->setAlignment(Qt::AlignCenter);
  picPreView->setMinimumSize(14 * theme::unit, 6 * theme::unit);
  txtColor = named("txtColor", new QLineEdit);
  txtColor->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9A-Fa-f]{0,6}")), txtColor));
  picScreenColor = named("picScreenColor", new QPushButton(QStringLiteral("From the &Screen")));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&OK")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* below = row_layout();
  below->addWidget(picPreView);
  txtColor->setMaximumWidth(14 * theme::unit);
  below->addWidget(label_for(txtColor, QStringLiteral("Co&de:")));
  below->addWidget(txtColor);
  below->addStretch();
  below->addWidget(picScreenColor);
  auto* column = column_layout(this);
  column->addWidget(picColor, 1);
  column->addLayout(below);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
}

void frmColorPicker::take(const Request& request) {
  show_color(Stored_Color(request.number));
  go_to(picColor);
}

void frmColorPicker::show_color(const QColor& color) {
  color_ = color;
  Paint_Paper(*picPreView, color);
  if (!txtColor->hasFocus()) txtColor->setText(color.name().mid(1).toUpper());
}

void frmColorPicker::text_typed() {
  if (txtColor->text().size() == 6) show_color(QColor(QLatin1Char('#') + txtColor->text()));
}

/// From here on the preview shows what is under the pointer, until the mouse is clicked.
void frmColorPicker::picScreenColor_Click() {
  if (!color_on_screen().isValid())
    return session.prompts.box(
        {"The colour under the pointer cannot be read here.", "Pick Color", Icon::Information,
         "This desktop does not let a program look at other windows. Pick from the palette instead."});
  grabMouse(Qt::CrossCursor);
  tmrScreenColor->start();
}

void frmColorPicker::tmrScreenColor_Timer() {
  if (const QColor seen = color_on_screen(); seen.isValid()) show_color(seen);
}

void frmColorPicker::mouseReleaseEvent(QMouseEvent* event) {
  if (!tmrScreenColor->isActive()) return Form::mouseReleaseEvent(event);
  tmrScreenColor->stop();
  releaseMouse();
}

}  // namespace tallymere
