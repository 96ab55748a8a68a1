#include "shell/widgets/grid/SSDBGrid.h"

#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStackedWidget>

#include "core/values/text.h"
#include "shell/widgets/grid/GridDelegate.h"
#include "shell/widgets/grid/GridHeader.h"
#include "shell/widgets/theme.h"
#include "shell/widgets/window_memory.h"

namespace tallymere {

SSDBGrid::SSDBGrid(QWidget* parent) : QTableView(parent), model_(new GridModel(this)), header_(new GridHeader(this)) {
  setModel(model_);
  setHorizontalHeader(header_);
  setItemDelegate(new GridDelegate(*this));
  verticalHeader()->hide();
  setAlternatingRowColors(true);
  setShowGrid(true);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideRight);
  setMinimumHeight(11 * theme::unit);
  model_->read_only = true;
  settle_modes();
  changeEvent(nullptr);
  widening_ = new QTimer(this);
  widening_->setSingleShot(true);
  widening_->setInterval(0);
  connect(widening_, &QTimer::timeout, this, &SSDBGrid::widen_amounts);
  connect(model_, &QAbstractItemModel::modelReset, widening_, qOverload<>(&QTimer::start));
  connect(model_, &QAbstractItemModel::dataChanged, widening_, qOverload<>(&QTimer::start));
  connect(model_, &QAbstractItemModel::rowsInserted, widening_, qOverload<>(&QTimer::start));
  connect(verticalScrollBar(), &QScrollBar::valueChanged, widening_, qOverload<>(&QTimer::start));
  connect(header_, &QHeaderView::sectionResized, this, &SSDBGrid::dragged);
  connect(header_, &QHeaderView::sectionClicked, this, &SSDBGrid::sort_clicked);
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
    if (header_->frozen() == 0) return;
    viewport()->update();
    header_->viewport()->update();
  });
}

SSDBGrid::~SSDBGrid() = default;

SSDBGrid::Fill::Fill(SSDBGrid& grid) : grid_(grid) { grid_.model_->begin_fill(); }
SSDBGrid::Fill::~Fill() {
  grid_.model_->end_fill();
  grid_.sort_again();
}

// --- columns ---

void SSDBGrid::set_columns(std::vector<GridColumn> columns) {
  const QScopedValueRollback code(by_code_, true);
  changed_row_ = -1;
  sorted_by_ = -1;
  header_->setSortIndicator(-1, Qt::AscendingOrder);
  header_->set_groups({});
  model_->set_columns(std::move(columns));
  for (int column = 0; column < this->columns(); ++column)
    setColumnHidden(column, this->column(column).kind == Kind::hidden);
  set_widths();
}

void SSDBGrid::set_groups(std::vector<GridGroup> groups) { header_->set_groups(std::move(groups)); }
const std::vector<GridGroup>& SSDBGrid::groups() const { return header_->groups(); }
int SSDBGrid::columns() const { return model_->columnCount(); }
const GridColumn& SSDBGrid::column(int column) const { return model_->columns()[static_cast<size_t>(column)]; }

int SSDBGrid::column_named(const std::string& caption) const {
  for (int column = 0; column < columns(); ++column)
    if (this->column(column).name.toStdString() == caption) return column;
  return -1;
}

void SSDBGrid::set_caption(int column, const std::string& caption) {
  model_->column(column).name = QString::fromStdString(caption);
  Q_EMIT model_->headerDataChanged(Qt::Horizontal, column, column);
}

void SSDBGrid::set_locked(int column, bool locked) { model_->column(column).locked = locked; }

void SSDBGrid::set_frozen_columns(int count) {
  header_->set_frozen(count);
  viewport()->update();
}

void SSDBGrid::show_column(int column, bool shown) {
  const QScopedValueRollback code(by_code_, true);
  setColumnHidden(column, !shown);
  share_widths();
}

int SSDBGrid::char_width(int characters) const {
  return characters * QFontMetrics(font()).averageCharWidth() + 2 * theme::unit;
}

void SSDBGrid::set_widths() {
  const QScopedValueRollback code(by_code_, true);
  least_.assign(static_cast<size_t>(columns()), 0);
  natural_.clear();
  dragged_.assign(static_cast<size_t>(columns()), false);
  for (int column = 0; column < columns(); ++column)
    if (const int width = this->column(column).width; width > 0)
      setColumnWidth(column, std::max(char_width(width), header_->width_for(column)));
  restore_widths();
  share_widths();
}

