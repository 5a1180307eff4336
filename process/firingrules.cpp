#include "process/firingrules.h"

#include "process/processtime.h"

#include <QStringList>

namespace ovra {
namespace Process {

PreDryStep NextPreDryStep(unsigned int currentMinutes)
{
    switch (currentMinutes) {
    case 0: return {15, true, ":/Vortrocknen/released15_1.png"};
    case 15: return {30, true, ":/Vortrocknen/released30_1.png"};
    case 30: return {45, true, ":/Vortrocknen/released45_1.png"};
    case 45: return {60, true, ":/Vortrocknen/released60_1.png"};
    default: return {0, false, ":/Vortrocknen/Dry_Up_Timer.png"};
    }
}

QString AutostartNote(const QString &requestedTimer)
{
    const ProcessTime::TimerRequest request = ProcessTime::ParseTimerRequest(requestedTimer);
    const QString blanks = QStringLiteral("      ");
    return blanks + QStringLiteral("Autostart: ") + QLatin1Char('\n') + blanks + request.time.left(2) +
           QLatin1Char(':') + request.time.mid(2, 2) + QLatin1Char('\n') + blanks + request.date.mid(6, 2) +
           QLatin1Char('/') + request.date.mid(4, 2) + QLatin1Char('/') + request.date.left(4);
}

namespace Door {

QString Icon(State state)
{
    switch (state) {
    case State::Opening: return QStringLiteral(":/Door/Door_Up.png");
    case State::Closing:
    case State::Closed: return QStringLiteral(":/Door/Door_Down.png");
    case State::Unknown: break;
    }
    return QString();
}

bool WarnHot(double shownTemperature, unsigned int limit, State state)
{
    return shownTemperature > limit && state != State::Closed;
}

} // namespace Door

bool IsArgon(const QString &material)
{
    QString word = material;
    return word.remove(QLatin1Char(' ')) == QLatin1String("Argon");
}

} // namespace Process
} // namespace ovra
