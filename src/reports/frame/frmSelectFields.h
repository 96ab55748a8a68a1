#pragma once

#include "shell/widgets/Form.h"

class QPushButton;

namespace tallymere {

class SSDBGrid;

/// A column one may pick: what it is called and what it shows as.
struct FieldChoice {
  std::string name;
  std::string caption;
  bool selected = false;
};

/// The column picker: the rows that are selected when it is accepted are the columns, in the order of the
/// list.
class frmSelectFields : public Form {
  Q_OBJECT

 public:
  frmSelectFields(Shell& shell_of_frame, std::vector<FieldChoice> choices);

  void load() override;
  const std::vector<FieldChoice>& choices() const { return choices_; }

 private:
  void cmdOk_AfterClick();

  std::vector<FieldChoice> choices_;
  SSDBGrid* grdFields;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
