// The firing page's arithmetic and rules without a window: the end-time estimate (integer
// minutes, falls timed like rises, the pre-dry term's unit asymmetry, the 24-hour wrap), the
// temperature text, and the odd cases of the door, the argon test, the pre-dry step and the
// autostart note. The progress report: tst_furnacestate. What the window does with them: tst_firing.
#include "process/firingrules.h"
#include "process/processtime.h"
#include "process/temperaturetext.h"

#include <QtTest>

using namespace ovra::Process;

class TestProcessTime : public QObject
{
    Q_OBJECT

private slots:
    void minutes_data();
    void minutes();
    void endOfDay_data();
    void endOfDay();
    void startClockOfADelayedStart();
    void ovenTemperatureFromTheDisplay();
    void temperatureText();
    void doorAndArgon();
    void preDryStepAndAutostartNote();
};

void TestProcessTime::minutes_data()
{
    QTest::addColumn<ProcessTime::Matrix>("matrix");
    QTest::addColumn<int>("oven");
    QTest::addColumn<uint>("pre");
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<qint64>("expected");

    using M = ProcessTime::Matrix;
    // A plain program's estimate: the firing test's end times.
    QTest::newRow("remainder dropped") << M{{7u, 1000u, 0u}} << 20 << 0u << false << qint64(140);
    QTest::newRow("fall counts") << M{{10u, 1000u, 0u}, {5u, 900u, 10u}} << 20 << 0u << false << qint64(98 + 20 + 10);
    QTest::newRow("oven hotter than target") << M{{10u, 500u, 0u}} << 800 << 0u << false << qint64(30);
    QTest::newRow("pre-dry hot oven, celsius") << M{{10u, 200u, 0u}} << 200 << 15u << false << qint64(0 + 15 - 7);
    QTest::newRow("pre-dry hot oven, fahrenheit") << M{{10u, 200u, 0u}} << 200 << 15u << true << qint64(15);
    QTest::newRow("pre-dry cold oven") << M{{10u, 20u, 0u}} << 20 << 30u << true << qint64(41);
    QTest::newRow("no pre-dry adds nothing") << M{{10u, 200u, 0u}} << 200 << 0u << false << qint64(0);
    QTest::newRow("zero rate is no time") << M{{0u, 1000u, 5u}} << 20 << 0u << false << qint64(5);
}

void TestProcessTime::minutes()
{
    QFETCH(ProcessTime::Matrix, matrix);
    QFETCH(int, oven);
    QFETCH(uint, pre);
    QFETCH(bool, fahrenheit);
    QFETCH(qint64, expected);
    QCOMPARE(ProcessTime::Minutes(matrix, oven, pre, fahrenheit), expected);
}

void TestProcessTime::endOfDay_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<qint64>("minutes");
    QTest::addColumn<QString>("end");
    QTest::newRow("past midnight") << "23:30" << qint64(90) << "01:00";
    QTest::newRow("whole day") << "10:00" << qint64(1440) << "10:00";
    QTest::newRow("negative estimate") << "00:10" << qint64(-20) << "23:50";
    QTest::newRow("unreadable clock") << "" << qint64(65) << "01:05";
}

void TestProcessTime::endOfDay()
{
    QFETCH(QString, start);
    QFETCH(qint64, minutes);
    QTEST(ProcessTime::EndOfDay(start, minutes), "end");
}

void TestProcessTime::startClockOfADelayedStart()
{
    QCOMPARE(ProcessTime::StartClock(QStringLiteral("10:00"), QString()), QStringLiteral("10:00"));
    QCOMPARE(ProcessTime::StartClock(QStringLiteral("10:00"), QStringLiteral("timer==20270303,0905")),
             QStringLiteral("09:05"));
}

void TestProcessTime::ovenTemperatureFromTheDisplay()
{
    QCOMPARE(ProcessTime::OvenCelsiusFromDisplay(QStringLiteral("1200°C"), false), 1200);
    QCOMPARE(ProcessTime::OvenCelsiusFromDisplay(QStringLiteral("392°F"), true), 200);
    QCOMPARE(ProcessTime::OvenCelsiusFromDisplay(QStringLiteral("70°F"), true), 21);
    QCOMPARE(ProcessTime::OvenCelsiusFromDisplay(QString(), false), 0);
    QCOMPARE(ProcessTime::OvenCelsiusFromDisplay(QString(), true), -17); // 0 °F
}

void TestProcessTime::temperatureText()
{
    const TemperatureText c = TemperatureText::FromCelsiusText(QStringLiteral("1200"), false);
    QCOMPARE(c.text, QStringLiteral("1200°C"));
    QCOMPARE(c.value, 1200u);
    const TemperatureText f = TemperatureText::FromCelsiusText(QStringLiteral("21.6"), true);
    QCOMPARE(f.text, QStringLiteral("70°F"));
    QCOMPARE(f.value, 70u);
    // A wrapped reading from the controller stays a number, never undefined.
    const TemperatureText wrapped = TemperatureText::FromCelsiusText(QStringLiteral("4294967295"), true);
    QCOMPARE(wrapped.text, QStringLiteral("2147483647°F"));
    QCOMPARE(TemperatureText::FromCelsiusText(QStringLiteral("hot"), true).text, QStringLiteral("32°F"));
}

void TestProcessTime::doorAndArgon()
{
    QVERIFY(Door::Icon(Door::State::Unknown).isEmpty());
    // When the door warns: the firing test, 300 °C and 301 °C, closing and closed.
    QVERIFY(IsArgon(QStringLiteral(" Argon ")) && !IsArgon(QStringLiteral("argon")));
}

void TestProcessTime::preDryStepAndAutostartNote()
{
    QCOMPARE(NextPreDryStep(7).minutes, 0u); // off the 15-minute steps
    QCOMPARE(AutostartNote(QStringLiteral("timer==20261224,0730")),
             QStringLiteral("      Autostart: \n      07:30\n      24/12/2026"));
}

QTEST_GUILESS_MAIN(TestProcessTime)
#include "tst_processtime.moc"
