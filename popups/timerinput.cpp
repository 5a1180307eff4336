#include "popups/timerinput.h"

#include "communication/requests.h"
#include "popups/datetimeentry.h"

#include <QDate>
#include <QTime>

#include <algorithm>

namespace ovra {
namespace Popups {

TimerEntry ParseTimerEntry(const QString &day, const QString &month, const QString &year, const QString &hour,
                           const QString &minute)
{
    TimerEntry entry;
    entry.day = day.toInt();
    entry.month = month.toInt();
    entry.year = year.toInt();
    entry.hour = hour.toInt();
    entry.minute = minute.toInt();
    return entry;
}

TimerEntry CorrectTimerEntry(const TimerEntry &entry, const QDate &today, const QTime &now)
{
    TimerEntry out = entry;

    if (out.year < today.year())
        out.year = today.year();

    if (out.month > 12)
        out.month = today.month();
    if (out.year == today.year() && out.month < today.month())
        out.month = today.month();
    if (out.month < 1)
        out.month = 1;

    const int lastDay = DaysInMonth(out.year, out.month);
    if (out.day > lastDay)
        out.day = lastDay;
    if (out.year == today.year() && out.month == today.month() && out.day < today.day())
        out.day = today.day();
    if (out.day < 1)
        out.day = 1;

    out.hour = std::clamp(out.hour, 0, 23);
    out.minute = std::clamp(out.minute, 0, 59);

    const QDate date(out.year, out.month, out.day);
    const QTime nowToTheMinute(now.hour(), now.minute());
    if (date == today && QTime(out.hour, out.minute) < nowToTheMinute) {
        const QDate tomorrow = today.addDays(1);
        out.year = tomorrow.year();
        out.month = tomorrow.month();
        out.day = tomorrow.day();
    }
    return out;
}

QString TwoDigits(int value)
{
    return QString::number(value).rightJustified(2, QLatin1Char('0'));
}

QString TimerRequestText(const TimerEntry &entry)
{
    return Communication::Requests::DelayedStartTime(QString::number(entry.year).rightJustified(4, QLatin1Char('0')) +
                                                         TwoDigits(entry.month) + TwoDigits(entry.day),
                                                     TwoDigits(entry.hour) + TwoDigits(entry.minute));
}

} // namespace Popups
} // namespace ovra
