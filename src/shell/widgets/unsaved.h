#pragma once

#include <string>

#include "core/company/prompts.h"

class QWidget;

/// What a window holds that is not saved yet.
namespace tallymere {

/// All that a person put into the fields and grids of a window, as one text: another text is another content.
std::string Content_Of(const QWidget& window);

/// The question before it goes.
extern const Box Save_Changes;

}  // namespace tallymere
