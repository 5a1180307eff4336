#include "programs/programtable.h"

#include <cmath>
#include <limits>

namespace ovra {
namespace GlobalElements {
namespace ProgramTable {

namespace {

unsigned int RoundToUnsigned(double v)
{
    const double rounded = std::round(v);
    if (rounded <= 0.0)
        return 0;
    if (rounded >= static_cast<double>(std::numeric_limits<unsigned int>::max()))
        return std::numeric_limits<unsigned int>::max();
    return static_cast<unsigned int>(rounded);
}

} // namespace

unsigned int ToFahrenheit(unsigned int v, bool fahrenheit)
{
    return fahrenheit ? RoundToUnsigned(32.0 + v * 1.8) : v;
}

unsigned int ToCelcius(unsigned int v, bool fahrenheit)
{
    return fahrenheit ? RoundToUnsigned((v - 32.0) / 1.8) : v;
}

unsigned int TemperatureLimit(bool fahrenheit)
{
    return fahrenheit ? maxFahrenheit : maxCelsius;
}

unsigned int RateLimit(unsigned int maxRate, bool fahrenheit)
{
    if (!fahrenheit)
        return maxRate;
    // Truncated and wrapped to 16 bits on purpose: the controller's rate limit behaves so.
    const double limit = std::trunc(32.0 + maxRate * 1.8);
    return static_cast<unsigned int>(static_cast<unsigned long long>(limit) % 65536ULL);
}

unsigned int ReadNumber(const QString &text)
{
    constexpr unsigned long long top = std::numeric_limits<unsigned int>::max();
    unsigned long long value = 0;
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return 0;
        value = value * 10 + static_cast<unsigned int>(c.unicode() - '0');
        if (value > top)
            value = top;
    }
    return static_cast<unsigned int>(value);
}

QString LimitEntry(const QString &text, unsigned int limit)
{
    return ReadNumber(text) > limit ? QString::number(limit) : text;
}

QString PadDigit(const QString &text, QChar digit)
{
    if (text == QLatin1String("0"))
        return QString(digit);
    return text + digit;
}

QString PadClear(const QString &text)
{
    if (text.size() <= 1)
        return text.isEmpty() ? text : QStringLiteral("0");
    return text.left(text.size() - 1);
}

Matrix ReadRows(const QList<RowValues> &rows, bool fahrenheit)
{
    Matrix matrix;
    for (const RowValues &row : rows) {
        // Deliberate: the rate is converted like a temperature, as the stored programs expect.
        const unsigned int rate = ToCelcius(row.rate, fahrenheit);
        if (rate == 0)
            continue;
        unsigned int temperature = ToCelcius(row.temperature, fahrenheit);
        if (temperature <= lowestTemperature)
            temperature = lowestTemperature;
        matrix.append({rate, temperature, row.time});
    }
    return matrix;
}

void CleanMatrix(Matrix &matrix)
{
    const QList<unsigned int> idle{0, lowestTemperature, 0};
    for (int i = matrix.size() - 1; i >= 0; --i) {
        if (matrix.at(i) == idle)
            matrix.removeAt(i);
    }
}

bool CheckMatrix(const Matrix &matrix)
{
    if (matrix.isEmpty())
        return false;
    for (const QList<unsigned int> &row : matrix) {
        if (row.isEmpty() || row.first() == 0)
            return false;
    }
    return true;
}

NameVerdict CheckName(const QString &name)
{
    if (name.trimmed().isEmpty())
        return NameVerdict::Empty;
    for (const QChar c : name) {
        if (c.unicode() > 0xFF || c.category() == QChar::Other_Control)
            return NameVerdict::UnsupportedCharacter;
    }
    static const QString reserved = QStringLiteral(";=,.");
    for (const QChar c : name) {
        if (reserved.contains(c))
            return NameVerdict::ReservedCharacters;
    }
    if (name.contains(QLatin1String("$$")))
        return NameVerdict::ReservedCharacters;
    return NameVerdict::Ok;
}

} // namespace ProgramTable
} // namespace GlobalElements
} // namespace ovra
