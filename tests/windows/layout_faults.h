#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace tallymere::testing {

/// What a person could not read or reach in a window that is on the screen: controls beyond its edge or over each
/// other, words with too little room, controls that nobody gave a name for those who listen.
std::vector<std::string> Layout_Faults(const QWidget& window);

}  // namespace tallymere::testing
