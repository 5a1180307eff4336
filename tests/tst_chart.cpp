// The temperature chart: its geometry checked directly, then the widget drawn and tapped.
#include "fakeholdclock.h"
#include "process/chart.h"
#include "process/chartgeometry.h"
#include "process/chartview.h"

#include <QSignalSpy>
#include <QtCharts/QLineSeries>
#include <QtTest>

#include <cmath>

using namespace ovra::GlobalElements;
namespace geo = ovra::GlobalElements::ChartGeometry;

namespace {

// 0 -> 500 °C (hold 10 min) -> 1000 °C (hold 30) -> down to 600 °C (hold 0).
const geo::Matrix threeRows{{100, 500, 10}, {200, 1000, 30}, {50, 600, 0}};
const geo::Profile detailed = geo::BuildProfile(threeRows, false, false);
const geo::Profile summary = geo::BuildProfile(threeRows, true, false);

geo::Report rep(unsigned int stage, const char *text)
{
    return {stage, QString::fromLatin1(text)};
}

int fillPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += (image.pixel(x, y) & 0xffffff) == 0xffa600; // rgb(255, 166, 0)
    return count;
}

} // namespace

class TestChart : public QObject
{
    Q_OBJECT

private slots:
    void profileAndAxes();
    void summaryProfile();
    void summaryStageMapping();
    void frontPosition_data();
    void frontPosition();
    void latestYCapsTheIndex();
    void flatRampHasNoPosition();
    void holdIsTimedFromItsFirstReport();
    void widgetDrawsTheFill();
    void tapOpensOnlyDetailedCharts();
};

void TestChart::profileAndAxes()
{
    const geo::Profile one = geo::BuildProfile({{150, 900, 20}}, false, false);
    QCOMPARE(one.points, (geo::Points{{0, 0}, {1, 900}, {2, 900}}));
    const QList<geo::AxisLabel> labels = geo::XLabels(one.segmentCount);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.at(0).text, QStringLiteral("1"));
    QCOMPARE(labels.at(0).value, 2.0);

    // Fahrenheit: points from 32 °F, the summary falls back to 32 °F, the labels in °F.
    QCOMPARE(geo::BuildProfile({{100, 1000, 5}}, false, true).points, (geo::Points{{0, 32}, {1, 1832}, {2, 1832}}));
    QCOMPARE(geo::BuildProfile({{100, 1000, 5}}, true, true).points.last(), QPointF(3, 32));
    QCOMPARE(geo::YLabels(true).at(1).text, QStringLiteral("662°F  "));
}

void TestChart::summaryProfile()
{
    const geo::Profile p =
        geo::BuildProfile({{100, 800, 1}, {100, 1500, 25}, {100, 1500, 90}, {100, 400, 7}}, true, false);
    QCOMPARE(p.summaryStage, 2u); // the first of equal maxima, with its own hold
    QCOMPARE(p.summaryHoldMinutes, 25u);
    QCOMPARE(p.points, (geo::Points{{0, 0}, {1, 1500}, {2, 1500}, {3, 0}}));

    // Hold at the top is 30 minutes of row 2; after it comes the fall to 0.
    const geo::Report hold = geo::MapStage(summary, rep(2, "hold"));
    QCOMPARE(geo::FrontX(summary, hold, 1000, 15 * 60000), 1.5);
    QCOMPARE(geo::FrontX(summary, geo::MapStage(summary, rep(3, "heat")), 500, 0), 2.5);

    // "done" fills the detailed profile up to its last target (it is not brought back down) and no further, and ends
    // the summary's fill on the axis at x = 3, in both units.
    const QList<QPair<geo::Profile, geo::Points>> done = {
        {detailed, {{0, 0}, {6, 0}, {6, 600}}},
        {summary, {{0, 0}, {3, 0}, {3, 0}}},
        {geo::BuildProfile(threeRows, true, true), {{0, 0}, {3, 0}, {3, 0}}}};
    for (const auto &[profile, line] : done) {
        const geo::Report report = geo::MapStage(profile, rep(99, "done"));
        QCOMPARE(geo::ProgressLine(profile, report, geo::FrontX(profile, report, 70, 0), 70), line);
    }
}

void TestChart::summaryStageMapping()
{
    // Before the hottest stage: heat; the hottest keeps its text; after it, even done: heat of
    // stage 2; 90 and above untouched. The detailed profile keeps every stage.
    const QList<QPair<geo::Report, geo::Report>> cases = {{rep(1, "hold"), rep(1, "heat")},
                                                          {rep(2, "hold"), rep(1, "hold")},
                                                          {rep(89, "done"), rep(2, "heat")},
                                                          {rep(90, "cool"), rep(90, "cool")}};
    for (const auto &[report, mapped] : cases) {
        QCOMPARE(geo::MapStage(summary, report).stage, mapped.stage);
        QCOMPARE(geo::MapStage(summary, report).text, mapped.text);
        QCOMPARE(geo::MapStage(detailed, report).stage, report.stage);
    }
}

