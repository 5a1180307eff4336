#pragma once

#include <QList>
#include <QString>

namespace ovra {
namespace Process {

// The panel's estimate of a firing's end, before the controller reports remaining minutes.
namespace ProcessTime {

using Matrix = QList<QList<unsigned int>>;

// Minutes of a program started at `ovenCelsius`: every ramp takes |difference| / rate minutes
// (whole minutes, remainder dropped; a fall is timed like a rise), every hold its minutes.
// A pre-dry of `preDryMinutes` adds itself plus (130 - oven) / 10; with the Fahrenheit
// display that term is never negative, with Celsius a hot oven shortens the estimate.
// A zero rate, which the editor never stores, counts as no time.
qint64 Minutes(const Matrix &matrix, int ovenCelsius, unsigned int preDryMinutes, bool fahrenheit);

// The oven temperature as the display shows it ("1200°C", "70°F"), back in whole °C.
int OvenCelsiusFromDisplay(const QString &displayText, bool fahrenheit);

// "hh:mm" of start + minutes on a 24-hour clock; start is "HH:MM" (a clock label), and an
// unreadable part counts as 0.
QString EndOfDay(const QString &startHHMM, qint64 minutes);

// The two parts of a requested delayed start "timer==YYYYMMDD,HHMM" (empty when absent).
struct TimerRequest
{
    QString date; // "YYYYMMDD"
    QString time; // "HHMM"
};
TimerRequest ParseTimerRequest(const QString &requestedTimer);

// The start of a requested delayed start "timer==YYYYMMDD,HHMM" as "HH:MM", or the clock
// label when no delayed start is requested.
QString StartClock(const QString &clockLabel, const QString &requestedTimer);

} // namespace ProcessTime
} // namespace Process
} // namespace ovra
