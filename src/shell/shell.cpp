#include "shell/shell.h"

namespace tallymere {

Form* Shell::Show_Custom_Report(Request request) {
  request.window = "frmPrintCustom";
  request.new_instance = true;
  return Show_Window(request);
}

}  // namespace tallymere
