#pragma once

// Heat programs as the controller keeps them, and their text on the line. Written apart from
// the panel's program class on purpose: what the panel sends is read by a second, strict
// reader, so that a text the panel gets wrong shows up here instead of being read back by the
// same mistake.

#include <QByteArray>
#include <QList>
#include <QString>

namespace heatfile {

struct Segment
{
    int rate = 0;        // degrees per minute
    int tempCelsius = 0; // target of the segment
    int holdMinutes = 0; // time held at the target

    bool operator==(const Segment &other) const
    {
        return rate == other.rate && tempCelsius == other.tempCelsius && holdMinutes == other.holdMinutes;
    }
};

struct Program
{
    QString name;
    // "user": the operator's own program; "service": a service program; anything else: the
    // maker of the material, whose program the operator cannot change.
    QString manufacturer;
    // "Argon" switches the gas on in every segment.
    QString material;
    bool favorite = false;
    QList<Segment> segments;

    bool operator==(const Program &other) const
    {
        return name == other.name && manufacturer == other.manufacturer && material == other.material &&
               favorite == other.favorite && segments == other.segments;
    }
};

// The controller keeps this many segments per program.
constexpr int kMaxSegments = 10;

// The text of a program as the heatfile command carries it: Kelvin and seconds on the line.
QByteArray text(const Program &program);

// Reads a text in exactly the form text() writes, so that reading and writing again gives the
// same bytes. Anything else is refused with the reason in *error; *program is then unchanged.
bool parse(const QByteArray &text, Program *program, QString *error);

// Why a name cannot be a program's name on the line; empty when it can.
QString nameProblem(const QString &name);

// One line for the console: "<name> | <manufacturer> | <material> | fav|- | rate/°C/min ...".
QString describe(const Program &program);

} // namespace heatfile
