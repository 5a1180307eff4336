// The simulator's furnace: ramps, holds, pre-dry, the remaining time and cooling, walked
// through on a clock the test moves, so that hours of firing take no time.

#include "furnacemodel.h"

#include <QtTest>

#include <cmath>

namespace {

using Segments = QList<heatfile::Segment>;
using Position = FurnaceModel::Position;
using Phase = FurnaceModel::Phase;
using Kind = FurnaceModel::Event::Kind;

// A furnace on a clock of its own: minutes() moves furnace time on, whatever the speed.
struct Bench
{
    explicit Bench(double factor = 1.0)
        : speed(factor)
        , model([this] { return nowMs; }, factor)
    {
    }

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
            if (event.kind == Kind::Finished) {
                texts.append(QStringLiteral("done"));
                continue;
            }
            texts.append(QStringLiteral("%1 %2").arg(event.position.stage).arg(event.position.phase == Phase::Hold ? "hold" : "heat"));
        }
        return texts;
    }

    double speed;
    qint64 nowMs = 1000000;  // any start: only differences count
    FurnaceModel model;
};

bool near(double a, double b, double tolerance = 1e-6)
{
    return std::fabs(a - b) <= tolerance;
}

}  // namespace

class TestFurnaceModel : public QObject
{
    Q_OBJECT

private slots:
    void rampTakesDistanceOverRate_data();
    void rampTakesDistanceOverRate();
    void holdLastsItsMinutes();
    void phasesOfNoTimeArePassedOver();
    void preDryComesFirst_data();
    void preDryComesFirst();
    void remainingMinutesCountDownToZero();
    void wholeFiringInOneStep();
    void idleCoolingApproachesRoom();
    void doorOpenCoolsFaster();
    void stopLetsItCool();
    void forcedTemperature();
    void speedScalesTheClock();
};

void TestFurnaceModel::rampTakesDistanceOverRate_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("target");
    QTest::addColumn<double>("minutes");

    QTest::newRow("20 to 1000 at 10") << 20.0 << 10 << 1000 << 98.0;
    QTest::newRow("cooling 1000 to 400 at 20") << 1000.0 << 20 << 400 << 30.0;
    QTest::newRow("fraction of a minute") << 22.0 << 5 << 1530 << 301.6;
    QTest::newRow("one degree a minute") << 22.0 << 1 << 23 << 1.0;
}

void TestFurnaceModel::rampTakesDistanceOverRate()
{
    QFETCH(double, from);
    QFETCH(int, rate);
    QFETCH(int, target);
    QFETCH(double, minutes);

    Bench bench;
    bench.model.setChamberCelsius(from);
    bench.model.start({{rate, target, 10}}, 0);
    QCOMPARE(bench.events(), QStringList{QStringLiteral("1 heat")});

    // Halfway in time is halfway in temperature, either way.
    bench.minutes(minutes / 2.0);
    QVERIFY2(near(bench.model.chamberCelsius(), (from + target) / 2.0), qPrintable(QString::number(bench.model.chamberCelsius())));

    bench.minutes(minutes / 2.0 - 0.01);
    QVERIFY(bench.model.position() == (Position{1, Phase::Heat}));
    QVERIFY(!near(bench.model.chamberCelsius(), target, 1e-3));
    bench.minutes(0.02);
    QVERIFY(bench.model.position() == (Position{1, Phase::Hold}));
    QCOMPARE(bench.model.chamberCelsius(), static_cast<double>(target));
    QCOMPARE(bench.events(), QStringList{QStringLiteral("1 hold")});
}

void TestFurnaceModel::holdLastsItsMinutes()
{
    Bench bench;
    bench.model.start({{10, 122, 45}, {50, 222, 0}}, 0);
    bench.minutes(10.0);  // the ramp
    QVERIFY(bench.model.position() == (Position{1, Phase::Hold}));
    bench.minutes(44.99);
    QVERIFY(bench.model.position() == (Position{1, Phase::Hold}));
    QCOMPARE(bench.model.chamberCelsius(), 122.0);
    bench.minutes(0.02);
    QVERIFY(bench.model.position() == (Position{2, Phase::Heat}));
    bench.minutes(2.0);
    QVERIFY(!bench.model.isFiring());
    QCOMPARE(bench.events(), (QStringList{QStringLiteral("1 heat"), QStringLiteral("1 hold"), QStringLiteral("2 heat"), QStringLiteral("done")}));
}

