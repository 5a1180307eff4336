#pragma once

#include <QColor>

namespace ovra::GlobalElements::ChartColors {

// One palette for every temperature chart, live or recorded, on the screen or on paper, so
// that an operator reads a recorded firing the way the process page showed it.
inline const QColor fill(255, 166, 0);
inline const QColor axis(83, 88, 91);
inline const QColor profile(34, 49, 63);
inline const QColor grid(214, 219, 223);
inline const QColor plot(244, 246, 247);

} // namespace ovra::GlobalElements::ChartColors
