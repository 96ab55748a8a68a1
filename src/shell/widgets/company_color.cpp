#include "shell/widgets/company_color.h"

#include <QPalette>
#include <QWidget>
#include <cmath>

#include "core/company/preferences.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

/// A light background chosen by day is turned to its dark counterpart on a dark desktop.
QColor suited_to_scheme(const QColor& color) {
  if (!theme::is_dark() || color.lightness() < 128) return color;
  return QColor::fromHsl(std::max(0, color.hslHue()), color.hslSaturation() / 2, std::max(26, 255 - color.lightness()));
}

/// What the eye makes of a colour, 0 to 1 (relative luminance of sRGB).
double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor between(const QColor& one, const QColor& other, double share) {
  const auto mixed = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return QColor(mixed(one.red(), other.red()), mixed(one.green(), other.green()), mixed(one.blue(), other.blue()));
}

}  // namespace

QColor Stored_Color(int64_t value) {
  return QColor(static_cast<int>(value & 255), static_cast<int>(value >> 8 & 255), static_cast<int>(value >> 16 & 255));
}

int64_t Color_To_Store(const QColor& color) { return color.red() + 256 * color.green() + 65536 * color.blue(); }

QColor Company_Color(Session& session, const std::string& item) {
  const auto color = session.dbCompany ? Background(*session.dbCompany, item) : std::nullopt;
  return color ? suited_to_scheme(Stored_Color(*color)) : QColor();
}

QColor Text_On(const QColor& paper) {
  constexpr double even = 0.179;  // where black and white have the same contrast
  return luminance(paper) > even ? QColor(0x14, 0x1c, 0x1f) : QColor(Qt::white);
}

void Paint_Paper(QWidget& frame, const QColor& paper) {
  frame.setAutoFillBackground(paper.isValid());
  if (!paper.isValid()) return frame.setPalette({});
  QPalette palette;
  const QColor ink = Text_On(paper);
  const QColor faint = between(paper, ink, 0.6);
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    palette.setColor(role, paper);
    palette.setColor(QPalette::Disabled, role, paper);
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, ink);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::AlternateBase, between(paper, ink, 0.04));
  frame.setPalette(palette);
}

}  // namespace tallymere
