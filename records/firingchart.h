#pragma once

#include "records/firinghistory.h"

#include <QList>
#include <QPointF>
#include <QString>
#include <QVector>

namespace ovra {
namespace Records {

// What a firing's record chart draws, without a widget: temperature over the real time of the
// firing (x in seconds from its first report), the measured line over the planned profile.
// The detail view and the printed report both draw these.
namespace FiringChart {

using Matrix = QList<QList<unsigned int>>;
using Points = QVector<QPointF>;

// "H:MM h", whole minutes, rounded down ("0:00 h" for nothing or less).
QString DurationText(int seconds);
// "H:MM" of an axis position.
QString ClockText(int seconds);

struct Tick
{
    double seconds;
    QString text;
};
// Ticks at a round step (5, 10, 15, 30 minutes, 1, 2, 3, 4, 6, 12 hours) from 0 to at least
// the end, no more than maxTicks + 1 of them; the last one is the axis end.
QList<Tick> TimeTicks(int endSeconds, int maxTicks = 8);

// The program as planned from `startCelsius`: a pre-dry first heats to 130 °C at 10 °C/min and
// holds its minutes (the controller's own rule), then each row ramps at its rate (a zero
// rate as a step) and holds. Points are (seconds, °C).
Points PlannedProfile(const Matrix &matrix, double startCelsius, int preDryMinutes);

// At most maxPoints points: each bucket of samples keeps its lowest and highest in time order,
// so an overshoot or a dip stays visible however long the firing was.
Points MeasuredLine(const QVector<Sample> &samples, int maxPoints);

// Everything a chart of one record needs, in the display unit.
struct Series
{
    Points planned; // empty when the program text cannot be read
    Points measured;
    QList<Tick> ticks;
    double endSeconds = 0;
};
Series Build(const FiringRecord &record, bool fahrenheit, int maxPoints = 1600);

} // namespace FiringChart
} // namespace Records
} // namespace ovra
