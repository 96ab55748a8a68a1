#pragma once

#include <QIcon>

namespace tallymere {

/// One of the program's line icons ("invoice", "print"), drawn at any size in the colour of the text it
/// stands by. An empty icon when there is none of that name.
QIcon Line_Icon(const QString& name);

/// The program's own icon, in its colours.
QIcon Program_Icon();

}  // namespace tallymere
