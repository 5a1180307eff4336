#include "communication/reports.h"

#include <QStringList>

namespace ovra {
namespace Communication {

HeatReport ParseHeatReport(const QString &report)
{
    HeatReport info;
    if (report.isEmpty()) {
        info.kind = HeatReport::Kind::Over;
        return info;
    }
    const QStringList fields = report.split(QLatin1Char(';'));
    if (fields.size() < 4)
        return info;
    info.kind = HeatReport::Kind::Progress;
    info.program = fields.at(0);
    info.minutesLeft = fields.at(1).toLongLong(&info.minutesKnown);
    info.stageText = fields.at(3);
    if (fields.at(2) == QLatin1String("pre"))
        info.phase = HeatReport::Phase::PreDry;
    else
        info.phase = info.stageText == QLatin1String("hold") ? HeatReport::Phase::Hold : HeatReport::Phase::Heat;
    info.stage = info.PreDrying() ? 0 : fields.at(2).toUInt();
    return info;
}

} // namespace Communication
} // namespace ovra
