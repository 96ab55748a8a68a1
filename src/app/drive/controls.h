#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

/// Reading a control as the eye does and working it as a person does. A control that is disabled or hidden is
/// Failed.
namespace tallymere::drive::controls {

QString Text_Of(const QObject& control);  ///< what it shows; dates m/d/yyyy
QStringList Items_Of(const QObject& control);
/// value, checked, enabled, visible, items, caption, focused; an invalid QVariant for any other word.
QVariant Property_Of(const QObject& control, const QString& word);

void Type(QObject& control, const QString& text);
void Pick(QObject& control, const QString& text);
void Click(QObject& control);
void Check(QObject& control, bool on);
void Option(QObject& group, int index);
void Key(QObject& control, const QString& key);

}  // namespace tallymere::drive::controls
