#pragma once

#include <QString>

namespace ovra {
namespace GlobalElements {

class Program;

// A program as heatfile text, as the controller stores it:
// "[metainfo];name=..;manufacturer=..;material=..;favorite=true|false;[1];rate=..;temp=<K>;hold=<s>;"
// Temperatures go as Kelvin (+273), holds as seconds (x60), in 32-bit unsigned arithmetic.
// Only the material "Argon" (exactly) adds "argon=on;" after every segment. Nothing is
// escaped: names must not contain the separators.
namespace HeatfileText {

QString Write(const Program &program);

// Reads one heatfile text as Write() makes it, strictly: for texts a person may have edited
// (a programs file on a USB stick), not for the controller's lines. The metainfo keys may
// come in any order; segments are [1] to [10] in order, each with rate (1-999 °C/min), temp
// (Kelvin, 50-1650 °C) and hold (whole minutes, in seconds), and "argon=on" only and always
// for the material "Argon". On failure returns false with the reason and leaves *program.
bool Read(const QString &text, Program *program, QString *error);

} // namespace HeatfileText
} // namespace GlobalElements
} // namespace ovra
