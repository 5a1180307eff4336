#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QPointF>
#include <QString>
#include <QVector>

#include <memory>

namespace ovra {
namespace GlobalElements {

// What the temperature chart draws, without a widget. The x axis counts half-segments
// (a ramp ends at 2i - 1, its hold at 2i), so every ramp and every hold take the same width.
namespace ChartGeometry {

using Matrix = QList<QList<unsigned int>>;
using Points = QVector<QPointF>;

// Truncates, as the controller does: 32 + c * 1.8 in floating point.
unsigned int ToFahrenheit(unsigned int celsius);

struct AxisLabel
{
    QString text;
    double value;
};

struct AxisRange
{
    double min;
    double max;
};

struct Profile
{
    Points points;
    QList<unsigned int> holdMinutes; // one per row; empty in summary mode
    unsigned int segmentCount = 0;   // 3 in summary mode
    bool summary = false;
    bool fahrenheit = false;
    unsigned int summaryHoldMinutes = 0;
    unsigned int summaryStage = 0; // 1-based row of the hottest target; 0 if none is above 0
};

// Rows are [rate, target °C, hold minutes]; rows shorter than that read as 0 where missing.
Profile BuildProfile(const Matrix &matrix, bool summary, bool fahrenheit);

// Label k at x = 2k for k = 1..count.
QList<AxisLabel> XLabels(unsigned int segmentCount);
// 0..2 * count; an empty program still gets 0..2 so the axis is never degenerate.
AxisRange XRange(unsigned int segmentCount);
QList<AxisLabel> YLabels(bool fahrenheit);
AxisRange YRange(bool fahrenheit);

struct Report
{
    unsigned int stage;
    QString text;
};

// Summary mode folds the controller's stage onto the three-point profile; detailed mode
// returns the report unchanged.
Report MapStage(const Profile &profile, const Report &report);

// The front of the fill for an already mapped report. Not finite when the report has no
// drawable position: a flat "heat" ramp (kept: the controller never sends one) or a stage
// the profile does not have.
double FrontX(const Profile &profile, const Report &report, unsigned int temperature, qint64 holdElapsedMs);

// Height of the fill's front edge at x.
double FrontY(double x, const Points &points, const QString &text, unsigned int temperature);

// Lower boundary of the fill: along the x axis to x, up the front edge, then along the
// profile. Empty when x is not finite.
Points ProgressLine(const Profile &profile, const Report &report, double x, unsigned int temperature);

} // namespace ChartGeometry

// Times the current hold. Injectable so tests can set the elapsed time.
class HoldClock
{
public:
    virtual ~HoldClock() = default;
    virtual void Restart() = 0;
    virtual qint64 ElapsedMs() const = 0;
};

class ElapsedHoldClock : public HoldClock
{
public:
    void Restart() override { m_timer.start(); }
    qint64 ElapsedMs() const override { return m_timer.isValid() ? m_timer.elapsed() : 0; }

private:
    QElapsedTimer m_timer;
};

// Follows the progress reports of a firing. A hold is timed from the first "hold" report of
// a stage later than the last timed one; the last stage is only ever raised, never reset.
class ChartProgress
{
public:
    explicit ChartProgress(std::unique_ptr<HoldClock> clock = nullptr);

    void SetClock(std::unique_ptr<HoldClock> clock);
    unsigned int LastHoldStage() const { return m_lastStage; }
    // A new firing times its holds afresh.
    void Reset() { m_lastStage = 0; }

    struct Result
    {
        double x;
        ChartGeometry::Points lower; // empty when nothing is to be drawn
    };
    Result Update(const ChartGeometry::Profile &profile, unsigned int stage, const QString &text,
                  unsigned int temperature);

private:
    std::unique_ptr<HoldClock> m_clock;
    unsigned int m_lastStage = 0;
};

} // namespace GlobalElements
} // namespace ovra
