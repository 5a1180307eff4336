#include "process/processtime.h"

#include <QStringList>

#include <cstdlib>

namespace ovra {
namespace Process {
namespace ProcessTime {

namespace {
qint64 rampMinutes(qint64 from, qint64 to, unsigned int rate)
{
    if (rate == 0)
        return 0;
    return static_cast<qint64>(static_cast<quint64>(std::llabs(to - from)) / rate);
}
} // namespace

qint64 Minutes(const Matrix &matrix, int ovenCelsius, unsigned int preDryMinutes, bool fahrenheit)
{
    qint64 minutes = 0;
    for (int i = 0; i < matrix.size(); ++i) {
        const QList<unsigned int> &row = matrix.at(i);
        const qint64 from = i == 0 ? ovenCelsius : matrix.at(i - 1).value(1);
        minutes += rampMinutes(from, row.value(1), row.value(0)) + row.value(2);
    }
    if (preDryMinutes != 0) {
        qint64 warmUp = (130 - qint64(ovenCelsius)) / 10; // truncates toward zero
        if (fahrenheit && warmUp < 0)
            warmUp = 0;
        minutes += preDryMinutes + warmUp;
    }
    return minutes;
}

int OvenCelsiusFromDisplay(const QString &displayText, bool fahrenheit)
{
    QString text = displayText;
    text.remove(QStringLiteral("°F"));
    text.remove(QStringLiteral("°C"));
    const int value = text.toInt();
    if (!fahrenheit)
        return value;
    return static_cast<int>((value - 32.0) / 1.8);
}

QString EndOfDay(const QString &startHHMM, qint64 minutes)
{
    const QStringList parts = startHHMM.split(QLatin1Char(':'));
    const qint64 start = qint64(parts.value(0).toInt()) * 60 + parts.value(1).toInt();
    const qint64 day = 24 * 60;
    const qint64 end = ((start + minutes) % day + day) % day;
    return QStringLiteral("%1:%2").arg(end / 60, 2, 10, QLatin1Char('0')).arg(end % 60, 2, 10, QLatin1Char('0'));
}

TimerRequest ParseTimerRequest(const QString &requestedTimer)
{
    const QString arguments = requestedTimer.section(QStringLiteral("=="), 1);
    return {arguments.section(QLatin1Char(','), 0, 0), arguments.section(QLatin1Char(','), 1, 1)};
}

QString StartClock(const QString &clockLabel, const QString &requestedTimer)
{
    if (requestedTimer.isEmpty())
        return clockLabel;
    const QString time = ParseTimerRequest(requestedTimer).time;
    return time.left(2) + QLatin1Char(':') + time.mid(2, 2);
}

} // namespace ProcessTime
} // namespace Process
} // namespace ovra
