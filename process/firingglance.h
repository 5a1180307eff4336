#pragma once

#include "process/processtime.h"

#include <QCoreApplication>
#include <QString>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}

namespace Process {

// What the process page shows of a running firing, read from two metres: every text as it
// stands on the page, in the language loaded now.
struct Glance
{
    QString temperature; // "1100°C", in the unit shown
    QString stage;       // "Aufheizen", "Halten", "Vortrocknen"; empty when no firing runs
    QString segment;     // "Segment 2 von 3"; "Segment 2" when the program is not known; empty
                         // while pre-drying
    QString remaining;   // "noch 0:42 h"; empty when the controller's minutes are unknown
    QString end;         // "Ende 10:49"
    int percent = -1;    // of the whole firing, 0 to 100; -1: not known
};

class FiringGlance
{
    Q_DECLARE_TR_FUNCTIONS(ovra::Process::FiringGlance)

public:
    // `rows` are the fired program's segments, nullptr when the store does not hold it.
    static Glance Of(const GlobalElements::FurnaceState &furnace, const ProcessTime::Matrix *rows);

    static QString Remaining(qint64 minutes); // "noch 1:05 h"
    // Share of the firing done, 0 to 100: the controller's minutes left against the longer of
    // the time gone plus those minutes and the program's own estimate. The estimate carries a
    // firing the panel joined late; the time gone carries one that runs longer than estimated.
    static int Percent(qint64 elapsedMinutes, qint64 minutesLeft, qint64 estimateMinutes);
};

} // namespace Process
} // namespace ovra
