#pragma once

#include "programs/program.h"

#include <QChar>
#include <QList>
#include <QString>

namespace ovra {
namespace GlobalElements {

// What the program editor computes without a widget: unit conversion of the entries, their
// limits, the digit pad's editing, reading the table into a segment matrix and the checks
// a program must pass before it is stored.
namespace ProgramTable {

using Matrix = Program::Matrix;

constexpr int maxRows = 10;
constexpr int columns = 3;
constexpr unsigned int defaultMaxRate = 120;
constexpr unsigned int maxCelsius = 1650;
constexpr unsigned int maxFahrenheit = 3002;
// The matrix never stores a target below this; lower entries are raised to it.
constexpr unsigned int lowestTemperature = 50;
// Five digits keep every entry inside unsigned int and inside its column.
constexpr int maxDigits = 5;

// Displayed value from a stored one and back. Without Fahrenheit both return v. Values
// below 0 °C come back as 0: the matrix holds no negative numbers.
unsigned int ToFahrenheit(unsigned int v, bool fahrenheit);
unsigned int ToCelcius(unsigned int v, bool fahrenheit);

// Highest value an entry field accepts.
unsigned int TemperatureLimit(bool fahrenheit);
unsigned int RateLimit(unsigned int maxRate, bool fahrenheit);

// Decimal digits as typed; an empty field reads as 0, anything else that is not a run of
// digits reads as 0 too, and a number too large for unsigned int reads as its maximum.
unsigned int ReadNumber(const QString &text);
// The text the field must show: text itself within the limit, the limit above it.
QString LimitEntry(const QString &text, unsigned int limit);

// The digit pad: a digit replaces a lone "0" and is appended to anything else; clear
// removes the last digit but never leaves the field empty, and leaves "0" alone.
QString PadDigit(const QString &text, QChar digit);
QString PadClear(const QString &text);

// One table row as displayed.
struct RowValues
{
    unsigned int rate = 0;
    unsigned int temperature = 0;
    unsigned int time = 0;
};

// Segments in °C from the displayed rows: rows with a zero rate are skipped wherever they
// stand, targets below 51 °C are raised to 50 °C.
Matrix ReadRows(const QList<RowValues> &rows, bool fahrenheit);
// Removes every [0, 50, 0] segment.
void CleanMatrix(Matrix &matrix);
// At least one segment, and every segment heats at a non-zero rate.
bool CheckMatrix(const Matrix &matrix);

enum class NameVerdict {
    Ok,
    Empty,               // nothing but blanks
    ReservedCharacters,  // ; = , . or $$: separators of the controller line and of the store
    UnsupportedCharacter // outside Latin-1, or a control character
};

NameVerdict CheckName(const QString &name);

} // namespace ProgramTable
} // namespace GlobalElements
} // namespace ovra
