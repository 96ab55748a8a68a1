#pragma once

#include <QJSEngine>
#include <QStringList>

#include "app/drive/expectations.h"
#include "app/drive/handles.h"
#include "app/drive/stage.h"

namespace tallymere::drive {

/// What the verbs of a script work on.
struct Toolbox {
  QJSEngine& engine;
  Stage& stage;
  Expectations& expectations;
  Handles& handles;
};

using Verb = QJSValue (*)(Toolbox& tools, const Args& args);

/// The verb of that name. Those beginning with "$" serve the prelude only.
Verb Find_Verb(const QString& name);
QStringList Verb_Names();

}  // namespace tallymere::drive
