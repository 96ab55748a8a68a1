#include "entry/papers/frmOpenPOs.h"

#include "entry/papers/pulled_orders.h"

namespace tallymere {

frmOpenPOs::frmOpenPOs(Shell& shell_of_frame)
    : PickForm(shell_of_frame, "frmOpenPOs", "grdOpen",
               {{.name = QStringLiteral("P.O. Number")},
                {.name = QStringLiteral("Date"), .kind = Kind::date, .width = 12},
                {.name = QStringLiteral("Total"), .kind = Kind::money, .width = 16}},
               Picks::Several, QStringLiteral("There is no open purchase order.")) {
  setWindowTitle(QStringLiteral("Open Purchase Orders"));
  grid_->setAccessibleName(windowTitle());
}

void frmOpenPOs::take(const Request& request) {
  for (const OpenOrder& order : Open_Orders(session, request.key))
    add_row({order.Number, order.Date, order.Total}, order.Index);
}

}  // namespace tallymere
