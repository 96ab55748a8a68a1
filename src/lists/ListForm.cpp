#include "lists/ListForm.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>

#include "core/values/text.h"
#include "shell/widgets/theme.h"

namespace tallymere {

ListForm::ListForm(Shell& shell_of_frame, const char* name, const char* grid_name, const Menu& menu)
    : Form(shell_of_frame, name), menu_(menu) {
  grid_ = named(grid_name, new SSDBGrid);
  grid_->define_style(dormant_style, {.text = theme::quiet_text()});
  cmdAction = named("cmdAction", new QPushButton(QStringLiteral("&Action")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  on(cmdAction, "cmdAction_Click", [this] { cmdAction_Click(); });
  on(cmdClose, "cmdClose_Click", [this] { finish(false); });
  on(grid_, &SSDBGrid::MenuRequested, "Grid_MouseUp", [this] { cmdAction_Click(); });
}

void ListForm::build(std::vector<GridColumn> columns, int id_column, QWidget* beside_buttons) {
  id_column_ = id_column;
  grid_->set_columns(std::move(columns));
  grid_->setAccessibleName(windowTitle());
  auto* column = column_layout(this);
  column->addWidget(grid_, 1);
  QHBoxLayout* buttons = plain_button_row({cmdAction}, {cmdClose});
  if (beside_buttons) buttons->insertWidget(1, beside_buttons);
  column->addLayout(buttons);
}

/// Room for some twenty rows, unless the user left the window otherwise.
QSize ListForm::sizeHint() const {
  const QSize size = Form::sizeHint();
  return size == QWidget::sizeHint() ? size.expandedTo({0, 70 * theme::unit}) : size;
}

void ListForm::load() {
  Make_List();
  grid_->set_Row(0);
  grid_->setFocus();
}

std::set<std::string> ListForm::ids() const {
  std::set<std::string> all;
  for (int row = 0; row < grid_->rows(); ++row) all.insert(grid_->text(row, id_column_));
  return all;
}

int ListForm::row_of(const std::string& id) const {
  int row = 0;
  while (row < grid_->rows() && grid_->text(row, id_column_) != id) ++row;
  return row;
}

void ListForm::make_list_again() {
  const Hourglass hourglass(session.prompts);
  const int before = grid_->Row();
  std::string id = grid_->text(before, id_column_);
  const auto known = making_ ? ids() : std::set<std::string>();
  Make_List();
  if (making_)
    for (const std::string& made : ids())
      if (!known.contains(made)) id = made;
  const int row = row_of(id);
  grid_->set_Row(row < grid_->rows() ? row : std::clamp(before, 0, std::max(grid_->rows() - 1, 0)));
}

void ListForm::go_to_row(const std::string& id) {
  for (int row = 0; row < grid_->rows(); ++row)
    if (same_text(grid_->text(row, id_column_), id)) return grid_->set_Row(row);
}

void ListForm::new_row(const char* form) {
  if (const auto made = shell.Ask_Window({.window = form, .key = {}})) go_to_row(*made);
}

void ListForm::edit_row(const char* form, const RowList& rows, const std::string& key) {
  if (!Row_Exists(session, rows, key)) {
    make_list_again();
    return shell.say("Another user has deleted this " + std::string(rows.word) + ".");
  }
  if (const auto saved = shell.Ask_Window({.window = form, .key = key})) go_to_row(*saved);
}

void ListForm::cmdAction_Click() {
  QWidget* from = cmdAction;
  if (sender() == grid_) from = grid_;  // at the row or the pointer
  shell.Popup(menu_.name, *from, disabled(), [this](const std::string& item) { do_item(item); });
}

void ListForm::do_item(const std::string& item) {
  const QScopedValueRollback making(making_, item == menu_.insert);
  guard((item + "_Click").c_str(), [&] { chosen(item); });
}

bool ListForm::run(const std::string& item) {
  const auto off = disabled();
  if (item.empty() || std::ranges::find(off, item) != off.end()) return false;
  do_item(item);
  return true;
}

void ListForm::keyPressEvent(QKeyEvent* event) {
  const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
  if (plain && event->key() == Qt::Key_Insert && run(menu_.insert)) return;
  if (plain && event->key() == Qt::Key_Delete && has_row() && run(menu_.remove)) return;
  Form::keyPressEvent(event);
}

}  // namespace tallymere
