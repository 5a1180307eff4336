#pragma once

#include <QString>

namespace ovra {
namespace Process {

// An oven temperature as the panel shows it: the controller reports whole °C as text.
struct TemperatureText
{
    QString text;       // "1200°C" or "2192°F"
    unsigned int value; // in the display unit

    // Fahrenheit truncates toward zero (21.6 °C shows 70°F); Celsius keeps the text as
    // received. Text that is no number reads as 0 °C.
    static TemperatureText FromCelsiusText(const QString &celsius, bool fahrenheit);
};

} // namespace Process
} // namespace ovra
