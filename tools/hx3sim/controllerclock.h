#pragma once

#include <QByteArray>
#include <QDateTime>

// The controller's wall clock: the system clock moved by whatever date and time the operator
// set on the panel. Only the difference is kept, so the set clock goes on ticking with the
// system's. The system time is a parameter so that the arithmetic can be checked at any moment.
class ControllerClock
{
public:
    QDateTime at(const QDateTime &system) const;
    QDateTime now() const { return at(QDateTime::currentDateTime()); }

    // "HHMM": the time of day changes, the date stays, the seconds start again from zero.
    // Anything else leaves the clock alone and gives false.
    bool setTimeOfDay(const QByteArray &hhmm, const QDateTime &system = QDateTime::currentDateTime());
    // "YYYYMMDD": the date changes, the time of day stays.
    bool setDate(const QByteArray &yyyymmdd, const QDateTime &system = QDateTime::currentDateTime());

private:
    void adopt(const QDateTime &wanted, const QDateTime &system);

    qint64 m_offsetMs = 0;
};
