#include "reports/frame/AheadForm.h"

#include <QApplication>

#include "reports/sums/kept_ledger.h"

namespace tallymere {

AheadForm::AheadForm(Shell& shell_of_frame, const char* name) : ReportForm(shell_of_frame, name) {
  on(&idle_, &QTimer::timeout, "idle_Timer", [this] { read_ahead(); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && isAncestorOf(now)) idle_.start(0);  // back from where the ledger may have changed
  });
}

void AheadForm::read_ahead() {
  if (!session.company_open() || !KeptLedger::Read_Ahead(*session.dbCompany)) idle_.stop();
}

void AheadForm::after_load() { idle_.start(0); }

}  // namespace tallymere
