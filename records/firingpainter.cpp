#include "records/firingpainter.h"

#include "process/chartcolors.h"
#include "process/chartgeometry.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace ovra {
namespace Records {

namespace {
// The colours of the panel's icons and chart.
const QColor green(0x2E, 0x9E, 0x5B);
const QColor red(0xD6, 0x45, 0x45);
const QColor amber(0xE0, 0xA1, 0x00);
const QColor grey(0x8A, 0x97, 0xA6);
const QColor &slate = GlobalElements::ChartColors::profile;
const QColor orange(0xE8, 0x70, 0x2A);
const QColor &gridColor = GlobalElements::ChartColors::grid;
const QColor &plotColor = GlobalElements::ChartColors::plot;
} // namespace

void FiringPainter::Symbol(QPainter *painter, const QRectF &box, const QString &resultWord)
{
    // Drawn on a 96-unit square, as the icons are.
    const double side = std::min(box.width(), box.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(box.center().x() - side / 2, box.center().y() - side / 2);
    painter->scale(side / 96.0, side / 96.0);
    const auto stroke = [painter](const QColor &color, double width) {
        QPen pen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
    };
    if (resultWord == QLatin1String("success") || resultWord == QLatin1String("failed")) {
        const bool success = resultWord == QLatin1String("success");
        painter->setPen(Qt::NoPen);
        painter->setBrush(success ? green : red);
        painter->drawEllipse(QPointF(48, 48), 42, 42);
        stroke(Qt::white, 9);
        if (success) {
            painter->drawPolyline(QPolygonF({QPointF(22, 50), QPointF(40, 68), QPointF(75, 30)}));
        } else {
            painter->drawLine(QPointF(32, 32), QPointF(64, 64));
            painter->drawLine(QPointF(64, 32), QPointF(32, 64));
        }
    } else if (resultWord == QLatin1String("stopped")) {
        stroke(red, 8);
        painter->drawEllipse(QPointF(48, 48), 40, 40);
        painter->setPen(Qt::NoPen);
        painter->setBrush(red);
        painter->drawRoundedRect(QRectF(31, 31, 34, 34), 6, 6);
    } else if (resultWord == QLatin1String("interrupted")) {
        QPen pen(amber, 12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        painter->setPen(pen);
        painter->setBrush(amber);
        painter->drawPolygon(QPolygonF({QPointF(48, 14), QPointF(84, 78), QPointF(12, 78)}));
        painter->setPen(Qt::NoPen);
        painter->setBrush(slate);
        painter->drawRoundedRect(QRectF(43, 34, 10, 26), 5, 5);
        painter->drawEllipse(QPointF(48, 72.1), 5.5, 5.5);
    } else {
        stroke(grey, 8);
        painter->drawEllipse(QPointF(48, 48), 38, 38);
        painter->setPen(Qt::NoPen);
        painter->setBrush(grey);
        for (double x : {31.0, 48.0, 65.0})
            painter->drawEllipse(QPointF(x, 48), 5.5, 5.5);
    }
    painter->restore();
}

QString FiringPainter::ResultText(const QString &resultWord)
{
    if (resultWord == QLatin1String("success"))
        return tr("Erfolgreich");
    if (resultWord == QLatin1String("failed"))
        return tr("Fehlgeschlagen");
    if (resultWord == QLatin1String("stopped"))
        return tr("Abgebrochen");
    if (resultWord == QLatin1String("interrupted"))
        return tr("Unterbrochen");
    return tr("Läuft");
}

void FiringPainter::Chart(QPainter *painter, const QRectF &box, const FiringChart::Series &series, bool fahrenheit,
                          int fontPixels)
{
    using GlobalElements::ChartGeometry::YLabels;
    using GlobalElements::ChartGeometry::YRange;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QFont font = painter->font();
    font.setPixelSize(fontPixels);
    painter->setFont(font);
    const QFontMetricsF metrics(font);
    const QList<GlobalElements::ChartGeometry::AxisLabel> yLabels = YLabels(fahrenheit);
    double labelWidth = 0;
    for (const auto &label : yLabels)
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(label.text.trimmed()));
    const double gap = fontPixels * 0.5;
    const QRectF plot(box.left() + labelWidth + gap, box.top() + metrics.height() / 2,
                      box.width() - labelWidth - gap - metrics.horizontalAdvance(QStringLiteral("00:00")) / 2,
                      box.height() - metrics.height() * 1.5 - gap);
    const auto range = YRange(fahrenheit);
    const double end = std::max(series.endSeconds, 1.0);
    const auto map = [&](const QPointF &p) {
        return QPointF(plot.left() + p.x() / end * plot.width(),
                       plot.bottom() - (p.y() - range.min) / (range.max - range.min) * plot.height());
    };

    painter->fillRect(plot, plotColor);
    const double thin = std::max(1.0, fontPixels / 16.0);
    painter->setPen(QPen(gridColor, thin));
    for (const auto &label : yLabels) {
        const double y = map(QPointF(0, label.value)).y();
        painter->drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
    for (const FiringChart::Tick &tick : series.ticks) {
        const double x = map(QPointF(tick.seconds, range.min)).x();
        painter->drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    }
    painter->setPen(slate);
    for (const auto &label : yLabels) {
        const double y = map(QPointF(0, label.value)).y();
        painter->drawText(QRectF(box.left(), y - metrics.height() / 2, labelWidth, metrics.height()),
                          Qt::AlignRight | Qt::AlignVCenter, label.text.trimmed());
    }
    for (const FiringChart::Tick &tick : series.ticks) {
        const double x = map(QPointF(tick.seconds, range.min)).x();
        const double w = metrics.horizontalAdvance(tick.text);
        painter->drawText(QRectF(x - w / 2, plot.bottom() + gap, w + 1, metrics.height()), Qt::AlignCenter, tick.text);
    }
    painter->setPen(QPen(slate, thin * 2));
    painter->drawLine(plot.bottomLeft(), plot.bottomRight());
    painter->drawLine(plot.bottomLeft(), plot.topLeft());

    painter->setClipRect(plot.adjusted(-thin * 3, -thin * 3, thin * 3, thin * 3));
    const auto polyline = [&](const FiringChart::Points &points) {
        QPolygonF mapped;
        mapped.reserve(points.size());
        for (const QPointF &p : points)
            mapped.append(map(p));
        painter->drawPolyline(mapped);
    };
    // The plan over the measurement: where the furnace followed it, both stay visible.
    painter->setPen(QPen(orange, thin * 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    polyline(series.measured);
    painter->setPen(QPen(slate, thin * 2, Qt::DashLine, Qt::FlatCap, Qt::RoundJoin));
    polyline(series.planned);
    painter->restore();
}

} // namespace Records
} // namespace ovra
