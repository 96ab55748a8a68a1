#pragma once

#include <string>

#include "core/company/session.h"
#include "printing/layout.h"

namespace tallymere {

/// The company's name, address and logo at the head of a document, the texts in objects of these names.
void Fill_Company_Head(Session& session, Layout& layout, const std::string& name, const std::string& address);

}  // namespace tallymere
