#pragma once

#include <QString>

class QDate;
class QTime;

namespace ovra {
namespace Popups {

// The delayed start as numbers; an empty or non-numeric field counts as 0.
struct TimerEntry
{
    int day = 0;
    int month = 0;
    int year = 0;
    int hour = 0;
    int minute = 0;
};

TimerEntry ParseTimerEntry(const QString &day, const QString &month, const QString &year, const QString &hour,
                           const QString &minute);

// Turns what was typed into a start the controller can take, never one in the past:
// a year before this one becomes this year; this year, a month before this one becomes this
// month; a month above 12 becomes this month; this month, a day before today becomes today;
// a day past the end of its month becomes the last day. Hour and minute are held to
// 0..23 and 0..59.
// A start today at a time that has already passed is moved to the same time tomorrow: the
// user most likely meant the next occurrence of that time, and a start in the past would
// otherwise make the furnace start at once.
TimerEntry CorrectTimerEntry(const TimerEntry &entry, const QDate &today, const QTime &now);

// "timer==YYYYMMDD,HHMM"
QString TimerRequestText(const TimerEntry &entry);

// 0..9 with a leading "0".
QString TwoDigits(int value);

} // namespace Popups
} // namespace ovra
