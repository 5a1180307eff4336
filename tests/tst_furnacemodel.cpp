// The simulator's furnace: ramps, holds, pre-dry, the remaining time and cooling, walked
// through on a clock the test moves, so that hours of firing take no time.

#include "furnacemodel.h"

#include <QtTest>

#include <cmath>

Q_DECLARE_METATYPE(heatfile::Segment)

namespace {

using Segments = QList<heatfile::Segment>;
using Phase = FurnaceModel::Phase;

// A furnace on a clock of its own: minutes() moves furnace time on, whatever the speed.
struct Bench
{
    explicit Bench(double factor = 1.0) : speed(factor), model([this] { return nowMs; }, factor) {}

    void minutes(double furnaceMinutes)
    {
        nowMs += std::llround(furnaceMinutes * 60000.0 / speed);
        model.update();
    }

    // Every "stage N phase" the firing entered so far, "done" for its end.
    QStringList events()
    {
        QStringList texts;
        for (const FurnaceModel::Event &event : model.takeEvents()) {
            if (event.kind == FurnaceModel::Event::Kind::Finished)
                texts.append(QStringLiteral("done"));
            else
                texts.append(QStringLiteral("%1 %2")
                                 .arg(event.position.stage)
                                 .arg(event.position.phase == Phase::Hold ? "hold" : "heat"));
        }
        return texts;
    }

    double speed;
    qint64 nowMs = 1000000; // any start: only differences count
    FurnaceModel model;
};

bool near(double a, double b, double tolerance = 1e-6)
{
    return std::fabs(a - b) <= tolerance;
}

} // namespace

class TestFurnaceModel : public QObject
{
    Q_OBJECT

private slots:
    void firingTakesItsTime_data();
    void firingTakesItsTime();
    void coolingTowardsRoom();
};

void TestFurnaceModel::firingTakesItsTime_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<Segments>("segments");
    QTest::addColumn<int>("preDry");
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("total");   // furnace minutes
    QTest::addColumn<QString>("events"); // in the order reported

    // At 60 times a real second is a furnace minute.
    QTest::newRow("sixty times as fast") << 20.0 << Segments{{10, 1000, 0}} << 0 << 60.0 << 98.0 << "1 heat, done";
    // A ramp to where the chamber stands and a hold of 0 take no time and are never reported.
    QTest::newRow("phases of no time") << 22.0 << Segments{{10, 22, 0}, {10, 122, 0}, {10, 122, 5}} << 0 << 1.0 << 15.0
                                       << "2 heat, 3 hold, done";
    // Pre-dry first: up to 130 °C at 10/min (10.8 min), held 15 min, then the program.
    QTest::newRow("pre-dry from cold") << 22.0 << Segments{{20, 1000, 0}} << 15 << 1.0 << 10.8 + 15.0 + 43.5
                                       << "0 heat, 0 hold, 1 heat, done";
    // Pre-dry never cools: a hot chamber is only held.
    QTest::newRow("pre-dry when hot") << 300.0 << Segments{{20, 1000, 0}} << 15 << 1.0 << 15.0 + 35.0
                                      << "0 hold, 1 heat, done";
    QTest::newRow("up, held, down, held")
        << 22.0 << Segments{{25, 900, 0}, {10, 1450, 120}, {25, 950, 10}} << 0 << 1.0
        << 35.12 + 55.0 + 120.0 + 20.0 + 10.0 << "1 heat, 2 heat, 2 hold, 3 heat, 3 hold, done";
}

void TestFurnaceModel::firingTakesItsTime()
{
    QFETCH(double, from);
    QFETCH(Segments, segments);
    QFETCH(int, preDry);
    QFETCH(double, speed);
    QFETCH(double, total);
    QFETCH(QString, events);

    Bench bench(speed);
    bench.model.setChamberCelsius(from);
    bench.model.start(segments, preDry);
    QVERIFY2(near(bench.model.remainingSeconds(), total * 60.0),
             qPrintable(QString::number(bench.model.remainingSeconds() / 60.0)));

    // The remaining minutes count down, rounded up, and never reach 0 while it fires.
    double elapsed = 0.0;
    while (elapsed + 0.5 < total - 0.01) {
        bench.minutes(0.5);
        elapsed += 0.5;
        QVERIFY2(bench.model.isFiring(), qPrintable(QString::number(elapsed)));
        QCOMPARE(bench.model.remainingMinutes(), static_cast<int>(std::ceil(total - elapsed)));
    }
    bench.minutes(total - 0.01 - elapsed);
    QVERIFY(bench.model.isFiring());
    QCOMPARE(bench.model.remainingMinutes(), 1);
    bench.minutes(0.02);
    QVERIFY(!bench.model.isFiring());
    QCOMPARE(bench.model.remainingMinutes(), 0);
    QCOMPARE(bench.events().join(QStringLiteral(", ")), events);
    // It ends at the last target.
    QVERIFY2(near(bench.model.chamberCelsius(), segments.last().tempCelsius, 0.5),
             qPrintable(QString::number(bench.model.chamberCelsius())));
}

void TestFurnaceModel::coolingTowardsRoom()
{
    // Idle, a 60th of the gap to the room a minute as a smooth decay: an hour takes it to 1/e.
    Bench closed;
    Bench open;
    closed.model.setChamberCelsius(1000.0);
    open.model.setChamberCelsius(1000.0);
    open.model.setDoorOpen(true);
    closed.minutes(60.0);
    open.minutes(60.0);
    QVERIFY(near(closed.model.chamberCelsius(), 22.0 + 978.0 / std::exp(1.0)));
    QVERIFY(open.model.chamberCelsius() < closed.model.chamberCelsius());
    QVERIFY(open.model.chamberCelsius() > 22.0);
    closed.minutes(600.0);
    QVERIFY(closed.model.chamberCelsius() > 22.0);
    QVERIFY(closed.model.chamberCelsius() < 22.1);
    // A chamber colder than the room warms up to it.
    closed.model.setChamberCelsius(0.0);
    closed.minutes(60.0);
    QVERIFY(near(closed.model.chamberCelsius(), 22.0 - 22.0 / std::exp(1.0)));

    // A stop ends the firing without its end and lets the chamber cool from where it stood.
    Bench stopped;
    stopped.model.start({{10, 1000, 60}}, 0);
    stopped.minutes(50.0);
    stopped.model.stop();
    QVERIFY(!stopped.model.isFiring());
    QCOMPARE(stopped.model.remainingMinutes(), 0);
    stopped.minutes(10.0);
    QVERIFY(stopped.model.chamberCelsius() < 522.0);
    QCOMPARE(stopped.events(), QStringList{QStringLiteral("1 heat")});
}

QTEST_GUILESS_MAIN(TestFurnaceModel)
#include "tst_furnacemodel.moc"
