#include "shell/list_combo.h"

#include "core/values/text.h"
#include "lists/terms.h"
#include "shell/drop_downs.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

Form* form_of(QWidget* widget) {
  while (widget && !qobject_cast<Form*>(widget)) widget = widget->parentWidget();
  return static_cast<Form*>(widget);
}

}  // namespace

ListCombo::ListCombo(Shell& shell, DropDowns& lists, const SmallList& list, Grow grow)
    : shell_(shell), list_(list), grow_(std::move(grow)) {
  set_list(lists.small_list(list));
  // A box that opens while the focus is on its way would catch it: this waits until it has arrived.
  connect(this, &SSDBCombo::LostFocus, this, &ListCombo::settle, Qt::QueuedConnection);
}

void ListCombo::show_text(const std::string& text) {
  set_text(text);
  settled_ = text;
}

void ListCombo::settle() {
  if (text() == settled_) return;
  settled_ = text();
  Form* form = form_of(this);
  const std::string procedure = objectName().toStdString() + "_LostFocus";
  form ? static_cast<void>(form->guard(procedure.c_str(), [this] { deal_with_text(); })) : deal_with_text();
}

void ListCombo::deal_with_text() {
  const std::string name = trim(text());
  if (!name.empty() && !In_Small_List(shell_.session, list_, name) && grow_(shell_.session, name))
    shell_.changed(std::string(list_.table));
  Q_EMIT Settled();
}

ListCombo::Grow Grow_Unasked(const SmallList& list) {
  return [list](Session& session, const std::string& text) {
    Add_If_New(session, list, text);
    return true;
  };
}

ListCombo::Grow Grow_Terms(const std::string& question) {
  return [question](Session& session, const std::string& text) { return Add_Term(session, text, question); };
}

ListCombo::Grow Grow_Messages() {
  return [](Session& session, const std::string& text) {
    const Box question{"Add New Message to Customer Messages?", "New Message", Icon::Question};
    if (!session.prompts.ask(question, Buttons::YesNo)) return false;
    Add_If_New(session, CustomerMessages_List, text);
    return true;
  };
}

}  // namespace tallymere
