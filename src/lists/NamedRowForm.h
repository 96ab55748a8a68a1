#pragma once

#include "lists/RowForm.h"
#include "lists/named_rows.h"

class QCheckBox;
class QLineEdit;

namespace tallymere {

/// The form of a row that others name by value: a customer, a vendor, an item. It has a name, which may be carried to
/// earlier entries when it is changed, and may be dormant.
class NamedRowForm : public RowForm {
  Q_OBJECT

 protected:
  NamedRowForm(Shell& shell_of_frame, const char* name, const RowList& rows, NameList list, const Captions& captions);

  void show_name();  ///< first of all in show_row()
  std::string name_typed() const;
  Carry carry() const;
  std::string saved_key() const override { return name_typed(); }
  void announce() override;

  QLineEdit* txtName;
  QCheckBox *chkCarry, *chkDormant;

 private:
  void txtName_Change();

  NameList names_;
};

}  // namespace tallymere
