#include "entry/document/EntryForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/values/text.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

const Box save_changes{"Do you wish to record your changes?", "Save Changes", Icon::Question};

QString content_of(const SSDBGrid& grid) {
  QString text;
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column) text += qt(grid.text(row, column)) + QLatin1Char('\t');
  return text;
}

/// What a person put into a field; nothing for controls that only show.
QString content_of(const QWidget& field) {
  if (const auto* grid = qobject_cast<const SSDBGrid*>(&field)) return content_of(*grid);
  if (const auto* combo = qobject_cast<const QComboBox*>(&field)) return combo->currentText();
  if (const auto* line = qobject_cast<const QLineEdit*>(&field)) return line->text();
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&field)) return box->toPlainText();
  if (const auto* check = qobject_cast<const QAbstractButton*>(&field); check && check->isCheckable())
    return check->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
  return {};
}

/// A cell that is being written in belongs to its grid.
bool is_field(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !name.endsWith(QLatin1String("_cell"));
}

bool is_amount(Kind kind) { return kind == Kind::money || kind == Kind::number; }

}  // namespace

EntryForm::EntryForm(Shell& shell_of_frame, const char* name) : Form(shell_of_frame, name) {
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdOk->setToolTip(QStringLiteral("Saves and closes"));
  on(cmdOk, "cmdOk_AfterClick", [this] { save_and_close(); });
}

// --- saving ----------------------------------------------------------------------------------------------

bool EntryForm::save() {
  const CategoriesMade categories(session);
  const bool saved = enter();
  if (saved) keep();
  if (categories.any()) shell.changed("Accounts");
  return saved;
}

void EntryForm::save_and_close() {
  if (save()) finish(true);
}

void EntryForm::discard() {
  keep();
  finish(false);
}

bool EntryForm::control_enter() {
  save_and_close();
  return true;
}

bool EntryForm::conclude(const SaveResult& result) {
  if (result.fault) show_fault(*result.fault);
  if (result.conflict) show_conflict(*result.conflict);
  if (result.written) shell.changed("Transactions");
  return result.ok();
}

void EntryForm::show_conflict(const Conflict& conflict) {
  session.prompts.box(conflict.box);
  if (conflict.reload) load_again();
}

// --- nothing is lost by a slip -------------------------------------------------------------------

std::string EntryForm::content() const {
  QString all;
  for (const QWidget* field : findChildren<QWidget*>())
    if (is_field(*field)) all += content_of(*field) + QLatin1Char('\n');
  return utf8(all);
}

bool EntryForm::let_go() {
  for (SSDBGrid* grid : findChildren<SSDBGrid*>()) grid->commit();
  if (!changed()) return true;
  const std::optional<bool> wanted = session.prompts.ask_or_stay(save_changes);
  return wanted && (!*wanted || save());
}

bool EntryForm::may_close() { return let_go(); }

// --- buttons ---------------------------------------------------------------------------------------------

QPushButton* EntryForm::cancel_button(const char* name) {
  auto* button = named(name, new QPushButton(QStringLiteral("&Cancel")));
  button->setToolTip(QStringLiteral("Closes without saving"));
  on(button, "cmdCancel_Click", [this] { discard(); });
  return button;
}

QPushButton* EntryForm::leads_to(QPushButton* button, const char* window) {
  const bool there = shell.has_window(window);
  button->setEnabled(there);
  if (!there)
    button->setToolTip(QStringLiteral("%1 is not part of this version yet.").arg(QString::fromLatin1(window)));
  return button;
}

// --- grids of lines ------------------------------------------------------------------------------

SSDBGrid* EntryForm::line_grid(const char* name, std::vector<GridColumn> columns, const QString& hint) {
  auto* grid = named(name, new SSDBGrid);
  grid->set_columns(std::move(columns));
  grid->set_read_only(false);
  grid->set_new_line(true);
  grid->set_delete(true);
  grid->set_empty_hint(hint);
  connect(grid, &SSDBGrid::BeforeColUpdate, this,
          [this, grid](int, int column, const std::string& typed, bool& cancel) {
            refuse_no_amount(grid, column, typed, cancel);
          });
  return grid;
}

void EntryForm::refuse_no_amount(SSDBGrid* grid, int column, const std::string& typed, bool& cancel) {
  const GridColumn& how = grid->column(column);
  if (!is_amount(how.kind) || trim(typed).empty()) return;
  if (how.kind == Kind::money ? Money::parse(typed).has_value() : is_numeric(typed)) return;
  cancel = true;
  QApplication::beep();
  shell.say("\"" + typed + "\" is not an amount.");
}

std::optional<Money> Money_At(const SSDBGrid& grid, int row, int column) {
  return Money::parse(grid.text(row, column));
}

std::optional<double> Number_At(const SSDBGrid& grid, int row, int column) {
  const store::Value value = grid.value(row, column);
  return value.blank() || !is_numeric(value.text()) ? std::nullopt : std::optional(value.number());
}

}  // namespace tallymere
