// The temperature chart: its geometry checked directly, then the widget drawn and tapped.
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

class FakeClock : public HoldClock
{
public:
    void Restart() override
    {
        ++restarts;
        elapsedMs = 0;
    }
    qint64 ElapsedMs() const override { return elapsedMs; }
    qint64 elapsedMs = 0;
    int restarts = 0;
};

// 0 -> 500 °C (hold 10 min) -> 1000 °C (hold 30) -> down to 600 °C (hold 0).
const geo::Matrix threeRows{{100, 500, 10}, {200, 1000, 30}, {50, 600, 0}};
const geo::Profile detailed = geo::BuildProfile(threeRows, false, false);
const geo::Profile summary = geo::BuildProfile(threeRows, true, false);

geo::Report rep(unsigned int stage, const char *text) { return {stage, QString::fromLatin1(text)}; }

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
    void profileAndXAxis();
    void fahrenheitPointsAndLabels();
    void summaryProfile();
    void summaryStageMapping_data();
    void summaryStageMapping();
    void heatPosition_data();
    void heatPosition();
    void holdPosition_data();
    void holdPosition();
    void doneFillsTheProfile();
    void frontYCapsTheIndex_data();
    void frontYCapsTheIndex();
    void progressLineRejoinsTheProfile();
    void reportsWithoutAPosition();
    void holdIsTimedFromItsFirstReport();
    void widgetDrawsTheFill();
    void tapOpensOnlyDetailedCharts();
};

void TestChart::profileAndXAxis()
{
    const geo::Profile one = geo::BuildProfile({{150, 900, 20}}, false, false);
    QCOMPARE(one.points, (geo::Points{{0, 0}, {1, 900}, {2, 900}}));
    QCOMPARE(one.holdMinutes, QList<unsigned int>{20});
    const QList<geo::AxisLabel> labels = geo::XLabels(one.segmentCount);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.at(0).text, QStringLiteral("1"));
    QCOMPARE(labels.at(0).value, 2.0);
    QCOMPARE(geo::XRange(1).min, 0.0);
    QCOMPARE(geo::XRange(1).max, 2.0);

    // Not brought back down: the profile ends at the last target.
    QCOMPARE(detailed.points.last(), QPointF(6, 600));
    QCOMPARE(detailed.holdMinutes, (QList<unsigned int>{10, 30, 0}));
    // Short rows read as 0; an empty program keeps a usable axis.
    QCOMPARE(geo::BuildProfile({{100}}, false, false).points, (geo::Points{{0, 0}, {1, 0}, {2, 0}}));
    QVERIFY(geo::XLabels(0).isEmpty());
    QCOMPARE(geo::XRange(0).max, 2.0);
}

void TestChart::fahrenheitPointsAndLabels()
{
    QCOMPARE(geo::ToFahrenheit(1), 33u);  // 33.8 truncated
    QCOMPARE(geo::ToFahrenheit(37), 98u); // 98.6 truncated
    QCOMPARE(Chart::ToFahrenheit(2100), 3812u);
    QCOMPARE(geo::BuildProfile({{100, 1000, 5}}, false, true).points,
             (geo::Points{{0, 32}, {1, 1832}, {2, 1832}}));
    QCOMPARE(geo::BuildProfile({{100, 1000, 5}}, true, true).points.last(), QPointF(3, 32));

    const QStringList texts[2] = {{"0°C  ", "350°C  ", "700°C  ", "1050°C  ", "1400°C  ", "1750°C  "},
                                  {"32°F  ", "662°F  ", "1292°F  ", "1922°F  ", "2552°F  ", "3182°F  "}};
    const QList<double> values[2] = {{0, 350, 700, 1050, 1400, 1750}, {32, 662, 1292, 1922, 2552, 3182}};
    for (int f = 0; f < 2; ++f) {
        const QList<geo::AxisLabel> labels = geo::YLabels(f);
        QCOMPARE(labels.size(), 6);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(labels.at(i).text, texts[f].at(i));
            QCOMPARE(labels.at(i).value, values[f].at(i));
        }
    }
    QCOMPARE(geo::YRange(false).max, 2100.0);
    QCOMPARE(geo::YRange(true).min, 32.0);
    QCOMPARE(geo::YRange(true).max, 3812.0);
}

