#pragma once

#include "entry/document/PickForm.h"
#include "entry/sales/open_papers.h"

namespace tallymere {

/// A customer's open papers of a kind, for the invoice that asked; the customer comes as `key`.
class OpenPaperForm : public PickForm {
  Q_OBJECT

 public:
  void take(const Request& request) override {
    for (const OpenPaper& each : Open_Papers(session, paper_, request.key))
      add_row({each.Number, each.Total}, each.Index);
  }

 protected:
  OpenPaperForm(Shell& shell_of_frame, const char* name, const char* caption, const SalePaper& paper)
      : PickForm(shell_of_frame, name, "grdOpen",
                 {{.name = QStringLiteral("Number")},
                  {.name = QStringLiteral("Total"), .kind = Kind::money, .width = 16, .mask = "#,##0.00"}},
                 Picks::Several, QStringLiteral("Nothing is open for this customer.")),
        paper_(paper) {
    setWindowTitle(QString::fromLatin1(caption));
    grid_->setAccessibleName(windowTitle());
  }

 private:
  const SalePaper& paper_;
};

class frmOpenEst : public OpenPaperForm {
  Q_OBJECT

 public:
  explicit frmOpenEst(Shell& frame) : OpenPaperForm(frame, "frmOpenEst", "Open Estimates", Estimate_Paper) {}
};

class frmOpenSlips : public OpenPaperForm {
  Q_OBJECT

 public:
  explicit frmOpenSlips(Shell& frame) : OpenPaperForm(frame, "frmOpenSlips", "Open Package Slips", Slip_Paper) {}
};

}  // namespace tallymere