void TestChart::frontPosition_data()
{
    QTest::addColumn<unsigned int>("stage");
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("temperature");
    QTest::addColumn<qint64>("elapsedMs");
    QTest::addColumn<double>("x");
    QTest::newRow("first ramp from 0") << 1u << "heat" << 125u << qint64(0) << 0.25;
    QTest::newRow("heating, half") << 2u << "heat" << 750u << qint64(0) << 2.5;
    QTest::newRow("heating, overshoot not clamped") << 2u << "heat" << 1100u << qint64(0) << 3.2;
    QTest::newRow("cooling, a quarter") << 3u << "heat" << 900u << qint64(0) << 4.25;
    QTest::newRow("hold just begun") << 2u << "hold" << 999u << qint64(999) << 3.0;
    QTest::newRow("hold a third, whole seconds") << 2u << "hold" << 999u << qint64(600900) << 3.0 + 1.0 / 3.0;
    QTest::newRow("hold overrun clamped") << 2u << "hold" << 999u << qint64(2700000) << 4.0;
    QTest::newRow("zero-minute hold") << 3u << "hold" << 999u << qint64(5000) << 6.0;
    QTest::newRow("unknown text") << 2u << "cool" << 800u << qint64(0) << 0.0;
}

void TestChart::frontPosition()
{
    QFETCH(unsigned int, stage);
    QFETCH(QString, text);
    QFETCH(unsigned int, temperature);
    QFETCH(qint64, elapsedMs);
    QFETCH(double, x);
    QCOMPARE(geo::FrontX(detailed, {stage, text}, temperature, elapsedMs), x);
}

void TestChart::latestYCapsTheIndex()
{
    Chart chart;
    QtCharts::QLineSeries series;
    series.replace(detailed.points);
    // Inside ramp 2: its end; beyond or infinite: capped at the last; not a number: the first.
    const QList<QPair<double, double>> cases = {{2.5, 1000.0}, {9.5, 600.0}, {INFINITY, 600.0}, {NAN, 0.0}};
    for (const auto &[x, y] : cases) {
        QCOMPARE(chart.CalculateLatestY(x, &series, QStringLiteral("heat"), 987), y);
        QCOMPARE(chart.CalculateLatestY(x, &series, QStringLiteral("hold"), 987), 987.0);
        QCOMPARE(chart.CalculateLatestY(x, nullptr, QStringLiteral("heat"), 987), 0.0);
    }
}

void TestChart::flatRampHasNoPosition()
{
    const geo::Profile flat = geo::BuildProfile({{100, 500, 0}, {0, 500, 5}}, false, false);
    QVERIFY(std::isinf(geo::FrontX(flat, rep(2, "heat"), 510, 0))); // x / 0
    QVERIFY(std::isnan(geo::FrontX(flat, rep(2, "heat"), 500, 0))); // 0 / 0
    QVERIFY(geo::ProgressLine(flat, rep(2, "heat"), INFINITY, 510).isEmpty());
    QVERIFY(!std::isfinite(geo::FrontX(detailed, rep(4, "heat"), 100, 0))); // no such stage

    // The widget keeps its last fill and still draws.
    Chart chart;
    chart.resize(780, 250);
    geo::Matrix matrix{{100, 500, 0}, {0, 500, 5}};
    chart.CreateChart(&matrix, false, false);
    chart.UpdateChart(1, QStringLiteral("heat"), 250);
    const geo::Points before = chart.GetProgressSeries()->pointsVector();
    chart.UpdateChart(2, QStringLiteral("heat"), 500);
    chart.UpdateChart(2, QStringLiteral("heat"), 505);
    QCOMPARE(chart.GetProgressSeries()->pointsVector(), before);
    QVERIFY(fillPixels(chart.grab().toImage()) > 0);
}

void TestChart::holdIsTimedFromItsFirstReport()
{
    auto owned = std::make_unique<FakeHoldClock>();
    FakeHoldClock *clock = owned.get();
    ChartProgress progress(std::move(owned));

    QCOMPARE(progress.Update(detailed, 1, QStringLiteral("hold"), 500).x, 1.0);
    clock->elapsedMs = 5 * 60000; // half of 10 minutes, same stage: no restart
    QCOMPARE(progress.Update(detailed, 1, QStringLiteral("hold"), 500).x, 1.5);
    QCOMPARE(clock->restarts, 1);
    progress.Update(detailed, 2, QStringLiteral("hold"), 1000);
    progress.Update(detailed, 1, QStringLiteral("hold"), 500); // an earlier stage never restarts
    QCOMPARE(clock->restarts, 2);
}

void TestChart::widgetDrawsTheFill()
{
    Chart chart;
    chart.resize(780, 250);
    geo::Matrix matrix = threeRows;
    chart.CreateChart(&matrix, false, false);
    QCOMPARE(fillPixels(chart.grab().toImage()), 0);
    chart.UpdateChart(2, QStringLiteral("heat"), 750);
    QVERIFY(fillPixels(chart.grab().toImage()) > 5000);

    chart.CreateChart(&matrix, false, false); // a new showing starts unfilled
    QCOMPARE(fillPixels(chart.grab().toImage()), 0);
    chart.UpdateChart(2, QStringLiteral("heat"), 750);
    chart.DeleteChart();
    QCOMPARE(fillPixels(chart.grab().toImage()), 0);
}

void TestChart::tapOpensOnlyDetailedCharts()
{
    Chart chart;
    chart.resize(780, 250);
    QSignalSpy clicked(&chart, &Chart::SignalChartClicked);
    QWidget *surface = chart.GetView()->viewport();
    geo::Matrix matrix = threeRows;

    chart.CreateChart(&matrix, false, false);
    chart.CreateChart(&matrix, false, false); // shown twice: still one signal per tap
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(300, 100));
    QCOMPARE(clicked.count(), 1);
    chart.CreateChart(&matrix, true, false);
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(300, 100));
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestChart)
#include "tst_chart.moc"
