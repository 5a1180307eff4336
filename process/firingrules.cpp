#include "process/firingrules.h"

#include "process/processtime.h"

#include <QStringList>

namespace ovra {
namespace Process {

HeatInfo ParseHeatInfo(const QString &report)
{
    HeatInfo info;
    if (report.isEmpty()) {
        info.kind = HeatInfo::Kind::Over;
        return info;
    }
    const QStringList fields = report.split(QLatin1Char(';'));
    if (fields.size() < 4)
        return info;
    info.kind = HeatInfo::Kind::Progress;
    info.program = fields.at(0);
    info.minutesLeft = fields.at(1);
    info.preDrying = fields.at(2) == QLatin1String("pre");
    info.stage = info.preDrying ? 0 : fields.at(2).toUInt();
    info.stageText = fields.at(3);
    return info;
}

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

State FromReport(const QString &text)
{
    if (text == QLatin1String("closing"))
        return State::Closing;
    if (text == QLatin1String("opening"))
        return State::Opening;
    if (text == QLatin1String("closed"))
        return State::Closed;
    return State::Unknown;
}

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
