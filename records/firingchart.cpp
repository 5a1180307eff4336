#include "records/firingchart.h"

#include "programs/heatfiletext.h"
#include "programs/program.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace ovra {
namespace Records {
namespace FiringChart {

namespace {
constexpr double preDryCelsius = 130.0;
constexpr double preDryRate = 10.0; // °C per minute

double ToUnit(double celsius, bool fahrenheit)
{
    return fahrenheit ? 32.0 + celsius * 1.8 : celsius;
}
} // namespace

QString ClockText(int seconds)
{
    const int minutes = std::max(0, seconds) / 60;
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString DurationText(int seconds)
{
    return ClockText(seconds) + QStringLiteral(" h");
}

QList<Tick> TimeTicks(int endSeconds, int maxTicks)
{
    static const int stepsMinutes[] = {5, 10, 15, 30, 60, 120, 180, 240, 360, 720};
    const int end = std::max(endSeconds, 60);
    int step = 0;
    for (int minutes : stepsMinutes) {
        step = minutes * 60;
        if ((end + step - 1) / step <= std::max(1, maxTicks))
            break;
    }
    QList<Tick> ticks;
    for (int at = 0;; at += step) {
        ticks.append({static_cast<double>(at), ClockText(at)});
        if (at >= end)
            break;
    }
    return ticks;
}

Points PlannedProfile(const Matrix &matrix, double startCelsius, int preDryMinutes)
{
    Points points;
    double t = 0.0;
    double temperature = startCelsius;
    points.append(QPointF(t, temperature));
    const auto rampTo = [&](double target, double rate) {
        if (rate > 0.0)
            t += std::abs(target - temperature) / rate * 60.0;
        temperature = target;
        points.append(QPointF(t, temperature));
    };
    const auto hold = [&](double minutes) {
        if (minutes <= 0.0)
            return;
        t += minutes * 60.0;
        points.append(QPointF(t, temperature));
    };
    if (preDryMinutes > 0) {
        if (temperature < preDryCelsius)
            rampTo(preDryCelsius, preDryRate);
        hold(preDryMinutes);
    }
    for (const QList<unsigned int> &row : matrix) {
        if (row.size() < 3)
            continue;
        rampTo(row.at(1), row.at(0));
        hold(row.at(2));
    }
    return points;
}

Points MeasuredLine(const QVector<Sample> &samples, int maxPoints)
{
    Points points;
    const int n = samples.size();
    if (n <= maxPoints || maxPoints < 4) {
        points.reserve(n);
        for (const Sample &s : samples)
            points.append(QPointF(s.seconds, s.celsius));
        return points;
    }
    const int buckets = maxPoints / 2;
    points.reserve(buckets * 2);
    for (int b = 0; b < buckets; ++b) {
        const int from = static_cast<int>(static_cast<qint64>(n) * b / buckets);
        const int to = static_cast<int>(static_cast<qint64>(n) * (b + 1) / buckets);
        int lo = from, hi = from;
        for (int i = from; i < to; ++i) {
            if (samples[i].celsius < samples[lo].celsius)
                lo = i;
            if (samples[i].celsius > samples[hi].celsius)
                hi = i;
        }
        for (int i : {std::min(lo, hi), std::max(lo, hi)})
            points.append(QPointF(samples[i].seconds, samples[i].celsius));
    }
    return points;
}

Series Build(const FiringRecord &record, bool fahrenheit, int maxPoints)
{
    Series series;
    series.measured = MeasuredLine(record.samples, maxPoints);
    GlobalElements::Program program(QString(), QString(), {}, QString(), false);
    QString error;
    if (GlobalElements::HeatfileText::Read(record.heatfileText, &program, &error)) {
        const double start = record.samples.isEmpty() ? 20.0 : record.samples.first().celsius;
        series.planned = PlannedProfile(*program.GetMatrix(), start, record.preDryMinutes);
    } else {
        qDebug() << "firing history: no profile for" << record.summary.id << error;
    }
    double end = 60.0;
    for (const Points *line : {&series.planned, &series.measured}) {
        if (!line->isEmpty())
            end = std::max(end, line->last().x());
    }
    series.ticks = TimeTicks(static_cast<int>(std::ceil(end)));
    series.endSeconds = series.ticks.last().seconds;
    if (fahrenheit) {
        for (Points *line : {&series.planned, &series.measured}) {
            for (QPointF &p : *line)
                p.setY(ToUnit(p.y(), true));
        }
    }
    return series;
}

} // namespace FiringChart
} // namespace Records
} // namespace ovra
