// What a person does in a grid: typing, keys, the mouse, and the signals that follow.
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTimer>

#include "core/values/reckon.h"
#include "core/values/text.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/GridDelegate.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

// --- text into a cell ---

std::string SSDBGrid::tidied(int column, const std::string& typed, int list_row) const {
  const GridColumn& how = this->column(column);
  if (how.list) return list_row >= 0 ? how.list->text(list_row) : trim(typed);
  if (how.kind == Kind::money && !trim(typed).empty() && !Money::parse(typed))
    if (const auto reckoned = Reckon(typed)) return reckoned->to_text();
  if (how.kind == Kind::date) {
    const auto day = Date::parse(typed, clock_of(this).today());
    return day ? day->to_text() : trim(typed);
  }
  return how.kind == Kind::text ? typed : trim(typed);
}

bool SSDBGrid::same_content(int row, int column, const std::string& text, int list_row, bool picked) const {
  if (text != this->text(row, column)) return false;
  const GridColumn& how = this->column(column);
  if (!how.list || how.id_column < 0) return true;
  const std::string id = this->text(row, how.id_column);
  return how.list->id(list_row) == id || (!picked && !id.empty());
}

void SSDBGrid::store_choice(int row, int column, int list_row) {
  const GridColumn& how = this->column(column);
  if (!how.list) return;
  valid_ = list_row >= 0 || text(row, column).empty();
  if (how.id_column >= 0) model_->set_text(row, how.id_column, how.list->id(list_row));
}

bool SSDBGrid::take(int row, int column, const std::string& typed, int list_row, bool picked) {
  const GridColumn& how = this->column(column);
  if (how.list && list_row < 0) list_row = how.list->find(typed);
  const std::string text = tidied(column, typed, list_row);
  if (same_content(row, column, text, list_row, picked)) return true;
  if (how.list && how.list_only && list_row < 0 && !text.empty()) {
    QApplication::beep();
    return false;
  }
  bool cancel = false;
  Q_EMIT BeforeColUpdate(row, column, text, cancel);
  if (cancel) return false;
  const bool made = model_->is_new_line(row);
  if (made) model_->insert(row, {});
  if (row >= rows()) return false;  // the handler took the rows away
  model_->set_text(row, column, text);
  store_choice(row, column, list_row);
  changed_row_ = row;
  Q_EMIT AfterColUpdate(row, column);
  if (made && row < rows()) Q_EMIT AfterInsert(row);
  return true;
}

bool SSDBGrid::type_text(int row, int column, const std::string& text) {
  const QModelIndex cell = model_->index(row, column);
  if (!cell.isValid() || !(cell.flags() & Qt::ItemIsEditable) || isColumnHidden(column)) return false;
  if (row != changed_row_ && !leave_row()) return false;
  setCurrentIndex(cell);
  const SSDBDropDown* list = this->column(column).list;
  const Completion found = list ? list->complete(text) : Completion{-1, text, 0};
  return take(row, column, found.text, found.row);
}

bool SSDBGrid::toggle(int row, int column) {
  const bool fixed = model_->read_only || this->column(column).locked || this->column(column).kind != Kind::check;
  if (fixed || row < 0 || row >= rows() || (model_->may_edit && !model_->may_edit(row, column))) return false;
  return take(row, column, checked(row, column) ? "0" : "-1", -1);
}

bool SSDBGrid::commit() {
  if (QWidget* editor = indexWidget(currentIndex()); editor && editing() && !editor->hasFocus()) {
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
  } else if (editing()) {
    setFocus();  // the open cell takes its text when it loses the focus
  }
  return leave_row();
}

// --- rows ---

bool SSDBGrid::leave_row() {
  if (changed_row_ < 0 || changed_row_ >= rows()) return true;
  const int row = changed_row_;
  bool cancel = false;
  Q_EMIT BeforeUpdate(row, cancel);
  if (cancel) return false;
  changed_row_ = -1;
  Q_EMIT AfterUpdate(row);
  return true;
}

void SSDBGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.row() != previous.row()) viewport()->update();
  if (by_code_) return;
  const int row = previous.row();
  const int column = previous.column();
  if (current.row() != row && changed_row_ == row && !leave_row()) {
    QTimer::singleShot(0, this, [this, row, column] {
      if (row < rows() && changed_row_ == row && currentIndex().row() != row) go_to(row, column);
    });
    return;
  }
  Q_EMIT RowColChange(row, column);
}

bool SSDBGrid::delete_row(int row) {
  if (row < 0 || row >= rows()) return false;
  bool cancel = false;
  Q_EMIT BeforeDelete(row, cancel);
  if (cancel || row >= rows()) return false;
  RemoveItem(row);
  Q_EMIT AfterDelete();
  return true;
}

void SSDBGrid::remove_selected() {
  std::vector<int> chosen = selected_rows();
  for (auto row = chosen.rbegin(); row != chosen.rend(); ++row)
    if (!delete_row(*row)) return;
}

// --- keys ---

bool SSDBGrid::is_stop(int row, int column) const {
  return !isColumnHidden(column) && ((model_->index(row, column).flags() & Qt::ItemIsEditable) ||
                                     (this->column(column).kind == Kind::check && !this->column(column).locked));
}

QModelIndex SSDBGrid::next_cell(const QModelIndex& from, int step) const {
  const int every = model_->rowCount() * columns();
  int at = from.isValid() ? from.row() * columns() + from.column() + step : (step > 0 ? 0 : every - 1);
  const int end_of_nearness = from.isValid() ? at + step * 2 * columns() : at + step * every;
  for (; at >= 0 && at < every && at != end_of_nearness; at += step)
    if (is_stop(at / columns(), at % columns())) return model_->index(at / columns(), at % columns());
  return {};
}

