#pragma once

#include "payroll/taxtables/update.h"

namespace tallymere {

/// Gets pages over the network, each within `seconds`. The program stays alive meanwhile, and the waiting can be stopped.
Fetch Http_Fetch(int seconds = 20);

}  // namespace tallymere
