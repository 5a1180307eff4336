#include "settings/devicereport.h"

#include "app/furnacestate.h"

namespace ovra {
namespace Settings {
namespace DeviceReport {

Data From(const GlobalElements::DeviceInfo &device)
{
    return {device.type, device.serial, device.hardware, device.software, device.hours, {}};
}

QString Text(const Data &data)
{
    const auto value = [](const QString &text) {
        const QString simplified = text.simplified();
        return simplified.isEmpty() ? QStringLiteral("-") : simplified;
    };
    return QStringLiteral("Model: %1\nSerial: %2\nHW: %3\nSW: %4\nHours: %5\nFailures: %6")
        .arg(value(data.model), value(data.serialNumber), value(data.hardwareVersion), value(data.softwareVersion),
             value(data.operatingHours), value(data.failures.join(QLatin1Char(','))));
}

} // namespace DeviceReport
} // namespace Settings
} // namespace ovra
