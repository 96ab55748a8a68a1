#pragma once

#include "printing/layout_paint.h"
#include "printing/print_queue.h"

class QPagedPaintDevice;

namespace tallymere {

/// How a run ended. What is in `printed` went to the printer and bears its number now.
struct CheckRun {
  std::vector<NumberedCheck> printed = {};
  int gone = 0;                   ///< checks that no longer waited when their turn came
  bool taken = false;             ///< another station printed some of them meanwhile: nothing was printed or numbered
  bool refused = false;           ///< the printer did not take the pages: nothing is numbered
  std::exception_ptr fault = {};  ///< what stopped the run: that check and the rest still wait
};

/// Prints waiting checks in this order and numbers them from `first` on, all in one store transaction. Sheets with
/// further stubs come after the last check, so that the numbers on the stock keep in step.
CheckRun Print_Checks(Session& session, const std::vector<int64_t>& checks, int64_t first, QPagedPaintDevice& device,
                      QPointF offset, Layout_Shelf& shelf, const Keep_Going& keep_going = {});

}  // namespace tallymere
