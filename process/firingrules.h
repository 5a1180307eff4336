#pragma once

#include "communication/reports.h"

#include <QString>

namespace ovra {
namespace Process {

// The pre-dry button cycles 0 -> 15 -> 30 -> 45 -> 60 -> 0 minutes; any other value starts
// over at 0.
struct PreDryStep
{
    unsigned int minutes;
    bool checked;
    const char *icon;
};
PreDryStep NextPreDryStep(unsigned int currentMinutes);

// The note beside the start button of a delayed start: "Autostart:", time and date
// (DD/MM/YYYY) on three indented lines, from the popup's "timer==YYYYMMDD,HHMM".
QString AutostartNote(const QString &requestedTimer);

namespace Door {

using State = Communication::DoorState;
QString Icon(State state); // empty for Unknown: the button shows no door
// The hot-door warning: strictly above the limit of the shown unit (its value comes with the
// unit), unless the door is closed.
bool WarnHot(double shownTemperature, unsigned int limit, State state);

} // namespace Door

// "Argon" is the material word of the heatfile and of the controller's material popup; a
// program's material counts as argon with blanks ignored.
bool IsArgon(const QString &material);

} // namespace Process
} // namespace ovra
