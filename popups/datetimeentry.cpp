#include "popups/datetimeentry.h"

#include <QDate>
#include <QStringList>

namespace ovra {
namespace Popups {

namespace {

// Digits only: toInt() alone would also take "+5" or " 5".
bool parseDigits(const QString &text, int *value)
{
    if (text.isEmpty() || text.size() > 4)
        return false;
    for (const QChar c : text) {
        if (!c.isDigit())
            return false;
    }
    *value = text.toInt();
    return true;
}

bool inRange(const QString &text, int low, int high, int *value)
{
    return parseDigits(text, value) && *value >= low && *value <= high;
}

QString padded(const QString &text, int width)
{
    return QString::number(text.toInt()).rightJustified(width, QLatin1Char('0'));
}

} // namespace

bool SplitDateTime(const QString &date, const QString &time, DateTimeEntry *entry)
{
    const QStringList dateParts = date.split(QLatin1Char('.'));
    const QStringList timeParts = time.split(QLatin1Char(':'));
    if (dateParts.size() != 3 || timeParts.size() != 2)
        return false;
    entry->day = dateParts.at(0).trimmed();
    entry->month = dateParts.at(1).trimmed();
    entry->year = dateParts.at(2).trimmed();
    entry->hour = timeParts.at(0).trimmed();
    entry->minute = timeParts.at(1).trimmed();
    return true;
}

int DaysInMonth(int year, int month)
{
    if (month < 1 || month > 12)
        return 31;
    return QDate(year, month, 1).daysInMonth();
}

DateTimeFields InvalidDateTimeFields(const DateTimeEntry &entry)
{
    DateTimeFields invalid;
    int year = 0;
    int month = 0;
    int day = 0;
    int value = 0;
    const bool yearValid = inRange(entry.year, 2000, 2099, &year);
    const bool monthValid = inRange(entry.month, 1, 12, &month);
    if (!yearValid)
        invalid |= DateTimeField::Year;
    if (!monthValid)
        invalid |= DateTimeField::Month;
    // 2000 is a leap year: an unknown year lets 29 February through rather than blame it.
    const int lastDay = monthValid ? DaysInMonth(yearValid ? year : 2000, month) : 31;
    if (!inRange(entry.day, 1, lastDay, &day))
        invalid |= DateTimeField::Day;
    if (!inRange(entry.hour, 0, 23, &value))
        invalid |= DateTimeField::Hour;
    if (!inRange(entry.minute, 0, 59, &value))
        invalid |= DateTimeField::Minute;
    return invalid;
}

QString DateAdjustText(const DateTimeEntry &entry)
{
    return padded(entry.year, 4) + padded(entry.month, 2) + padded(entry.day, 2);
}

QString TimeAdjustText(const DateTimeEntry &entry)
{
    return padded(entry.hour, 2) + padded(entry.minute, 2);
}

} // namespace Popups
} // namespace ovra