void TestChart::summaryProfile()
{
    const geo::Profile p =
        geo::BuildProfile({{100, 800, 1}, {100, 1500, 25}, {100, 1500, 90}, {100, 400, 7}}, true, false);
    QCOMPARE(p.summaryStage, 2u); // the first of equal maxima, with its own hold
    QCOMPARE(p.summaryHoldMinutes, 25u);
    QCOMPARE(p.points, (geo::Points{{0, 0}, {1, 1500}, {2, 1500}, {3, 0}}));
    QCOMPARE(p.segmentCount, 3u);

    // Hold at the top: 30 minutes of row 2.
    const geo::Report hold = geo::MapStage(summary, rep(2, "hold"));
    QCOMPARE(geo::FrontX(summary, hold, 1000, 999), 1.0);
    QCOMPARE(geo::FrontX(summary, hold, 1000, 15 * 60000), 1.5);
    QCOMPARE(geo::FrontX(summary, hold, 1000, 31 * 60000), 2.0);
    // After the hottest row comes the fall to 0: 500 °C on the way down is halfway.
    QCOMPARE(geo::FrontX(summary, geo::MapStage(summary, rep(3, "heat")), 500, 0), 2.5);

    // "done" ends the fill on the axis at x = 3, in both units.
    for (bool f : {false, true}) {
        const geo::Profile s = geo::BuildProfile(threeRows, true, f);
        const double x = geo::FrontX(s, geo::MapStage(s, rep(99, "done")), 70, 0);
        QCOMPARE(x, 3.0);
        QCOMPARE(geo::ProgressLine(s, rep(99, "done"), x, 70), (geo::Points{{0, 0}, {3, 0}, {3, 0}}));
    }
}

void TestChart::summaryStageMapping_data()
{
    QTest::addColumn<unsigned int>("stage");
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("mappedStage");
    QTest::addColumn<QString>("mappedText");
    const QString heat = QStringLiteral("heat"), hold = QStringLiteral("hold");
    QTest::newRow("before") << 1u << hold << 1u << heat;
    QTest::newRow("stage 0 is before") << 0u << QStringLiteral("predry") << 1u << heat;
    QTest::newRow("hottest keeps its text") << 2u << hold << 1u << hold;
    QTest::newRow("after") << 3u << hold << 2u << heat;
    QTest::newRow("after, even done") << 89u << QStringLiteral("done") << 2u << heat;
    QTest::newRow("90 and above untouched") << 90u << QStringLiteral("cool") << 90u << QStringLiteral("cool");
}

void TestChart::summaryStageMapping()
{
    QFETCH(unsigned int, stage);
    QFETCH(QString, text);
    QFETCH(unsigned int, mappedStage);
    QFETCH(QString, mappedText);
    QCOMPARE(geo::MapStage(summary, {stage, text}).stage, mappedStage);
    QCOMPARE(geo::MapStage(summary, {stage, text}).text, mappedText);
    QCOMPARE(geo::MapStage(detailed, {stage, text}).stage, stage);
}

void TestChart::heatPosition_data()
{
    QTest::addColumn<unsigned int>("stage");
    QTest::addColumn<unsigned int>("temperature");
    QTest::addColumn<double>("x");
    QTest::newRow("first ramp from 0") << 1u << 125u << 0.25;
    QTest::newRow("heating, start") << 2u << 500u << 2.0;
    QTest::newRow("heating, half") << 2u << 750u << 2.5;
    QTest::newRow("heating, overshoot not clamped") << 2u << 1100u << 3.2;
    QTest::newRow("cooling, a quarter") << 3u << 900u << 4.25;
    QTest::newRow("cooling, end") << 3u << 600u << 5.0;
}

