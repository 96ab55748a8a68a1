#pragma once

#include <QJSEngine>
#include <QJSValue>
#include <QVariant>

#include "shell/widgets/grid/SSDBGrid.h"

/// What a script does with a grid: reads its cells, and works them as a person does.
namespace tallymere::drive::grids {

using Verb = QJSValue (*)(QJSEngine& engine, SSDBGrid& grid, const QJSValue& arguments);

/// The verb of that name (text, set, select, row, dblclick, toggle, remove, style), or nullptr.
Verb Find_Verb(const QString& name);
/// rows, columns, current; an invalid QVariant for any other word.
QVariant Property_Of(const SSDBGrid& grid, const QString& word);
/// The right button over a row.
void Right_Click(SSDBGrid& grid, int row);

}  // namespace tallymere::drive::grids
