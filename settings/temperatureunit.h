#pragma once

#include <QString>

namespace ovra {
namespace Settings {

// Celsius or Fahrenheit for every temperature the panel shows or takes.
namespace TemperatureUnit {

// Only a lower-case "f" from the controller means Fahrenheit; any other text, "F" included,
// means Celsius.
bool IsFahrenheit(const QString &unit);
// Above this chamber temperature, in the unit shown, an opened door draws the warning.
unsigned int DoorTempLimit(bool fahrenheit);

} // namespace TemperatureUnit
} // namespace Settings
} // namespace ovra
