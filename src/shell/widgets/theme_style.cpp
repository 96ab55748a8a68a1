#include "shell/widgets/theme_style.h"

#include <QComboBox>
#include <QStyleOptionButton>

#include "shell/widgets/theme.h"

namespace tallymere {

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  const bool is_default = button && (button->features & QStyleOptionButton::DefaultButton) &&
                          (button->state & State_Enabled) &&
                          (element == CE_PushButtonBevel || element == CE_PushButtonLabel);
  if (!is_default) return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionButton filled = *button;
  filled.features &= ~QStyleOptionButton::DefaultButton;
  filled.palette.setColor(QPalette::Button, theme::accent());
  filled.palette.setColor(QPalette::ButtonText, theme::on_accent());
  QProxyStyle::drawControl(element, &filled, painter, widget);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
      return theme::margin;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return theme::gap;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
  QSize room = QProxyStyle::sizeFromContents(type, option, size, widget);
  const int line = 3 * theme::unit + 4;
  switch (type) {
    case CT_PushButton:
      return {std::max(room.width() + theme::unit, 11 * theme::unit), std::max(room.height(), line)};
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
      return {room.width(), std::max(room.height(), line)};
    case CT_MenuItem:
      return {room.width() + theme::unit, room.height() + theme::unit / 4};
    default:
      return room;
  }
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const {
  switch (hint) {
    case SH_ComboBox_Popup:  // a list below the box, not a menu over it
      return 0;
    case SH_FormLayoutLabelAlignment:
      return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    case SH_EtchDisabledText:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, result);
  }
}

}  // namespace tallymere
