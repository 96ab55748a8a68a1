#include "shell/widgets/theme_style.h"

#include <QComboBox>
#include <QStyleOptionButton>
#include <QTableView>

#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

/// Fusion draws outlines darker than the window: on a dark desktop or paper nobody sees them. While this lives the
/// option's window is a light one, so that boxes and fields keep an edge.
class VisibleEdges {
 public:
  explicit VisibleEdges(const QStyleOption* option)
      : option_(const_cast<QStyleOption*>(option)), palette_(option->palette) {
    if (palette_.color(QPalette::Window).lightness() < 128)
      option_->palette.setColor(QPalette::Window, QColor(0x7d, 0x8d, 0x93));
  }
  ~VisibleEdges() { option_->palette = palette_; }
  VisibleEdges(const VisibleEdges&) = delete;
  VisibleEdges& operator=(const VisibleEdges&) = delete;

 private:
  QStyleOption* option_;
  QPalette palette_;
};

bool has_edge(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_IndicatorItemViewItemCheck:
      return true;
    default:
      return false;
  }
}

/// Grids and the lists of combos; the months of a calendar need every pixel.
bool is_grid(const QWidget* widget) {
  return qobject_cast<const QTableView*>(widget) && !widget->inherits("QCalendarView");
}

}  // namespace

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

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (!has_edge(element)) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const VisibleEdges edges(option);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  if (control != CC_ComboBox && control != CC_SpinBox)
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  const VisibleEdges edges(option);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
      return theme::margin;
    case PM_FocusFrameHMargin:  // cells begin where their heads begin
      return is_grid(widget) ? theme::unit - 1 : QProxyStyle::pixelMetric(metric, option, widget);
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
    case SH_Table_GridLineColor:
      return static_cast<int>(theme::grid_line().rgba());
    case SH_EtchDisabledText:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, result);
  }
}

}  // namespace tallymere