void TestFurnaceModel::phasesOfNoTimeArePassedOver()
{
    // Segment 1 ends where the chamber stands with no hold, segment 2 has no hold, segment 3
    // no ramp: only what takes time is ever reported.
    Bench bench;
    bench.model.start({{10, 22, 0}, {10, 122, 0}, {10, 122, 5}}, 0);
    QVERIFY(bench.model.position() == (Position{2, Phase::Heat}));
    bench.minutes(15.0);
    QVERIFY(!bench.model.isFiring());
    QCOMPARE(bench.events(), (QStringList{QStringLiteral("2 heat"), QStringLiteral("3 hold"), QStringLiteral("done")}));

    // A program that takes no time at all ends as it starts.
    Bench empty;
    empty.model.start({{10, 22, 0}}, 0);
    QVERIFY(!empty.model.isFiring());
    QCOMPARE(empty.events(), QStringList{QStringLiteral("done")});
}

void TestFurnaceModel::preDryComesFirst_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<double>("heatMinutes");   // to 130 °C
    QTest::addColumn<double>("heldAt");

    QTest::newRow("cold chamber heats to 130 first") << 22.0 << QStringList{QStringLiteral("0 heat"), QStringLiteral("0 hold")} << 10.8 << 130.0;
    // Pre-dry never cools: a hot chamber is held where it is.
    QTest::newRow("hot chamber only holds") << 300.0 << QStringList{QStringLiteral("0 hold")} << 0.0 << 300.0;
    QTest::newRow("at 130 exactly") << 130.0 << QStringList{QStringLiteral("0 hold")} << 0.0 << 130.0;
}

void TestFurnaceModel::preDryComesFirst()
{
    QFETCH(double, from);
    QFETCH(QStringList, events);
    QFETCH(double, heatMinutes);
    QFETCH(double, heldAt);

    Bench bench;
    bench.model.setChamberCelsius(from);
    bench.model.start({{20, 1000, 0}}, 15);
    QCOMPARE(bench.model.position().stage, 0);
    QVERIFY(near(bench.model.remainingSeconds(), (heatMinutes + 15.0 + (1000.0 - heldAt) / 20.0) * 60.0));
    bench.minutes(heatMinutes + 14.99);
    QVERIFY(bench.model.position() == (Position{0, Phase::Hold}));
    QVERIFY(near(bench.model.chamberCelsius(), heldAt));
    bench.minutes(0.02);
    QVERIFY(bench.model.position() == (Position{1, Phase::Heat}));
    QCOMPARE(bench.events(), events + QStringList{QStringLiteral("1 heat")});

    // Without pre-dry minutes the program starts straight away.
    Bench plain;
    plain.model.start({{20, 1000, 0}}, 0);
    QCOMPARE(plain.events(), QStringList{QStringLiteral("1 heat")});
}

void TestFurnaceModel::remainingMinutesCountDownToZero()
{
    // Up, held, down and held again: 35.12 + 55 + 120 + 20 + 10 minutes.
    Bench bench;
    bench.model.start({{25, 900, 0}, {10, 1450, 120}, {25, 950, 10}}, 0);
    const double total = (900.0 - 22.0) / 25.0 + 55.0 + 120.0 + 20.0 + 10.0;
    QVERIFY(near(bench.model.remainingSeconds(), total * 60.0));
    QCOMPARE(bench.model.remainingMinutes(), 241);

    int previous = bench.model.remainingMinutes();
    double elapsed = 0.0;
    while (bench.model.isFiring()) {
        bench.minutes(0.5);
        elapsed += 0.5;
        const int remaining = bench.model.remainingMinutes();
        QVERIFY2(remaining <= previous, qPrintable(QStringLiteral("%1 after %2").arg(remaining).arg(previous)));
        if (bench.model.isFiring()) {
            QVERIFY2(remaining > 0, qPrintable(QString::number(elapsed)));
            QCOMPARE(remaining, static_cast<int>(std::ceil(total - elapsed)));
        }
        previous = remaining;
        QVERIFY(elapsed < total + 1.0);
    }
    QCOMPARE(bench.model.remainingMinutes(), 0);
    QVERIFY(elapsed >= total);
    // It ended where the last hold was, and cools from there.
    QVERIFY(bench.model.chamberCelsius() < 950.0);
}

void TestFurnaceModel::wholeFiringInOneStep()
{
    // A long pause between two looks at the furnace still tells every stage, in order.
    Bench bench;
    bench.model.start({{25, 900, 0}, {10, 1450, 120}, {50, 800, 0}}, 30);
    bench.minutes(1000.0);
    QVERIFY(!bench.model.isFiring());
    QCOMPARE(bench.events(), (QStringList{QStringLiteral("0 heat"), QStringLiteral("0 hold"), QStringLiteral("1 heat"), QStringLiteral("2 heat"),
                                          QStringLiteral("2 hold"), QStringLiteral("3 heat"), QStringLiteral("done")}));
    QVERIFY(bench.model.takeEvents().isEmpty());
    // The rest of the 1000 minutes went into cooling from 800 °C.
    QVERIFY(bench.model.chamberCelsius() < 800.0);
    QVERIFY(bench.model.chamberCelsius() > 22.0);
}

