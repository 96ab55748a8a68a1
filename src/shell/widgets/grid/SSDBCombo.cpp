#include "shell/widgets/grid/SSDBCombo.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>

#include "core/values/text.h"
#include "shell/widgets/grid/GridHeader.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int most_rows = 12;

QTableView* make_popup(QWidget* parent) {
  auto* table = new QTableView(parent);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setShowGrid(false);
  table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table->verticalHeader()->hide();
  table->setHorizontalHeader(new GridHeader(table));
  table->horizontalHeader()->setStretchLastSection(true);
  return table;
}

}  // namespace

SSDBCombo::SSDBCombo(QWidget* parent) : QComboBox(parent), list_(new SSDBDropDown(this)) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);
  setMaxVisibleItems(most_rows);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(12);
  setFocusPolicy(Qt::StrongFocus);
  setPlaceholderText(QStringLiteral(" "));  // the first row added is not chosen unasked
  setView(make_popup(this));
  take_list(list_);
  setCurrentIndex(-1);
  connect(lineEdit(), &QLineEdit::textEdited, this, &SSDBCombo::typed);
  connect(this, &QComboBox::activated, this, &SSDBCombo::picked);
}

void SSDBCombo::set_list(SSDBDropDown* shared) {
  const std::string before = text();
  disconnect(list_, nullptr, this, nullptr);
  if (list_->parent() == this) list_->deleteLater();
  take_list(shared);
  set_text(before);
}

void SSDBCombo::take_list(SSDBDropDown* list) {
  list_ = list;
  chosen_ = -1;
  setModel(list);
  // A list filled anew leaves the text in the box alone.
  connect(list, &SSDBDropDown::modelAboutToBeReset, this, [this] { kept_ = text(); });
  connect(list, &SSDBDropDown::modelReset, this, [this] { set_text(kept_); });
}

void SSDBCombo::set_list_only(bool only) { list_only_ = only; }

std::string SSDBCombo::text() const { return currentText().toStdString(); }

bool SSDBCombo::holds(int row) const {
  return row >= 0 && row < list_->rows() && same_text(list_->text(row), Without_Indent(text()));
}

int SSDBCombo::row() const { return holds(chosen_) ? chosen_ : list_->find(text()); }

std::string SSDBCombo::id() const { return list_->id(row()); }

void SSDBCombo::set_text(const std::string& text) {
  chosen_ = list_->find(text);
  const QSignalBlocker quiet(this);
  setCurrentIndex(chosen_);
  setEditText(QString::fromStdString(text));
  if (!hasFocus()) lineEdit()->home(false);  // a long name is read from its beginning
}

bool SSDBCombo::set_id(const std::string& id) {
  const int row = list_->find_id(id);
  set_text(list_->text(row));
  chosen_ = row;
  const QSignalBlocker quiet(this);
  setCurrentIndex(row);
  return row >= 0;
}

void SSDBCombo::typed() {
  const Completion found = completes_ ? list_->complete(text()) : Completion{-1, text(), 0};
  if (found.found()) {
    chosen_ = found.row;
    setEditText(QString::fromStdString(found.text));
    const int length = static_cast<int>(QString::fromStdString(found.text.substr(0, found.typed)).size());
    const int whole = static_cast<int>(currentText().size());
    lineEdit()->setSelection(whole, length - whole);  // the cursor stays behind what was typed
  }
  Q_EMIT Changed();
}

void SSDBCombo::pick(int row) {
  if (row < 0 || row >= list_->rows()) return;
  setCurrentIndex(row);
  Q_EMIT activated(row);
}

void SSDBCombo::picked(int row) {
  chosen_ = row;
  setEditText(QString::fromStdString(list_->text(row)));
  Q_EMIT Changed();
  Q_EMIT Click();
  Q_EMIT CloseUp();
}

void SSDBCombo::settle() {
  if (!list_only_ || Valid()) return;
  set_text({});
}

void SSDBCombo::keyPressEvent(QKeyEvent* event) {
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  completes_ = plain && !event->text().isEmpty() && event->key() != Qt::Key_Backspace &&
               event->key() != Qt::Key_Delete && event->key() != Qt::Key_Tab;
  if (event->key() == Qt::Key_Down && plain && count() > 0) return showPopup();
  if (event->key() == Qt::Key_Up && plain) return event->accept();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return event->ignore();  // the window goes on
  QComboBox::keyPressEvent(event);
}

void SSDBCombo::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  const bool by_key = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (by_key || event->reason() == Qt::ShortcutFocusReason) lineEdit()->selectAll();
}

void SSDBCombo::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) return;
  settle();
  lineEdit()->deselect();
  lineEdit()->home(false);
  Q_EMIT LostFocus();
}

void SSDBCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }  // scrolling past must not change an entry

void SSDBCombo::size_popup() {
  auto* table = static_cast<QTableView*>(view());
  const QFontMetrics metrics(font());
  int wanted = 2 * theme::unit + table->verticalScrollBar()->sizeHint().width();
  const auto& columns = list_->columns();
  bool named = false;
  for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
    const ListColumn& how = columns[static_cast<size_t>(column)];
    named |= !how.name.isEmpty();
    int width = how.width * metrics.averageCharWidth();
    for (int row = 0; how.width == 0 && row < std::min(list_->rows(), 400); ++row)
      width = std::max(width, metrics.horizontalAdvance(list_->index(row, column).data().toString()));
    width = std::max(width, metrics.horizontalAdvance(how.name)) + 3 * theme::unit;
    table->setColumnWidth(column, width);
    wanted += width;
  }
  table->horizontalHeader()->setVisible(named && columns.size() > 1);
  table->verticalHeader()->setDefaultSectionSize(metrics.height() + theme::unit);
  const QRect room = screen()->availableGeometry();
  table->setMinimumWidth(std::min(std::max(wanted, width()), room.width()));
}

void SSDBCombo::showPopup() {
  size_popup();
  QComboBox::showPopup();
  if (const int at = row(); at >= 0) {
    view()->setCurrentIndex(list_->index(at, 0));
    view()->scrollTo(list_->index(at, 0), QAbstractItemView::PositionAtCenter);
  }
}

}  // namespace tallymere
