#include "process/chartgeometry.h"

#include <cmath>
#include <limits>

namespace ovra {
namespace GlobalElements {
namespace ChartGeometry {

namespace {

const QString heatText = QStringLiteral("heat");
const QString holdText = QStringLiteral("hold");
const QString doneText = QStringLiteral("done");

constexpr double noPosition = std::numeric_limits<double>::quiet_NaN();
constexpr unsigned int axisTopCelsius = 2100;
constexpr unsigned int labelStepCelsius = 350;
constexpr unsigned int labelCount = 6;
constexpr unsigned int firstUnmappedStage = 90;

unsigned int Cell(const QList<unsigned int> &row, int column)
{
    return column < row.size() ? row.at(column) : 0;
}

double Temperature(unsigned int celsius, bool fahrenheit)
{
    return fahrenheit ? ToFahrenheit(celsius) : celsius;
}

} // namespace

unsigned int ToFahrenheit(unsigned int celsius)
{
    return static_cast<unsigned int>(32.0 + celsius * 1.8);
}

Profile BuildProfile(const Matrix &matrix, bool summary, bool fahrenheit)
{
    Profile profile;
    profile.summary = summary;
    profile.fahrenheit = fahrenheit;
    profile.points.append(QPointF(0, Temperature(0, fahrenheit)));

    if (!summary) {
        for (int i = 0; i < matrix.size(); ++i) {
            const double target = Temperature(Cell(matrix.at(i), 1), fahrenheit);
            profile.points.append(QPointF(2 * i + 1, target));
            profile.points.append(QPointF(2 * i + 2, target));
            profile.holdMinutes.append(Cell(matrix.at(i), 2));
        }
        profile.segmentCount = static_cast<unsigned int>(matrix.size());
        return profile;
    }

    unsigned int hottest = 0;
    for (int i = 0; i < matrix.size(); ++i) {
        const unsigned int target = Cell(matrix.at(i), 1);
        if (target > hottest) { // strictly: the first of equal maxima wins
            hottest = target;
            profile.summaryHoldMinutes = Cell(matrix.at(i), 2);
            profile.summaryStage = static_cast<unsigned int>(i + 1);
        }
    }
    const double top = Temperature(hottest, fahrenheit);
    profile.points.append(QPointF(1, top));
    profile.points.append(QPointF(2, top));
    profile.points.append(QPointF(3, Temperature(0, fahrenheit)));
    profile.segmentCount = 3;
    return profile;
}

QList<AxisLabel> XLabels(unsigned int segmentCount)
{
    QList<AxisLabel> labels;
    for (unsigned int k = 1; k <= segmentCount; ++k)
        labels.append({QString::number(k), 2.0 * k});
    return labels;
}

AxisRange XRange(unsigned int segmentCount)
{
    return {0.0, 2.0 * (segmentCount == 0 ? 1 : segmentCount)};
}

QList<AxisLabel> YLabels(bool fahrenheit)
{
    const QString unit = fahrenheit ? QStringLiteral("°F") : QStringLiteral("°C");
    QList<AxisLabel> labels;
    for (unsigned int k = 0; k < labelCount; ++k) {
        const double value = Temperature(k * labelStepCelsius, fahrenheit);
        // The two trailing blanks are deliberate: they keep the labels off the plot.
        labels.append({QString::number(value) + unit + QStringLiteral("  "), value});
    }
    return labels;
}

AxisRange YRange(bool fahrenheit)
{
    return {Temperature(0, fahrenheit), Temperature(axisTopCelsius, fahrenheit)};
}

Report MapStage(const Profile &profile, const Report &report)
{
    if (!profile.summary || report.stage >= firstUnmappedStage)
        return report;
    if (report.stage < profile.summaryStage)
        return {1, heatText};
    if (report.stage > profile.summaryStage)
        return {2, heatText}; // the fall from the hottest target back to 0
    return {1, report.text};
}

double FrontX(const Profile &profile, const Report &report, unsigned int temperature, qint64 holdElapsedMs)
{
    const Points &points = profile.points;
    const unsigned int stage = report.stage;

    if (profile.summary && report.text == doneText)
        return 3.0;
    if (stage == 0)
        return 0.0;

    if (report.text == heatText) {
        const int i = 2 * static_cast<int>(stage - 1);
        if (i + 1 >= points.size())
            return noPosition;
        const QPointF start = points.at(i);
        const QPointF end = points.at(i + 1);
        // Division by zero on a flat ramp is deliberate: the result is simply not finite.
        return start.x() + std::abs(temperature - start.y()) / std::abs(end.y() - start.y());
    }

    if (report.text == holdText) {
        const qint64 seconds = holdElapsedMs / 1000;
        if (profile.summary) {
            if (seconds == 0)
                return 1.0;
            const qint64 planned = qint64(profile.summaryHoldMinutes) * 60;
            if (planned < seconds)
                return 2.0;
            return 1.0 + double(seconds) / double(planned);
        }
        const int end = 2 * static_cast<int>(stage) - 1;
        if (end >= points.size() || int(stage) - 1 >= profile.holdMinutes.size())
            return noPosition;
        const double rampEnd = points.at(end).x();
        if (seconds == 0)
            return rampEnd;
        const qint64 planned = qint64(profile.holdMinutes.at(int(stage) - 1)) * 60;
        if (planned < seconds)
            return rampEnd + 1.0; // an overrun hold is drawn full, never beyond
        return rampEnd + double(seconds) / double(planned);
    }

    if (report.text == doneText)
        return points.isEmpty() ? noPosition : points.last().x();

    return 0.0;
}

double FrontY(double x, const Points &points, const QString &text, unsigned int temperature)
{
    if (text == holdText)
        return temperature;
    if (points.isEmpty())
        return 0.0;
    const int last = points.size() - 1;
    int index = 0;
    if (x >= last)
        index = last;
    else if (x > 0)
        index = std::min(static_cast<int>(std::floor(x)) + 1, last);
    return points.at(index).y();
}

Points ProgressLine(const Profile &profile, const Report &report, double x, unsigned int temperature)
{
    if (!std::isfinite(x))
        return {};
    const bool done = report.text == doneText;
    const double y = (profile.summary && done) ? 0.0 : FrontY(x, profile.points, report.text, temperature);
    // Starts at (0, 0) even in Fahrenheit, where the axis begins at 32: kept on purpose.
    Points line{QPointF(0, 0), QPointF(x, 0), QPointF(x, y)};
    if (!done) {
        const double first = std::floor(x + 0.5);
        for (int i = first < 0 ? 0 : int(std::min<double>(first, profile.points.size())); i < profile.points.size();
             ++i)
            line.append(profile.points.at(i));
    }
    return line;
}

} // namespace ChartGeometry

ChartProgress::ChartProgress(std::unique_ptr<HoldClock> clock)
{
    SetClock(std::move(clock));
}

void ChartProgress::SetClock(std::unique_ptr<HoldClock> clock)
{
    m_clock = clock ? std::move(clock) : std::make_unique<ElapsedHoldClock>();
}

ChartProgress::Result ChartProgress::Update(const ChartGeometry::Profile &profile, unsigned int stage,
                                            const QString &text, unsigned int temperature)
{
    const ChartGeometry::Report report = ChartGeometry::MapStage(profile, {stage, text});
    if (report.stage > m_lastStage && report.text == QLatin1String("hold")) {
        m_clock->Restart();
        m_lastStage = report.stage;
    }
    const double x = ChartGeometry::FrontX(profile, report, temperature, m_clock->ElapsedMs());
    return {x, ChartGeometry::ProgressLine(profile, report, x, temperature)};
}

} // namespace GlobalElements
} // namespace ovra
