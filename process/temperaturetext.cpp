#include "process/temperaturetext.h"

#include <QtGlobal>

namespace ovra {
namespace Process {

TemperatureText TemperatureText::FromCelsiusText(const QString &celsius, bool fahrenheit)
{
    if (!fahrenheit)
        return {celsius + QStringLiteral("°C"), celsius.toUInt()};
    const double f = 32.0 + celsius.toDouble() * 1.8;
    // A wrapped-round reading from the controller is huge; keep the cast defined.
    const double bounded = qBound(-2147483648.0, f, 2147483647.0);
    const auto shown = static_cast<qint32>(bounded);
    return {QString::number(shown) + QStringLiteral("°F"), shown < 0 ? 0u : static_cast<unsigned int>(shown)};
}

} // namespace Process
} // namespace ovra