void TestFurnaceModel::idleCoolingApproachesRoom()
{
    Bench bench;
    QCOMPARE(bench.model.chamberCelsius(), FurnaceModel::kRoomCelsius);
    bench.minutes(600.0);
    QCOMPARE(bench.model.chamberCelsius(), FurnaceModel::kRoomCelsius);

    // A 60th of the gap a minute, as a smooth decay: an hour takes it to 1/e of the gap.
    bench.model.setChamberCelsius(1000.0);
    bench.minutes(60.0);
    QVERIFY(near(bench.model.chamberCelsius(), 22.0 + 978.0 / std::exp(1.0), 1e-6));
    // Step size does not matter.
    Bench fine;
    fine.model.setChamberCelsius(1000.0);
    for (int i = 0; i < 3600; ++i)
        fine.minutes(1.0 / 60.0);
    QVERIFY(near(fine.model.chamberCelsius(), bench.model.chamberCelsius(), 1e-6));

    bench.minutes(600.0);
    QVERIFY(bench.model.chamberCelsius() > 22.0);
    QVERIFY(bench.model.chamberCelsius() < 22.1);
    // A chamber colder than the room warms up to it.
    bench.model.setChamberCelsius(0.0);
    bench.minutes(60.0);
    QVERIFY(near(bench.model.chamberCelsius(), 22.0 - 22.0 / std::exp(1.0)));
}

void TestFurnaceModel::doorOpenCoolsFaster()
{
    Bench closed;
    Bench open;
    closed.model.setChamberCelsius(1000.0);
    open.model.setChamberCelsius(1000.0);
    open.model.setDoorOpen(true);
    closed.minutes(15.0);
    open.minutes(15.0);
    QVERIFY(open.model.chamberCelsius() < closed.model.chamberCelsius());
    QVERIFY(open.model.chamberCelsius() > 22.0);

    // Heating follows the program, door or not.
    open.model.setChamberCelsius(22.0);
    open.model.start({{10, 1000, 0}}, 0);
    open.minutes(50.0);
    QVERIFY(near(open.model.chamberCelsius(), 522.0));
}

void TestFurnaceModel::stopLetsItCool()
{
    Bench bench;
    bench.model.start({{10, 1000, 60}}, 0);
    bench.minutes(50.0);
    bench.model.stop();
    QVERIFY(!bench.model.isFiring());
    QCOMPARE(bench.model.remainingMinutes(), 0);
    QVERIFY(bench.model.position() == Position{});
    bench.minutes(10.0);
    QVERIFY(bench.model.chamberCelsius() < 522.0);
    // A stop is no end of the program.
    QCOMPARE(bench.events(), QStringList{QStringLiteral("1 heat")});
}

void TestFurnaceModel::forcedTemperature()
{
    Bench bench;
    bench.model.start({{10, 1000, 30}, {10, 500, 0}}, 0);
    bench.model.setChamberCelsius(800.0);
    QVERIFY(near(bench.model.remainingSeconds(), (20.0 + 30.0 + 50.0) * 60.0));
    // Past the target, the ramp turns round to it.
    bench.model.setChamberCelsius(1100.0);
    bench.minutes(5.0);
    QVERIFY(near(bench.model.chamberCelsius(), 1050.0));
    // Put right on it, the hold begins.
    bench.model.setChamberCelsius(1000.0);
    QVERIFY(bench.model.position() == (Position{1, Phase::Hold}));
    QCOMPARE(bench.events(), (QStringList{QStringLiteral("1 heat"), QStringLiteral("1 hold")}));
}

void TestFurnaceModel::speedScalesTheClock()
{
    // At 60, a real second is a furnace minute: 98 real seconds take 20 °C to 1000 °C at 10/min.
    qint64 now = 0;
    FurnaceModel model([&now] { return now; }, 60.0);
    model.setChamberCelsius(20.0);
    model.start({{10, 1000, 0}}, 0);
    now += 97000;
    model.update();
    QVERIFY(model.isFiring());
    QVERIFY(near(model.furnaceMs(), 97.0 * 60000.0));
    now += 1000;
    model.update();
    QVERIFY(!model.isFiring());

    // A clock that stands still or steps back moves nothing.
    const double furnaceMs = model.furnaceMs();
    const double celsius = model.chamberCelsius();
    model.update();
    now -= 5000;
    model.update();
    QCOMPARE(model.furnaceMs(), furnaceMs);
    QCOMPARE(model.chamberCelsius(), celsius);
}

QTEST_GUILESS_MAIN(TestFurnaceModel)
#include "tst_furnacemodel.moc"
