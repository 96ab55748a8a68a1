#pragma once

#include "lists/SmallListForm.h"

namespace tallymere {

/// The classes that entry windows offer.
class frmClass : public SmallListForm {
  Q_OBJECT

 public:
  explicit frmClass(Shell& shell_of_frame) : SmallListForm(shell_of_frame, "frmClass", "grdClass", Class_List) {
    setWindowTitle(QStringLiteral("Class"));
  }
};

}  // namespace tallymere
