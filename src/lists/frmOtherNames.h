#pragma once

#include "lists/SmallListForm.h"

namespace tallymere {

/// Payees that are neither customer nor vendor nor employee.
class frmOtherNames : public SmallListForm {
  Q_OBJECT

 public:
  explicit frmOtherNames(Shell& shell_of_frame)
      : SmallListForm(shell_of_frame, "frmOtherNames", "grdNames", OtherNames_List) {
    setWindowTitle(QStringLiteral("Other Names"));
  }
};

}  // namespace tallymere
