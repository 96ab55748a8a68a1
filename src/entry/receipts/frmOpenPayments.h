#pragma once

#include "entry/document/PickForm.h"
#include "entry/receipts/payment.h"

namespace tallymere {

/// Payments that wait in Undeposited Funds; those picked go into the deposit that asked.
class frmOpenPayments : public PickForm {
  Q_OBJECT

 public:
  explicit frmOpenPayments(Shell& shell_of_frame)
      : PickForm(shell_of_frame, "frmOpenPayments", "grdAccounts",
                 {{.name = QStringLiteral("Customer")},
                  {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 16, .mask = "#,##0.00"},
                  {.name = QStringLiteral("Date"), .kind = Kind::date, .width = 12}},
                 Picks::Several, QStringLiteral("No payment waits to be deposited.")) {
    setWindowTitle(QStringLiteral("Select Payments to Deposit"));
    grid_->setAccessibleName(QStringLiteral("Payments that wait"));
  }

  void load() override {
    const SSDBGrid::Fill fill(*grid_);
    for (const WaitingPayment& each : Waiting_Payments(session))
      add_row({each.Name, each.Amount, each.Date}, each.TransNum);
  }
};

}  // namespace tallymere
