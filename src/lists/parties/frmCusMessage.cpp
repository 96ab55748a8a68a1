#include "lists/parties/frmCusMessage.h"

#include "core/values/text.h"
#include "lists/small_lists.h"

namespace tallymere {

namespace {

enum { Message, Key };

}  // namespace

frmCusMessage::frmCusMessage(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmCusMessage", "grdNames", {"mnuCusMessages", "mnuCusMessageNew", "mnuCusMesDelete"}) {
  setWindowTitle(QStringLiteral("Customer Messages"));
  build({{.name = QStringLiteral("Message")}, {.name = QStringLiteral("Key"), .kind = Kind::hidden}}, Key);
  grdNames->set_empty_hint(QStringLiteral("No messages yet. Insert makes one."));
}

void frmCusMessage::on_changed(const std::string& table) {
  if (table == "CustomerMessages") make_list_again();
}

void frmCusMessage::Make_List() {
  const SSDBGrid::Fill fill(*grdNames);
  grdNames->RemoveAll();
  for (const SmallListRow& row : Small_List_Rows(session, CustomerMessages_List))
    grdNames->AddValues({row.text, row.key});
}

std::vector<std::string> frmCusMessage::disabled() const {
  return has_row() ? std::vector<std::string>{} : std::vector<std::string>{"mnuCusMesDelete"};
}

void frmCusMessage::chosen(const std::string& item) {
  item == "mnuCusMessageNew" ? mnuCusMessageNew_Click() : mnuCusMesDelete_Click();
}

void frmCusMessage::mnuCusMessageNew_Click() {
  const std::string message = trim(session.prompts.input("", "Enter The New Message.").value_or(""));
  Add_If_New(session, CustomerMessages_List, message);
  shell.changed("CustomerMessages");
  for (int row = 0; row < grdNames->rows(); ++row)
    if (!message.empty() && same_text(grdNames->text(row, Message), message)) grdNames->set_Row(row);
}

void frmCusMessage::mnuCusMesDelete_Click() {
  const int row = grdNames->Row();
  Delete_From_Small_List(session, CustomerMessages_List,
                         {grdNames->value(row, Key).integer(), grdNames->text(row, Message)});
  shell.changed("CustomerMessages");
}

}  // namespace tallymere
