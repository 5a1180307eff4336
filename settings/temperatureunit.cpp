#include "settings/temperatureunit.h"

namespace ovra {
namespace Settings {
namespace TemperatureUnit {

bool IsFahrenheit(const QString &unit)
{
    return unit == QLatin1String("f");
}

unsigned int DoorTempLimit(bool fahrenheit)
{
    return fahrenheit ? 572 : 300; // 300 °C
}

} // namespace TemperatureUnit
} // namespace Settings
} // namespace ovra
