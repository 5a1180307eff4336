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

} // namespace HeatfileText
} // namespace GlobalElements
} // namespace ovra
