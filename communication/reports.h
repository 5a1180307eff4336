#pragma once

#include <QMetaType>
#include <QString>

namespace ovra {
namespace Communication {

// The controller's reports as values. They are parsed once, where the frame is read; from
// there on nobody splits a report or compares a keyword again.

// "hpinfo==NAME;MINUTES LEFT;STAGE;TEXT". An empty report ends the firing; one with fewer
// than four fields is not a report and changes nothing.
struct HeatReport
{
    enum class Kind { Over, Progress, Unreadable };
    enum class Phase { Heat, Hold, PreDry };
    Kind kind = Kind::Unreadable;
    QString program;
    qint64 minutesLeft = 0;    // not a number reads as 0
    bool minutesKnown = false; // the field was a number
    Phase phase = Phase::Heat;
    unsigned int stage = 0; // pre-drying, and a stage that is not a number, read as 0
    QString stageText;      // the controller's word, handed on to the chart as it came

    bool PreDrying() const { return phase == Phase::PreDry; }
};
HeatReport ParseHeatReport(const QString &report);

// "dooropen" reports the movement, "doorclosed" the end state: the controller's own wording.
enum class DoorState { Unknown, Opening, Closing, Closed };

// How a firing ended: the controller's "hpsuccess" and "hpfailed", or the user's stop.
enum class FiringResult { None, Success, Failed, Stopped };

} // namespace Communication
} // namespace ovra

Q_DECLARE_METATYPE(ovra::Communication::HeatReport)
Q_DECLARE_METATYPE(ovra::Communication::DoorState)
Q_DECLARE_METATYPE(ovra::Communication::FiringResult)
