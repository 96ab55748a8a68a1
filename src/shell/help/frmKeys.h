#pragma once

#include "shell/widgets/Form.h"

class QTextBrowser;

namespace tallymere {

/// Help > Keys: the keyboard contract, as it stands in docs/keyboard.md.
class frmKeys : public Form {
  Q_OBJECT

 public:
  explicit frmKeys(Shell& shell_of_frame);
  QSize sizeHint() const override;

 private:
  QTextBrowser* txtKeys;
};

}  // namespace tallymere
