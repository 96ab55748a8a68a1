#include "shell/widgets/grid/GridDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

std::string typed_in(const QWidget* editor) {
  if (const auto* combo = qobject_cast<const SSDBCombo*>(editor)) return combo->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(editor)) return line->text().toStdString();
  return {};
}

bool is_check(const SSDBGrid& grid, const QModelIndex& index) {
  return grid.column(index.column()).kind == Kind::check;
}

}  // namespace

GridDelegate::GridDelegate(SSDBGrid& grid) : QStyledItemDelegate(&grid), grid_(grid) {}

QRect GridDelegate::arrow_of(const QRect& cell) {
  return {cell.right() - 2 * theme::unit - 2, cell.top(), 2 * theme::unit + 3, cell.height()};
}

SSDBCombo* GridDelegate::list_editor(QWidget* parent, const QModelIndex& index) const {
  auto* combo = new SSDBCombo(parent);
  combo->set_list(grid_.column(index.column()).list);
  combo->setFrame(false);
  const QPersistentModelIndex cell = index;
  auto* self = const_cast<GridDelegate*>(this);
  connect(combo, &SSDBCombo::Click, this, [self, combo] {
    combo->setProperty("picked", true);
    Q_EMIT self->commitData(combo);
    Q_EMIT self->closeEditor(combo);
  });
  connect(combo, &SSDBCombo::Click, &grid_, [this, cell] {
    if (cell.isValid()) Q_EMIT grid_.CloseUp(cell.row(), cell.column());
  });
  return combo;
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const GridColumn& column = grid_.column(index.column());
  QLineEdit* line = nullptr;
  QWidget* editor = nullptr;
  if (column.list) {
    editor = list_editor(parent, index);
  } else if (column.kind == Kind::date) {
    auto* day = new QuillbrookDatePick(parent);
    day->allow_blank(true);
    editor = line = day;
  } else {
    editor = line = new QLineEdit(parent);
    if (column.kind != Kind::text) line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (line) line->setFrame(false);
  if (QLineEdit* text = line ? line : static_cast<SSDBCombo*>(editor)->lineEdit())
    text->setTextMargins(theme::unit / 2, 0, theme::unit / 2,
                         0);  // the text does not jump when the cell opens
  editor->setObjectName(grid_.objectName() + QStringLiteral("_cell"));
  editor->setAccessibleName(column.name);
  editor->setFont(index.data(Qt::FontRole).value<QFont>());
  editor->setAutoFillBackground(true);
  return editor;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* combo = qobject_cast<SSDBCombo*>(editor)) {
    const int ids = grid_.column(index.column()).id_column;
    const std::string id = ids < 0 ? std::string() : grid_.text(index.row(), ids);
    if (id.empty() || !combo->set_id(id)) combo->set_text(text.toStdString());  // two sub-categories may share a name
    combo->lineEdit()->selectAll();
  } else if (auto* day = qobject_cast<QuillbrookDatePick*>(editor)) {
    day->set_value(Date::parse(text.toStdString()));
    day->selectAll();
  } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
    line->setText(text);
  }
}

void GridDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  const auto* combo = qobject_cast<const SSDBCombo*>(editor);
  grid_.take(index.row(), index.column(), typed_in(editor), combo ? combo->row() : -1,
             editor->property("picked").toBool());
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

bool GridDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QWidget*>(watched);
  if (editor && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (enter && key->modifiers() & Qt::ControlModifier) return false;  // the window's, which ends the writing
    if (enter) {
      Q_EMIT commitData(editor);
      Q_EMIT closeEditor(editor, EditNextItem);
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}

/// The row that is chosen stays to be seen, but not as if the keys went there.
void GridDelegate::quieten_without_focus(QStyleOptionViewItem& option) const {
  if (grid_.hasFocus() || grid_.isAncestorOf(QApplication::focusWidget())) return;
  const QColor accent = theme::accent(), sheet = option.palette.color(QPalette::Base);
  const auto blend = [](int full, int none) { return (full + 4 * none) / 5; };
  option.palette.setColor(QPalette::Highlight,
                          QColor(blend(accent.red(), sheet.red()), blend(accent.green(), sheet.green()),
                                 blend(accent.blue(), sheet.blue())));
  option.palette.setColor(QPalette::HighlightedText, option.palette.color(QPalette::Text));
}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state &= ~QStyle::State_HasFocus;
  option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
  if (grid_.selects_rows()) return quieten_without_focus(*option);
  option->state &= ~QStyle::State_Selected;
  if (index.row() == grid_.currentIndex().row() && option->backgroundBrush.style() == Qt::NoBrush) {
    QColor tint = theme::accent();
    tint.setAlpha(26);
    option->backgroundBrush = tint;
  }
}

void GridDelegate::paint_check(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (grid_.cells().is_new_line(index.row())) return;
  QStyle* style = grid_.style();
  QStyleOptionViewItem box = option;
  const int size = style->pixelMetric(QStyle::PM_IndicatorWidth);
  box.rect = QRect(0, 0, size, size);
  box.rect.moveCenter(option.rect.center());
  const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  box.state = QStyle::State_Enabled | (on ? QStyle::State_On : QStyle::State_Off);
  style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, &grid_);
}

/// As under a column of figures that is added up.
void GridDelegate::paint_rule(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const auto look = grid_.cells().find_style(index.row(), index.column());
  const bool amount = grid_.column(index.column()).kind == Kind::money;
  if (!look || !look->rule || !amount || index.data().toString().isEmpty()) return;
  painter->save();
  painter->setPen(option.palette.color(QPalette::Text));
  painter->drawLine(option.rect.left() + theme::unit, option.rect.top(), option.rect.right() - 2, option.rect.top());
  painter->restore();
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (is_check(grid_, index)) paint_check(painter, option, index);
  paint_rule(painter, option, index);
  if (grid_.selects_rows() || index != grid_.currentIndex()) return;
  painter->save();
  if (grid_.column(index.column()).list && (index.flags() & Qt::ItemIsEditable)) {
    QStyleOption arrow;
    arrow.initFrom(&grid_);
    arrow.rect = arrow_of(option.rect).adjusted(4, 4, -4, -4);
    grid_.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, &grid_);
  }
  painter->setPen(QPen(theme::accent(), grid_.hasFocus() ? 2 : 1));
  painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
  painter->restore();
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  size.rwidth() += theme::unit;
  return size;
}

}  // namespace tallymere
