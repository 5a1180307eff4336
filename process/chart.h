#pragma once

#include "process/chartgeometry.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class Ui_Chart;

namespace QtCharts {
class QAreaSeries;
class QCategoryAxis;
class QChart;
class QLineSeries;
} // namespace QtCharts

namespace ovra {
namespace GlobalElements {

class ChartView;

// A heat program drawn as a temperature profile; during a firing the part already run is
// filled. All positions come from ChartGeometry: this class only draws them.
class Chart : public QWidget
{
    Q_OBJECT

public:
    explicit Chart(QWidget *parent = nullptr);
    ~Chart() override;

    // Rows are [rate, target °C, hold minutes]. Summary mode shows only the hottest segment
    // and cannot be clicked. Clears any fill; the hold bookkeeping of a firing is kept.
    void CreateChart(QList<QList<unsigned int>> *matrix, bool summary, bool fahrenheit);
    // One progress report of the controller; temperature in the unit the chart was created in.
    // A report without a drawable position leaves the fill as it was.
    void UpdateChart(unsigned int stage, const QString &text, unsigned int temperature);
    double CalculateLatestY(double x, QtCharts::QLineSeries *series, const QString &text, unsigned int temperature);
    // Empties the profile, the fill and the x labels.
    void DeleteChart();
    // Removes the fill of a previous firing and restarts hold timing; the profile stays.
    void ClearProgress();

    bool GetInitChart() const { return m_initialized; }
    void SetInitialized() { m_initialized = true; }

    static unsigned int ToFahrenheit(unsigned int c) { return ChartGeometry::ToFahrenheit(c); }

    // Replaces the clock that times holds (tests set the elapsed time through it).
    void SetHoldClock(std::unique_ptr<HoldClock> clock);

    ChartView *GetView() const { return m_view; }
    const ChartGeometry::Profile &GetProfile() const { return m_profile; }
    QtCharts::QLineSeries *GetProgressSeries() const { return m_progressSeries; }

signals:
    void SignalChartClicked();

public slots:
    void SlotChartClicked();

private:
    void ApplyXAxis();
    void ApplyYAxis();
    void ShowIdleProfile();

    std::unique_ptr<Ui_Chart> m_ui;
    ChartView *m_view = nullptr;
    QtCharts::QChart *m_chart = nullptr;
    QtCharts::QLineSeries *m_profileSeries = nullptr;
    QtCharts::QLineSeries *m_progressSeries = nullptr;
    QtCharts::QAreaSeries *m_areaSeries = nullptr;
    QtCharts::QCategoryAxis *m_axisX = nullptr;
    QtCharts::QCategoryAxis *m_axisY = nullptr;

    ChartGeometry::Profile m_profile;
    ChartProgress m_progress;
    bool m_initialized = false;
};

} // namespace GlobalElements
} // namespace ovra
