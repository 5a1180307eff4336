#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// The heat programs the controller holds and hands to the panel at start-up.
namespace sampleprograms {

struct Segment
{
    int rate = 0;          // degrees per minute
    int tempCelsius = 0;   // target of the segment
    int holdMinutes = 0;   // time held at the target
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
};

QList<Program> programs();

// The text of a program as the heatfile command carries it: Kelvin and seconds on the line.
QByteArray heatfileText(const Program &program);

}  // namespace sampleprograms
