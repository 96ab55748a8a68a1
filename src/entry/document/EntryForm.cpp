#include "entry/document/EntryForm.h"

#include <QPushButton>

#include "shell/widgets/theme.h"
#include "shell/widgets/unsaved.h"

namespace tallymere {

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

std::string EntryForm::content() const { return Content_Of(*this); }

bool EntryForm::let_go() {
  for (SSDBGrid* grid : findChildren<SSDBGrid*>()) grid->commit();
  if (!changed()) return true;
  const std::optional<bool> wanted = session.prompts.ask_or_stay(Save_Changes);
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
  Take_Only_Amounts(shell, *grid);
  return grid;
}

}  // namespace tallymere
