#include "process/firingglance.h"

#include "app/captions.h"
#include "app/furnacestate.h"

#include <QDateTime>

namespace ovra {
namespace Process {

namespace {
// The program's estimate counts from a cold furnace: a firing the panel joined late has no
// temperature of its own start.
constexpr int coldFurnaceCelsius = 20;

qint64 MinutesSince(const GlobalElements::FurnaceState &furnace, const GlobalElements::Firing &firing)
{
    const QDateTime start(QDate::fromString(firing.startDate, QStringLiteral("dd.MM.yyyy")),
                          QTime::fromString(firing.startTime, QStringLiteral("hh:mm")));
    const QDateTime now = furnace.ClockDateTime();
    if (!start.isValid() || !now.isValid())
        return 0;
    return qMax<qint64>(0, start.secsTo(now) / 60);
}
} // namespace

Glance FiringGlance::Of(const GlobalElements::FurnaceState &furnace, const ProcessTime::Matrix *rows)
{
    using Phase = GlobalElements::Firing::Phase;
    Glance glance;
    glance.temperature = furnace.Shown().text;
    const GlobalElements::Firing &firing = furnace.CurrentFiring();
    if (!firing.running)
        return glance;

    switch (firing.phase) {
    case Phase::PreDry: glance.stage = tr("Vortrocknen"); break;
    case Phase::Hold: glance.stage = tr("Halten"); break;
    case Phase::Heat: glance.stage = tr("Aufheizen"); break;
    }
    if (firing.phase != Phase::PreDry && firing.stage > 0) {
        const bool known = rows != nullptr && int(firing.stage) <= rows->size();
        glance.segment =
            known ? tr("Segment %1 von %2").arg(firing.stage).arg(rows->size()) : tr("Segment %1").arg(firing.stage);
    }
    if (!firing.end.isEmpty())
        glance.end =
            QCoreApplication::translate(Mainwindow::Captions::context, Mainwindow::Captions::EndeUm).arg(firing.end);
    if (!firing.minutesKnown)
        return glance;
    glance.remaining = Remaining(firing.minutesLeft);
    const qint64 estimate = rows != nullptr && !rows->isEmpty()
                                ? ProcessTime::Minutes(*rows, coldFurnaceCelsius,
                                                       static_cast<unsigned int>(qMax(0, firing.preDryMinutes)), false)
                                : 0;
    glance.percent = Percent(MinutesSince(furnace, firing), firing.minutesLeft, estimate);
    return glance;
}

QString FiringGlance::Remaining(qint64 minutes)
{
    const qint64 m = qMax<qint64>(0, minutes);
    return tr("noch %1:%2 h").arg(m / 60).arg(m % 60, 2, 10, QLatin1Char('0'));
}

int FiringGlance::Percent(qint64 elapsedMinutes, qint64 minutesLeft, qint64 estimateMinutes)
{
    const qint64 left = qMax<qint64>(0, minutesLeft);
    const qint64 total = qMax(qMax<qint64>(0, elapsedMinutes) + left, estimateMinutes);
    if (total <= 0)
        return 100; // nothing left of nothing: the controller is at its end
    return static_cast<int>(qBound<qint64>(0, (total - left) * 100 / total, 100));
}

} // namespace Process
} // namespace ovra
