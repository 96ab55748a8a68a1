#include "lists/RowForm.h"

#include <QPushButton>

#include "shell/widgets/unsaved.h"

namespace tallymere {

RowForm::RowForm(Shell& shell_of_frame, const char* name, const RowList& list, const Captions& captions)
    : Form(shell_of_frame, name, Place::Above), list_(list), captions_(captions) {
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  on(cmdOk, "cmdOk_AfterClick", [this] {
    if (save()) finish(true, saved_key());
  });
  on(cmdCancel, "cmdCancel_Click", [this] {
    kept_ = Content_Of(*this);
    finish(false);
  });
}

void RowForm::take(const Request& request) { show(request.key); }

void RowForm::show(std::string key) {
  key.empty() ? row_.emplace(session, list_) : row_.emplace(session, list_, key);
  setWindowTitle(QString::fromLatin1(is_new() ? captions_.make : captions_.edit));
  show_row();
  kept_ = Content_Of(*this);
}

bool RowForm::save() {
  const RowSave result = save_row();
  if (result.fault) show_fault(*result.fault);
  if (result.conflict) show_conflict(*result.conflict);
  if (!result.ok()) return false;
  kept_ = Content_Of(*this);
  announce();
  return true;
}

void RowForm::announce() { shell.changed(std::string(list_.table)); }

/// Another user changed the row: it is shown as it is now. Where it was deleted, what was typed stays, for a new one.
void RowForm::show_conflict(const Conflict& conflict) {
  const bool gone = conflict.reload && !Row_Exists(session, list_, row_->key());
  if (gone) {
    session.prompts.box({"Another user has deleted this " + std::string(list_.word) + ".", "Data has changed",
                         Icon::Information, "Ok enters it anew, as it is shown here."});
    row_.emplace(session, list_);
    setWindowTitle(QString::fromLatin1(captions_.make));
  } else {
    session.prompts.box(conflict.box);
    if (conflict.reload) show(row_->key());
  }
  shell.changed(std::string(list_.table));
}

bool RowForm::may_close() {
  if (!row_ || Content_Of(*this) == kept_) return true;
  const std::optional<bool> wanted = session.prompts.ask_or_stay(Save_Changes);
  return wanted && (!*wanted || save());
}

void RowForm::tab_order(std::initializer_list<QWidget*> fields) {
  QWidget* before = nullptr;
  for (QWidget* field : fields) {
    if (before) setTabOrder(before, field);
    before = field;
  }
}

}  // namespace tallymere
