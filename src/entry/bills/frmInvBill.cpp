#include "entry/bills/frmInvBill.h"

#include <QPushButton>

#include "entry/bills/bill.h"

namespace tallymere {

frmInvBill::frmInvBill(Shell& shell_of_frame)
    : PickForm(shell_of_frame, "frmInvBill", "grdRecieved",
               {{.name = QStringLiteral("Item Receipt #"), .width = 16},
                {.name = QStringLiteral("Vendor")},
                {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14, .mask = "#,##0.00"}},
               Picks::One, QStringLiteral("No goods wait for their bill.")) {
  grid_->setAccessibleName(QStringLiteral("Item receipts"));
  setWindowTitle(QStringLiteral("Select for Bill"));
}

void frmInvBill::take(const Request&) {
  grid_->RemoveAll();
  for (const OpenReceipt& receipt : Open_Receipts(session))
    add_row({receipt.Number, receipt.Vendor, receipt.Amount}, receipt.TransNum);
  cmdOk->setEnabled(grid_->rows() > 0);
  if (grid_->rows() > 0) grid_->set_Row(0);
}

void frmInvBill::on_changed(const std::string& table) {
  if (table == "Transactions") take({});
}

void frmInvBill::unloading() {
  if (accepted()) shell.Show_Window({.window = "frmBills", .key = {}, .number = std::stoll(answer())});
}

}  // namespace tallymere
