#pragma once

#include <QTimer>

#include "reports/frame/ReportForm.h"

namespace tallymere {

/// A statement of income or position. Once it is on show the ledger is read ahead, so that another period shows at once.
class AheadForm : public ReportForm {
  Q_OBJECT

 public:
  AheadForm(Shell& shell_of_frame, const char* name);

 protected:
  void after_load() override;

 private:
  void read_ahead();

  QTimer idle_;  ///< ticks whenever there is nothing else to do
};

template <WindowName window>
Form* Make_Ahead(Shell& shell) {
  return new AheadForm(shell, window.name);
}

}  // namespace tallymere
