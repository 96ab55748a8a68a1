#include "lists/NamedRowForm.h"

#include <QCheckBox>
#include <QLineEdit>
#include <set>

#include "core/names/name_links.h"
#include "core/values/text.h"

namespace tallymere {

NamedRowForm::NamedRowForm(Shell& shell_of_frame, const char* name, const RowList& rows, NameList list,
                           const Captions& captions)
    : RowForm(shell_of_frame, name, rows, captions), names_(list) {
  txtName = named("txtName", new QLineEdit);
  chkCarry = named("chkCarry", new QCheckBox(QStringLiteral("Carry a new na&me to earlier entries")));
  chkCarry->setToolTip(QStringLiteral("Off: what was entered before keeps the old name"));
  chkDormant = named("chkDormant", new QCheckBox(QStringLiteral("&Dormant")));
  on(txtName, &QLineEdit::textChanged, "txtName_Change", [this] { txtName_Change(); });
}

void NamedRowForm::show_name() {
  txtName->setText(qt(row().key()));
  chkCarry->setChecked(true);
  chkCarry->setVisible(!is_new());
  txtName_Change();
}

void NamedRowForm::txtName_Change() { chkCarry->setEnabled(!is_new() && name_typed() != row().key()); }

std::string NamedRowForm::name_typed() const { return trim(utf8(txtName->text())); }

Carry NamedRowForm::carry() const { return chkCarry->isChecked() ? Carry::Everywhere : Carry::Lists; }

/// A new name stands in other tables as well.
void NamedRowForm::announce() {
  std::set<std::string> tables;
  if (!is_new() && name_typed() != row().key())
    for (const NameLink& link : Name_Links())
      if (link.of == names_) tables.emplace(link.table);
  tables.erase(std::string(row().list().table));
  for (const std::string& table : tables) shell.changed(table);
  RowForm::announce();
}

}  // namespace tallymere