QModelIndex SSDBGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (!model_->read_only && (action == QAbstractItemView::MoveNext || action == QAbstractItemView::MovePrevious))
    return next_cell(currentIndex(), action == QAbstractItemView::MoveNext ? 1 : -1);
  return QTableView::moveCursor(action, modifiers);
}

/// The first arrow key lights the row it is on, where none is lit.
bool SSDBGrid::light_row() {
  const QModelIndex here = currentIndex();
  if (!selects_rows() || !here.isValid() || !selected_rows().empty()) return false;
  selectionModel()->select(here, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  return true;
}

bool SSDBGrid::go_home(bool end) {
  if (rows() == 0) return false;
  if (selects_rows()) {
    setCurrentIndex(model_->index(end ? rows() - 1 : 0, std::max(Col(), 0)));
    return true;
  }
  const int row = Row(), last = columns() - 1;
  if (row < 0) return false;
  for (int at = 0; at <= last; ++at)
    if (const int column = end ? last - at : at; is_stop(row, column))
      return setCurrentIndex(model_->index(row, column)), true;
  return false;
}

bool SSDBGrid::focusNextPrevChild(bool next) {
  if (!model_->read_only && hasFocus())
    if (const QModelIndex cell = next_cell(currentIndex(), next ? 1 : -1); cell.isValid()) {
      setCurrentIndex(cell);
      return true;
    }
  return QTableView::focusNextPrevChild(next);
}

bool SSDBGrid::enter_pressed() {
  if (!model_->read_only) return focusNextPrevChild(true);
  if (Row() < 0 || !isSignalConnected(QMetaMethod::fromSignal(&SSDBGrid::DblClick))) return false;
  Q_EMIT DblClick(Row());
  return true;
}

bool SSDBGrid::open_list(const QModelIndex& index) {
  if (!index.isValid() || !(index.flags() & Qt::ItemIsEditable)) return false;
  const GridColumn& how = column(index.column());
  if (!how.list && how.kind != Kind::date) return false;
  edit(index);
  QWidget* field = QApplication::focusWidget();
  while (field && field->parentWidget() != viewport()) field = field->parentWidget();
  if (auto* combo = qobject_cast<QComboBox*>(field)) combo->showPopup();
  if (auto* day = qobject_cast<QuillbrookDatePick*>(field)) day->show_calendar();
  return true;
}

void SSDBGrid::keyPressEvent(QKeyEvent* event) {
  const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
  const QModelIndex here = currentIndex();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return event->setAccepted(plain && enter_pressed());
    case Qt::Key_Escape:
      return event->ignore();
    case Qt::Key_Space:
      if (here.isValid() && toggle(here.row(), here.column())) return;
      break;
    case Qt::Key_Insert:
      if (plain && model_->has_new_line())
        return setCurrentIndex(next_cell(model_->index(rows() - 1, columns() - 1), 1));
      break;
    case Qt::Key_Delete:
      if (delete_) return remove_selected();
      break;
    case Qt::Key_Home:
    case Qt::Key_End:
      if (plain && go_home(event->key() == Qt::Key_End)) return;
      break;
    case Qt::Key_F4:
      if (open_list(here)) return;
      break;
    case Qt::Key_Down:
      if ((event->modifiers() & Qt::AltModifier) && open_list(here)) return;
      if (plain && light_row()) return;
      break;
    case Qt::Key_Up:
      if (plain && light_row()) return;
      break;
    default:
      break;
  }
  if (event->modifiers() & Qt::AltModifier) return event->ignore();  // mnemonics belong to the window
  QTableView::keyPressEvent(event);
}

// --- mouse ---

void SSDBGrid::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const QModelIndex cell = indexAt(place);
  const bool was_here = cell.isValid() && cell == currentIndex() && hasFocus();
  QTableView::mousePressEvent(event);
  if (event->button() != Qt::LeftButton || !was_here || !(cell.flags() & Qt::ItemIsEditable)) return;
  const bool on_arrow = column(cell.column()).list && GridDelegate::arrow_of(visualRect(cell)).contains(place);
  if (!on_arrow || !open_list(cell)) edit(cell);
}

void SSDBGrid::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const QModelIndex cell = indexAt(event->position().toPoint());
  if (event->button() == Qt::RightButton) return request_menu(cell.row(), event->globalPosition().toPoint());
  if (event->button() == Qt::LeftButton && cell.isValid() && cell == currentIndex()) toggle(cell.row(), cell.column());
}

void SSDBGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  const QModelIndex cell = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && cell.isValid() && cell.row() < rows() && !editing())
    Q_EMIT DblClick(cell.row());
}

void SSDBGrid::double_click(int row, int column) {
  if (row < 0 || row >= rows()) return;
  setCurrentIndex(model_->index(row, column));
  Q_EMIT DblClick(row);
}

void SSDBGrid::request_menu(int row, const QPoint& global) {
  const bool lit = row >= 0 && selects_rows() && selectionModel()->isRowSelected(row, {});
  if (row >= 0 && !lit) setCurrentIndex(model_->index(row, std::max(Col(), 0)));
  menu_place_ = global;
  Q_EMIT MenuRequested(row, global);
}

void SSDBGrid::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Keyboard) return;  // the mouse asks when its button goes up
  request_menu(Row(), viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

}  // namespace tallymere
