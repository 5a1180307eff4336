#pragma once

#include "heatfile.h"

#include <QList>

// The heat programs a controller fresh from the factory holds.
namespace sampleprograms {

// Own programs of the operator (one a favourite), makers' programs of two makers in zirconia
// and one under argon, and service programs.
QList<heatfile::Program> programs();

// "Programm 001" ... for long lists: user, maker's and service programs in turn, 1 to 10
// segments. The same count always gives the same programs.
QList<heatfile::Program> generated(int count);

} // namespace sampleprograms
