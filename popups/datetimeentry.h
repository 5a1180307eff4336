#pragma once

#include <QFlags>
#include <QString>

namespace ovra {
namespace Popups {

// The controller's clock as the user types it: five digit fields.
struct DateTimeEntry
{
    QString day;
    QString month;
    QString year;
    QString hour;
    QString minute;
};

enum class DateTimeField {
    Day = 0x01,
    Month = 0x02,
    Year = 0x04,
    Hour = 0x08,
    Minute = 0x10,
};
Q_DECLARE_FLAGS(DateTimeFields, DateTimeField)
Q_DECLARE_OPERATORS_FOR_FLAGS(DateTimeFields)

// Splits "DD.MM.YYYY" and "HH:MM" into the fields. Only the number of parts is checked
// (3 and 2); on any other count entry is left untouched and false is returned.
bool SplitDateTime(const QString &date, const QString &time, DateTimeEntry *entry);

// The fields that cannot be sent to the controller: not a number, or out of range
// (day 1..length of the month, leap years included; month 1..12; year 2000..2099;
// hour 0..23; minute 0..59). Empty when everything is valid. A day is judged against its
// month only when the month is valid, so one wrong field does not mark two.
DateTimeFields InvalidDateTimeFields(const DateTimeEntry &entry);

// "YYYYMMDD" and "HHMM" for valid entries.
QString DateAdjustText(const DateTimeEntry &entry);
QString TimeAdjustText(const DateTimeEntry &entry);

// Days of the month, February following the leap-year rule; 31 for a month outside 1..12.
int DaysInMonth(int year, int month);

} // namespace Popups
} // namespace ovra
