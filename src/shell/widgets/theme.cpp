#include "shell/widgets/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPalette>
#include <array>

#include "shell/widgets/theme_style.h"

namespace tallymere {

namespace {

/// The colours of one scheme, each where the eye meets it.
struct Colors {
  const char *window, *text, *sheet, *stripe, *button, *quiet, *accent, *on_accent, *link, *tip, *grid, *faulty, *off;
};
constexpr Colors light{"#f2f5f6", "#1b2427", "#ffffff", "#f5f9fa", "#fbfcfc", "#66757a", "#0f6673",
                       "#ffffff", "#0b5c69", "#fffdf2", "#dde4e6", "#b3261e", "#9aa6aa"};
constexpr Colors dark{"#20272a", "#e3eaec", "#171c1e", "#1c2325", "#2c3538", "#93a3a8", "#1f7a88",
                      "#ffffff", "#6cc7d4", "#2c3538", "#2e383b", "#ff8a80", "#67757a"};

const Colors& colors() { return theme::is_dark() ? dark : light; }
QColor color(const char* name) { return QColor(QLatin1String(name)); }

QPalette palette_of(const Colors& c) {
  QPalette palette(color(c.button), color(c.window));
  const std::pair<QPalette::ColorRole, const char*> roles[] = {{QPalette::Window, c.window},
                                                               {QPalette::WindowText, c.text},
                                                               {QPalette::Base, c.sheet},
                                                               {QPalette::AlternateBase, c.stripe},
                                                               {QPalette::Text, c.text},
                                                               {QPalette::Button, c.button},
                                                               {QPalette::ButtonText, c.text},
                                                               {QPalette::Highlight, c.accent},
                                                               {QPalette::HighlightedText, c.on_accent},
                                                               {QPalette::Link, c.link},
                                                               {QPalette::ToolTipBase, c.tip},
                                                               {QPalette::ToolTipText, c.text},
                                                               {QPalette::PlaceholderText, c.quiet}};
  for (const auto& [role, name] : roles) palette.setColor(role, color(name));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
    palette.setColor(QPalette::Disabled, role, color(c.off));
  palette.setColor(QPalette::Disabled, QPalette::Base, color(c.window));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, color(c.grid));
  return palette;
}

bool desktop_is_dark() {
  const QPalette palette = QApplication::palette();
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool has_tabular_figures(const QFont& font) {
  const QFontMetricsF metrics(font);
  const qreal width = metrics.horizontalAdvance(QLatin1Char('0'));
  for (const char digit : {'1', '4', '7', '8'})
    if (std::abs(metrics.horizontalAdvance(QLatin1Char(digit)) - width) > 0.01) return false;
  return true;
}

QHBoxLayout* buttons_in_row(std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right) {
  auto* row = row_layout();
  for (QPushButton* button : left) row->addWidget(button);
  row->addStretch(1);
  for (QPushButton* button : right) row->addWidget(button);
  return row;
}

QString without_mnemonic(QString text) {
  text.remove(QLatin1Char('&'));
  while (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text;
}

}  // namespace

namespace theme {

bool is_dark() { return desktop_is_dark(); }
QColor accent() { return color(colors().accent); }
QColor on_accent() { return color(colors().on_accent); }
QColor quiet_text() { return color(colors().quiet); }
QColor faulty() { return color(colors().faulty); }
QColor grid_line() { return color(colors().grid); }

QFont tabular(const QFont& base) {
  if (has_tabular_figures(base)) return base;
  for (const char* family : {"Noto Sans", "Segoe UI", "Liberation Sans", "DejaVu Sans", "Arial"}) {
    QFont figures = base;
    figures.setFamilies({QString::fromLatin1(family)});
    if (QFontDatabase::hasFamily(QString::fromLatin1(family)) && has_tabular_figures(figures)) return figures;
  }
  return base;
}

}  // namespace theme

void apply_theme(QApplication& app, theme::Scheme scheme) {
  const bool go_dark = scheme == theme::Scheme::Dark || (scheme == theme::Scheme::Desktop && desktop_is_dark());
  app.setStyle(new ThemeStyle);
  app.setPalette(palette_of(go_dark ? dark : light));
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  if (font.pointSizeF() > 0 && font.pointSizeF() < 9.5) font.setPointSizeF(10);
  app.setFont(font);
}

void mark_faulty(QWidget* field, bool faulty) {
  static const char* const usual = "usual_palette";
  const QVariant kept = field->property(usual);
  if (faulty == kept.isValid()) return;
  QPalette palette = faulty ? field->palette() : kept.value<QPalette>();
  field->setProperty(usual, faulty ? QVariant::fromValue(palette) : QVariant());
  if (faulty) palette.setColor(QPalette::Text, theme::faulty());
  field->setPalette(palette);
}

namespace {

/// On dense screens a text is a little wider than its whole points say, and its first letter would be cut.
class FieldLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize sizeHint() const override { return wider(QLabel::sizeHint()); }
  QSize minimumSizeHint() const override { return wider(QLabel::minimumSizeHint()); }

 private:
  static QSize wider(QSize size) { return {size.width() + 2, size.height()}; }
};

}  // namespace

QLabel* label_for(QWidget* control, const QString& text) {
  auto* label = new FieldLabel(text);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setBuddy(control);
  if (control->accessibleName().isEmpty()) control->setAccessibleName(without_mnemonic(text));
  return label;
}

QFormLayout* form_layout() {
  auto* form = new QFormLayout;
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setHorizontalSpacing(theme::gap);
  form->setVerticalSpacing(theme::gap);
  form->setContentsMargins(0, 0, 0, 0);
  return form;
}

void add_field(QFormLayout* form, const QString& label, QWidget* control) {
  form->addRow(label_for(control, label), control);
}

QVBoxLayout* column_layout(QWidget* owner) {
  auto* column = owner ? new QVBoxLayout(owner) : new QVBoxLayout;
  column->setSpacing(theme::gap);
  const int around = owner ? theme::margin : 0;
  column->setContentsMargins(around, around, around, around);
  return column;
}

QHBoxLayout* row_layout() {
  auto* row = new QHBoxLayout;
  row->setSpacing(theme::gap);
  row->setContentsMargins(0, 0, 0, 0);
  return row;
}

QHBoxLayout* button_row(std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right) {
  if (right.size() > 0) (*(right.end() - 1))->setDefault(true);
  return buttons_in_row(left, right);
}

QHBoxLayout* plain_button_row(std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right) {
  return buttons_in_row(left, right);
}

void lay_out_dialog(QWidget* dialog, QFormLayout* fields, std::initializer_list<QPushButton*> buttons) {
  auto* column = column_layout(dialog);
  column->addLayout(fields);
  column->addStretch(1);
  column->addSpacing(theme::gap);
  column->addLayout(button_row({}, buttons));
}

}  // namespace tallymere