/// Amounts fit their widest figure: of the rows that are to be seen, whenever others are.
void SSDBGrid::widen_amounts() {
  if (!natural_.empty() || rows() == 0) return;
  const QScopedValueRollback code(by_code_, true);
  const int first = std::max(rowAt(0), 0), last = rowAt(viewport()->height() - 1);
  bool wider = false;
  for (int column = 0; column < columns(); ++column) {
    const Kind kind = this->column(column).kind;
    const bool figures = kind == Kind::money || kind == Kind::number || kind == Kind::date;
    if (!figures || isColumnHidden(column) || dragged_[static_cast<size_t>(column)]) continue;
    int wanted = columnWidth(column);
    for (int row = first; row <= (last < 0 ? rows() - 1 : std::min(last, rows() - 1)); ++row) {
      const QModelIndex cell = model_->index(row, column);
      const QFontMetrics metrics(cell.data(Qt::FontRole).value<QFont>());
      wanted = std::max(wanted, metrics.horizontalAdvance(cell.data().toString()) + 2 * theme::unit + 2);
    }
    wider |= wanted > columnWidth(column);
    setColumnWidth(column, wanted);
    if (this->column(column).width == 0) least_[static_cast<size_t>(column)] = wanted;
  }
  if (wider) share_widths();
}

/// A width that the user gave a column is the grid's from then on.
QString SSDBGrid::width_key(int column) const {
  const QWidget* owner = this;
  while (owner && !owner->inherits("tallymere::Form")) owner = owner->parentWidget();
  if (!owner || objectName().isEmpty()) return {};
  return owner->objectName() + QLatin1Char('/') + objectName() + QLatin1Char('/') + this->column(column).name;
}

void SSDBGrid::restore_widths() {
  const QScopedValueRollback code(by_code_, true);
  for (int column = 0; column < columns(); ++column) {
    const int width = isColumnHidden(column) ? 0 : window_memory::column_width(width_key(column));
    if (width <= 0) continue;
    dragged_[static_cast<size_t>(column)] = true;
    setColumnWidth(column, std::max(width, header_->minimumSectionSize()));
  }
}

void SSDBGrid::share_widths() {
  if (!natural_.empty()) return spread_widths();
  const QScopedValueRollback code(by_code_, true);
  int room = viewport()->width();
  std::vector<int> sharing;
  for (int column = 0; column < columns(); ++column) {
    if (isColumnHidden(column)) continue;
    if (this->column(column).width == 0 && !dragged_[static_cast<size_t>(column)])
      sharing.push_back(column);
    else
      room -= columnWidth(column);
  }
  for (size_t at = 0; at < sharing.size(); ++at) {
    const int left = static_cast<int>(sharing.size() - at);
    const int least = least_[static_cast<size_t>(sharing[at])];
    const int share = std::max({room / left, header_->width_for(sharing[at]), least > 0 ? least : char_width(12)});
    setColumnWidth(sharing[at], share);
    room -= share;
  }
}

void SSDBGrid::set_natural_widths(std::vector<int> natural, std::vector<int> least) {
  natural_ = std::move(natural);
  natural_least_ = std::move(least);
  for (std::vector<int>* widths : {&natural_, &natural_least_})  // as the head makes them anyway
    for (int& width : *widths) width = std::max(width, header_->minimumSectionSize());
  spread_widths();
}

void SSDBGrid::set_keeps_sum(bool keeps_sum) { keeps_sum_ = keeps_sum; }

int SSDBGrid::natural_width() const {
  int width = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  for (int column = 0; column < columns(); ++column)
    if (!isColumnHidden(column) && !natural_.empty()) width += natural_[static_cast<size_t>(column)];
  return width;
}

void SSDBGrid::spread_widths() {
  const QScopedValueRollback code(by_code_, true);
  int64_t room = viewport()->width(), natural = 0, least = 0;
  std::vector<size_t> spread;
  for (int column = 0; column < columns(); ++column) {
    const auto at = static_cast<size_t>(column);
    if (isColumnHidden(column)) continue;
    if (dragged_[at]) {
      room -= columnWidth(column);
      continue;
    }
    spread.push_back(at);
    natural += natural_[at];
    least += natural_least_[at];
  }
  for (const size_t at : spread) {
    int64_t width = natural_[at];
    if (room >= natural)
      width = width * room / std::max<int64_t>(natural, 1);
    else if (room >= least)
      width = natural_least_[at] + (width - natural_least_[at]) * (room - least) / (natural - least);
    setColumnWidth(static_cast<int>(at), static_cast<int>(width));
  }
}

int SSDBGrid::last_shown() const {
  int last = columns() - 1;
  while (last > 0 && isColumnHidden(last)) --last;
  return last;
}

void SSDBGrid::dragged(int column, int before, int now) {
  if (by_code_ || isColumnHidden(column)) return;
  dragged_[static_cast<size_t>(column)] = true;
  window_memory::remember_column(width_key(column), now);
  const int last = last_shown();
  if (!keeps_sum_ || column == last) return;
  const QScopedValueRollback code(by_code_, true);
  dragged_[static_cast<size_t>(last)] = true;
  setColumnWidth(last, std::max(columnWidth(last) - (now - before), header_->minimumSectionSize()));
}

