#pragma once

#include <QList>
#include <QStringList>

namespace ovra {
namespace GlobalElements {

class Program;

// Narrows the user's program list to the chosen manufacturers and materials. The chosen
// values are compared exactly with the programs' values, as the filter buttons give them
// (spaces removed), so a value that contains a space never matches its own button. A button
// shows its value in words (ShownValue) but stands for the value itself.
namespace ProgramFilter {

void Apply(QList<Program *> &programs, const QStringList &manufacturers, const QStringList &materials);

// What a filter button shows for a value: the words for the classes "user" and "service" in
// the current language, any other value as it is.
QString ShownValue(const QString &value);

// A filter button stands for a value when its text without spaces equals the value.
bool ButtonMatches(const QString &buttonText, const QString &value);

// The values of `programs` (manufacturers or materials) that need a button of their own,
// in the programs' order: one per value, none for a value an existing button stands for.
QStringList NewButtonValues(const QList<Program *> &programs, bool byManufacturer, const QStringList &buttonTexts);

} // namespace ProgramFilter
} // namespace GlobalElements
} // namespace ovra
