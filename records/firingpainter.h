#pragma once

#include "records/firingchart.h"

#include <QCoreApplication>
#include <QRectF>
#include <QString>

class QPainter;

namespace ovra {
namespace Records {

// Drawing shared by the panel's history views and the printed report, so both look alike.
class FiringPainter
{
    Q_DECLARE_TR_FUNCTIONS(ovra::Records::FiringPainter)

public:
    // The result as a symbol in the panel's icon style: green tick, red cross, red stop ring,
    // amber warning for a firing cut off, grey dots for one still running.
    static void Symbol(QPainter *painter, const QRectF &box, const QString &resultWord);
    // The result in words, translated.
    static QString ResultText(const QString &resultWord);

    // Temperature over time: axes with their labels, the measured line, the planned profile
    // dashed over it. Sizes scale with the font's pixel size, so one drawing serves screen and paper.
    static void Chart(QPainter *painter, const QRectF &box, const FiringChart::Series &series, bool fahrenheit,
                      int fontPixels);
};

} // namespace Records
} // namespace ovra