int SSDBGrid::content_width(int column, int rows_looked_at) const {
  int width = std::max(header_->width_for(column), char_width(4));
  for (int row = 0; row < std::min(rows(), rows_looked_at); ++row) {
    const QModelIndex cell = model_->index(row, column);
    const QFontMetrics metrics(cell.data(Qt::FontRole).value<QFont>());
    width = std::max(width, metrics.horizontalAdvance(cell.data().toString()) + 2 * theme::unit + 2);
  }
  return std::min(width, char_width(48));
}

void SSDBGrid::fit_columns(int rows_looked_at) {
  const QScopedValueRollback code(by_code_, true);
  for (int column = 0; column < columns(); ++column) {
    if (isColumnHidden(column)) continue;
    least_[static_cast<size_t>(column)] = content_width(column, rows_looked_at);
    setColumnWidth(column, least_[static_cast<size_t>(column)]);
  }
  share_widths();
}

// --- rows ---

void SSDBGrid::AddItem(const std::string& tab_separated, const std::string& style) {
  model_->insert(rows(), {tab_separated, style});
}

void SSDBGrid::InsertItem(int row, const std::string& tab_separated, const std::string& style) {
  const QScopedValueRollback code(by_code_, true);
  model_->insert(std::clamp(row, 0, rows()), {tab_separated, style});
}

void SSDBGrid::AddValues(const std::vector<store::Value>& values, const std::string& style) {
  const int row = rows();
  model_->insert(row, {{}, style});
  for (size_t column = 0; column < values.size(); ++column)
    model_->set_value(row, static_cast<int>(column), values[column]);
}

void SSDBGrid::RemoveItem(int row) {
  const QScopedValueRollback code(by_code_, true);
  if (changed_row_ == row) changed_row_ = -1;
  if (changed_row_ > row) --changed_row_;
  model_->remove(row);
}

void SSDBGrid::RemoveAll() {
  const QScopedValueRollback code(by_code_, true);
  changed_row_ = -1;
  model_->remove_all();
}

void SSDBGrid::set_rows(int count, GridModel::Provider provider) {
  const QScopedValueRollback code(by_code_, true);
  changed_row_ = -1;
  model_->set_rows(count, std::move(provider));
}

int SSDBGrid::rows() const { return model_->rows(); }

// --- cells ---

std::string SSDBGrid::text(int row, int column) const { return model_->text(row, column); }
store::Value SSDBGrid::value(int row, int column) const { return model_->value(row, column); }
bool SSDBGrid::checked(int row, int column) const { return model_->flag(row, column); }

void SSDBGrid::set_text(int row, int column, const std::string& text) {
  if (model_->is_new_line(row) && !text.empty()) model_->insert(row, {});
  model_->set_text(row, column, text);
}

void SSDBGrid::set_value(int row, int column, const store::Value& value) {
  if (model_->is_new_line(row) && !value.blank()) model_->insert(row, {});
  model_->set_value(row, column, value);
}

int SSDBGrid::list_row(int row, int column) const {
  const GridColumn& how = this->column(column);
  if (!how.list) return -1;
  if (how.id_column >= 0)
    if (const int found = how.list->find_id(text(row, how.id_column));
        found >= 0 && same_text(how.list->text(found), Without_Indent(text(row, column))))
      return found;
  return how.list->find(text(row, column));
}

// --- where the user is ---

int SSDBGrid::Row() const {
  const QModelIndex current = currentIndex();
  if (!selects_rows() || !current.isValid()) return current.row();
  if (selectionModel()->isRowSelected(current.row(), {})) return current.row();
  const std::vector<int> chosen = selected_rows();
  return chosen.empty() ? -1 : chosen.front();
}

int SSDBGrid::Col() const { return currentIndex().column(); }

void SSDBGrid::go_to(int row, int column) {
  const QScopedValueRollback code(by_code_, true);
  const QModelIndex cell = model_->index(row, column);
  if (selects_rows())
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  else
    setCurrentIndex(cell);
  if (cell.isValid()) scrollTo(cell);
}

void SSDBGrid::set_cell(int row, int column) { go_to(std::clamp(row, 0, std::max(model_->rowCount() - 1, 0)), column); }

void SSDBGrid::set_Row(int row) {
  int column = std::max(Col(), 0);
  while (column < columns() && isColumnHidden(column)) ++column;
  set_cell(row, column);
}

std::vector<int> SSDBGrid::selected_rows() const {
  std::vector<int> chosen;
  for (const QModelIndex& index : selectionModel()->selectedRows())
    if (index.row() < rows()) chosen.push_back(index.row());
  if (!selects_rows() && currentIndex().row() >= 0 && currentIndex().row() < rows()) chosen = {currentIndex().row()};
  std::sort(chosen.begin(), chosen.end());
  return chosen;
}