void TestChart::heatPosition()
{
    QFETCH(unsigned int, stage);
    QFETCH(unsigned int, temperature);
    QFETCH(double, x);
    QCOMPARE(geo::FrontX(detailed, {stage, QStringLiteral("heat")}, temperature, 0), x);
}

void TestChart::holdPosition_data()
{
    QTest::addColumn<unsigned int>("stage");
    QTest::addColumn<qint64>("elapsedMs");
    QTest::addColumn<double>("x");
    QTest::newRow("just begun") << 2u << qint64(0) << 3.0;
    QTest::newRow("under a second") << 2u << qint64(999) << 3.0;
    QTest::newRow("a third, whole seconds") << 2u << qint64(600900) << 3.0 + 1.0 / 3.0;
    QTest::newRow("exactly over") << 2u << qint64(1800000) << 4.0;
    QTest::newRow("overrun clamped to +1") << 2u << qint64(2700000) << 4.0;
    QTest::newRow("zero-minute hold") << 3u << qint64(5000) << 6.0;
}

void TestChart::holdPosition()
{
    QFETCH(unsigned int, stage);
    QFETCH(qint64, elapsedMs);
    QFETCH(double, x);
    QCOMPARE(geo::FrontX(detailed, {stage, QStringLiteral("hold")}, 999, elapsedMs), x);
}

void TestChart::doneFillsTheProfile()
{
    const double x = geo::FrontX(detailed, rep(99, "done"), 30, 0);
    QCOMPARE(x, 6.0);
    // Up to the last target and no further points: the lower line closes under everything.
    QCOMPARE(geo::ProgressLine(detailed, rep(99, "done"), x, 30), (geo::Points{{0, 0}, {6, 0}, {6, 600}}));
}

void TestChart::frontYCapsTheIndex_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("0: first point") << 0.0 << 0.0;
    QTest::newRow("inside ramp 2: its end") << 2.5 << 1000.0;
    QTest::newRow("on a point: the next") << 3.0 << 1000.0;
    QTest::newRow("last point") << 6.0 << 600.0;
    QTest::newRow("beyond: capped") << 9.5 << 600.0;
    QTest::newRow("infinite: capped") << double(INFINITY) << 600.0;
    QTest::newRow("not a number: first") << double(NAN) << 0.0;
}

void TestChart::frontYCapsTheIndex()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QCOMPARE(geo::FrontY(x, detailed.points, QStringLiteral("heat"), 987), y);
    QCOMPARE(geo::FrontY(x, detailed.points, QStringLiteral("hold"), 987), 987.0);
    QCOMPARE(geo::FrontY(x, {}, QStringLiteral("heat"), 987), 0.0);

    Chart chart;
    QtCharts::QLineSeries series;
    series.replace(detailed.points);
    QCOMPARE(chart.CalculateLatestY(x, &series, QStringLiteral("heat"), 987), y);
}

void TestChart::progressLineRejoinsTheProfile()
{
    // 2.5 rounds up: the profile is rejoined at point 3; 2.4 rounds down, at point 2.
    QCOMPARE(geo::ProgressLine(detailed, rep(2, "heat"), 2.5, 750),
             (geo::Points{{0, 0}, {2.5, 0}, {2.5, 1000}, {3, 1000}, {4, 1000}, {5, 600}, {6, 600}}));
    QCOMPARE(geo::ProgressLine(detailed, rep(2, "heat"), 2.4, 700).mid(3, 2),
             (geo::Points{{2, 500}, {3, 1000}}));
    // A hold's front edge is the measured temperature.
    QCOMPARE(geo::ProgressLine(detailed, rep(2, "hold"), 3.5, 1003).at(2), QPointF(3.5, 1003));
    // Unknown text or stage 0: front at 0, nothing filled.
    QCOMPARE(geo::FrontX(detailed, rep(2, "cool"), 800, 0), 0.0);
    QCOMPARE(geo::FrontX(detailed, rep(0, "heat"), 800, 0), 0.0);
    QCOMPARE(geo::ProgressLine(detailed, rep(2, "cool"), 0.0, 800).mid(3), detailed.points);
}

