#include "controllerclock.h"

#include <QDate>
#include <QTime>

namespace {
// QDate/QTime parsing alone would take signs and spaces in some places; the line carries digits.
bool allDigits(const QByteArray &text, int length)
{
    if (text.size() != length)
        return false;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
    }
    return true;
}
} // namespace

QDateTime ControllerClock::at(const QDateTime &system) const
{
    return system.addMSecs(m_offsetMs);
}

bool ControllerClock::setTimeOfDay(const QByteArray &hhmm, const QDateTime &system)
{
    if (!allDigits(hhmm, 4))
        return false;
    const QTime time(hhmm.left(2).toInt(), hhmm.mid(2).toInt());
    if (!time.isValid())
        return false;
    adopt(QDateTime(at(system).date(), time), system);
    return true;
}

bool ControllerClock::setDate(const QByteArray &yyyymmdd, const QDateTime &system)
{
    if (!allDigits(yyyymmdd, 8))
        return false;
    const QDate date(yyyymmdd.left(4).toInt(), yyyymmdd.mid(4, 2).toInt(), yyyymmdd.mid(6).toInt());
    if (!date.isValid())
        return false;
    adopt(QDateTime(date, at(system).time()), system);
    return true;
}

void ControllerClock::adopt(const QDateTime &wanted, const QDateTime &system)
{
    m_offsetMs = system.msecsTo(wanted);
}
