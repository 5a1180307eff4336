#pragma once

#include <QString>

namespace ovra {
namespace Process {

// A progress report "hpinfo==NAME;MINUTES LEFT;STAGE;TEXT" as values. An empty report ends
// the firing; one with fewer than four fields is not a report and changes nothing.
struct HeatInfo
{
    enum class Kind { Over, Progress, Unreadable };
    Kind kind = Kind::Unreadable;
    QString program;
    QString minutesLeft;    // handed on as the controller wrote it
    bool preDrying = false; // stage "pre": no segment yet, the chart stays still
    unsigned int stage = 0; // a stage that is not a number reads as 0
    QString stageText;
};
HeatInfo ParseHeatInfo(const QString &report);

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

// Inside the panel the door is a state; the controller's words become one only in FromReport.
enum class State { Unknown, Opening, Closing, Closed };
State FromReport(const QString &text); // "opening", "closing", "closed"; anything else Unknown
QString Icon(State state);             // empty for Unknown: the button shows no door
// The hot-door warning: strictly above the limit of the shown unit (its value comes with the
// unit), unless the door is closed.
bool WarnHot(double shownTemperature, unsigned int limit, State state);

} // namespace Door

// "Argon" is the material word of the heatfile and of the controller's material popup; a
// program's material counts as argon with blanks ignored.
bool IsArgon(const QString &material);

} // namespace Process
} // namespace ovra