void TestChart::reportsWithoutAPosition()
{
    const geo::Profile flat = geo::BuildProfile({{100, 500, 0}, {0, 500, 5}}, false, false);
    QVERIFY(std::isinf(geo::FrontX(flat, rep(2, "heat"), 510, 0))); // x / 0
    QVERIFY(std::isnan(geo::FrontX(flat, rep(2, "heat"), 500, 0))); // 0 / 0
    QVERIFY(geo::ProgressLine(flat, rep(2, "heat"), INFINITY, 510).isEmpty());
    // Stages the profile does not have.
    QVERIFY(!std::isfinite(geo::FrontX(detailed, rep(4, "heat"), 100, 0)));
    QVERIFY(!std::isfinite(geo::FrontX(detailed, rep(99, "hold"), 100, 1000)));
    QVERIFY(!std::isfinite(geo::FrontX(geo::Profile(), rep(99, "done"), 100, 0)));

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
    auto owned = std::make_unique<FakeClock>();
    FakeClock *clock = owned.get();
    ChartProgress progress(std::move(owned));

    progress.Update(detailed, 1, QStringLiteral("heat"), 300);
    QCOMPARE(clock->restarts, 0);
    QCOMPARE(progress.Update(detailed, 1, QStringLiteral("hold"), 500).x, 1.0);
    clock->elapsedMs = 5 * 60000; // half of 10 minutes, same stage: no restart
    QCOMPARE(progress.Update(detailed, 1, QStringLiteral("hold"), 500).x, 1.5);
    QCOMPARE(clock->restarts, 1);
    progress.Update(detailed, 2, QStringLiteral("hold"), 1000);
    QCOMPARE(clock->restarts, 2);
    progress.Update(detailed, 1, QStringLiteral("hold"), 500); // an earlier stage never restarts
    QCOMPARE(clock->restarts, 2);
    QCOMPARE(progress.LastHoldStage(), 2u);
}

void TestChart::widgetDrawsTheFill()
{
    Chart chart;
    chart.resize(780, 250);
    auto owned = std::make_unique<FakeClock>();
    FakeClock *clock = owned.get();
    chart.SetHoldClock(std::move(owned));
    geo::Matrix matrix = threeRows;
    chart.CreateChart(&matrix, false, false);
    QCOMPARE(fillPixels(chart.grab().toImage()), 0);

    chart.UpdateChart(2, QStringLiteral("heat"), 750);
    const int midRamp = fillPixels(chart.grab().toImage());
    QVERIFY2(midRamp > 5000, qPrintable(QString::number(midRamp)));
    chart.UpdateChart(2, QStringLiteral("hold"), 1000);
    clock->elapsedMs = 15 * 60000;
    chart.UpdateChart(2, QStringLiteral("hold"), 1000);
    QVERIFY(fillPixels(chart.grab().toImage()) > midRamp);

    chart.CreateChart(&matrix, false, false); // a new showing starts unfilled
    QCOMPARE(fillPixels(chart.grab().toImage()), 0);
    chart.UpdateChart(2, QStringLiteral("heat"), 750);
    chart.DeleteChart();
    QVERIFY(chart.GetProfile().points.isEmpty());
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
    QTest::mouseClick(surface, Qt::RightButton, {}, QPoint(300, 100));
    QCOMPARE(clicked.count(), 1);

    chart.CreateChart(&matrix, true, false);
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(300, 100));
    QCOMPARE(clicked.count(), 1);

    chart.CreateChart(&matrix, false, true);
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(300, 100));
    QCOMPARE(clicked.count(), 2);
}

QTEST_MAIN(TestChart)
#include "tst_chart.moc"
