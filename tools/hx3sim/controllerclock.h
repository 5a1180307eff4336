#pragma once

#include <QByteArray>
#include <QDateTime>

// The controller's wall clock: a base time moved by whatever date and time the operator set on
// the panel. Only the difference is kept, so the set clock goes on ticking with the base. The
// base is always handed in: the simulator's runs at the furnace's speed, not the system's.
class ControllerClock
{
public:
    QDateTime at(const QDateTime &system) const;

    // "HHMM": the time of day changes, the date stays, the seconds start again from zero.
    // Anything else leaves the clock alone and gives false.
    bool setTimeOfDay(const QByteArray &hhmm, const QDateTime &system);
    // "YYYYMMDD": the date changes, the time of day stays.
    bool setDate(const QByteArray &yyyymmdd, const QDateTime &system);

private:
    void adopt(const QDateTime &wanted, const QDateTime &system);

    qint64 m_offsetMs = 0;
};