void SSDBGrid::select_rows(const std::vector<int>& chosen) {
  const QScopedValueRollback code(by_code_, true);
  clearSelection();
  for (auto row = chosen.rbegin(); row != chosen.rend(); ++row)  // the first comes last: it is in view
    selectionModel()->setCurrentIndex(model_->index(*row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

// --- what the user may do ---

void SSDBGrid::settle_modes() {
  const bool list = model_->read_only || multi_;
  setSelectionBehavior(list ? SelectRows : SelectItems);
  setSelectionMode(multi_ ? ExtendedSelection
                   : list ? SingleSelection
                          : NoSelection);  // entry grids light a cell, not a row
  setTabKeyNavigation(false);              // Tab is ours, see focusNextPrevChild
  setEditTriggers(model_->read_only ? EditTriggers(NoEditTriggers) : DoubleClicked | EditKeyPressed | AnyKeyPressed);
}

void SSDBGrid::set_multi_select(bool allowed) {
  multi_ = allowed;
  settle_modes();
}

void SSDBGrid::set_read_only(bool read_only) {
  model_->read_only = read_only;
  settle_modes();
}

void SSDBGrid::set_new_line(bool allowed) { model_->set_new_line(allowed); }
void SSDBGrid::set_delete(bool allowed) { delete_ = allowed; }
void SSDBGrid::set_sorting(bool allowed) { header_->setSortIndicatorShown(allowed); }
void SSDBGrid::set_may_edit(std::function<bool(int, int)> may_edit) { model_->may_edit = std::move(may_edit); }

void SSDBGrid::set_empty_hint(const QString& text) {
  hint_ = text;
  viewport()->update();
}

void SSDBGrid::sort_clicked(int column) {
  if (!header_->isSortIndicatorShown() || rows() == 0 || !commit()) return;
  const QScopedValueRollback code(by_code_, true);
  descending_ = sorted_by_ == column && !descending_;
  sorted_by_ = column;
  header_->setSortIndicator(column, descending_ ? Qt::DescendingOrder : Qt::AscendingOrder);
  const int here = Row();
  if (const int there = model_->sort_rows(column, descending_, here); there >= 0) set_cell(there, column);
}

/// Rows that were read again stand in the order the user chose.
void SSDBGrid::sort_again() {
  if (sorted_by_ < 0 || !header_->isSortIndicatorShown()) return;
  const QScopedValueRollback code(by_code_, true);
  model_->sort_rows(sorted_by_, descending_, -1);
}

// --- looks ---

void SSDBGrid::define_style(const std::string& name, const GridStyle& style) { model_->define_style(name, style); }
void SSDBGrid::set_row_style(int row, const std::string& style) { model_->set_style(row, style); }
void SSDBGrid::set_cell_style(int row, int column, const std::string& style) { model_->set_style(row, column, style); }
std::string SSDBGrid::row_style(int row) const { return model_->style(row, -1); }
std::string SSDBGrid::cell_style(int row, int column) const { return model_->style(row, column); }
void SSDBGrid::set_row_loaded(std::function<void(int)> hook) { model_->row_loaded = std::move(hook); }

void SSDBGrid::set_sheet_color(const QColor& color) {
  if (!color.isValid()) return setPalette({});
  QPalette sheet = palette();
  const bool bright = color.lightness() > 127;
  sheet.setColor(QPalette::Base, color);
  sheet.setColor(QPalette::AlternateBase, bright ? color.darker(104) : color.lighter(112));
  sheet.setColor(QPalette::Text, bright ? QColor(Qt::black) : QColor(Qt::white));
  setPalette(sheet);
}

QSize SSDBGrid::sizeHint() const {
  int width = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  for (int column = 0; column < columns(); ++column)
    if (!isColumnHidden(column)) width += columnWidth(column);
  const int height = header_->sizeHint().height() + 8 * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
  return {std::min(width, 110 * theme::unit), height};
}

void SSDBGrid::changeEvent(QEvent* event) {
  if (event) QTableView::changeEvent(event);
  if (event && event->type() != QEvent::FontChange && event->type() != QEvent::PaletteChange) return;
  model_->set_font(font());
  verticalHeader()->setMinimumSectionSize(0);
  verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + 10);
}

void SSDBGrid::showEvent(QShowEvent* event) {
  if (qobject_cast<QStackedWidget*>(parentWidget())) setFrameShape(NoFrame);  // a tab's page has an edge already
  if (natural_.empty()) restore_widths();
  QTableView::showEvent(event);
  share_widths();
}

void SSDBGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) share_widths();
}

}  // namespace tallymere
