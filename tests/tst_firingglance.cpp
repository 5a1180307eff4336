// What the process page says of a firing, without a window: the glance while it runs (stage,
// segment, time left, share done) and the summary at its end, with failure severities in
// words. What the page draws of them: tst_firing.
#include "app/furnacestate.h"
#include "faults/failureseverity.h"
#include "process/firingglance.h"
#include "process/firingsummary.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ovra::Process;
using ovra::Communication::FiringResult;
using ovra::Communication::ParseHeatReport;
using ovra::GlobalElements::FurnaceState;

class TestFiringGlance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void glanceOfEachStage();
    void remainingTimeAndShareDone();
    void percent_data();
    void percent();
    void summaryOfAFiring();
    void summaryComesAndGoes();
    void severityInWords();

private:
    void report(const char *info) { m_furnace->TakeHeatReport(ParseHeatReport(QString::fromLatin1(info))); }

    QScopedPointer<FurnaceState> m_furnace;
    // 10 °C/min to 1000 °C held 10 minutes, 5 °C/min to 1450 °C held 30, 10 °C/min to 1500 held 20:
    // 98 + 10 + 90 + 30 + 5 + 20 = 253 minutes from a cold furnace.
    const ProcessTime::Matrix m_rows{{10u, 1000u, 10u}, {5u, 1450u, 30u}, {10u, 1500u, 20u}};
};

void TestFiringGlance::init()
{
    m_furnace.reset(new FurnaceState);
    m_furnace->SetDate(QStringLiteral("22.11.2026"));
    m_furnace->SetTime(QStringLiteral("09:00"));
    m_furnace->SetTemperature(QStringLiteral("20"));
}

void TestFiringGlance::glanceOfEachStage()
{
    // No firing: the temperature alone.
    Glance g = FiringGlance::Of(*m_furnace, &m_rows);
    QCOMPARE(g.temperature, QStringLiteral("20°C"));
    QVERIFY(g.stage.isEmpty() && g.segment.isEmpty() && g.remaining.isEmpty() && g.end.isEmpty());
    QCOMPARE(g.percent, -1);

    // Pre-drying has no segment yet.
    report("Krone;263;pre;pre");
    g = FiringGlance::Of(*m_furnace, &m_rows);
    QCOMPARE(g.stage, QStringLiteral("Vortrocknen"));
    QCOMPARE(g.segment, QString());
    QCOMPARE(g.remaining, QStringLiteral("noch 4:23 h"));
    QCOMPARE(g.end, QStringLiteral("Ende 13:23"));

    report("Krone;200;1;heat");
    QCOMPARE(FiringGlance::Of(*m_furnace, &m_rows).stage, QStringLiteral("Aufheizen"));
    QCOMPARE(FiringGlance::Of(*m_furnace, &m_rows).segment, QStringLiteral("Segment 1 von 3"));

    // The last segment; Fahrenheit once the next temperature comes.
    m_furnace->SetFahrenheit(true);
    m_furnace->SetTemperature(QStringLiteral("1500"));
    report("Krone;20;3;hold");
    g = FiringGlance::Of(*m_furnace, &m_rows);
    QCOMPARE(g.temperature, QStringLiteral("2732°F"));
    QCOMPARE(g.stage, QStringLiteral("Halten"));
    QCOMPARE(g.segment, QStringLiteral("Segment 3 von 3"));

    // A program the store does not hold, or a stage beyond its rows: the number alone.
    QCOMPARE(FiringGlance::Of(*m_furnace, nullptr).segment, QStringLiteral("Segment 3"));
    report("Krone;5;4;heat");
    QCOMPARE(FiringGlance::Of(*m_furnace, &m_rows).segment, QStringLiteral("Segment 4"));

    // Over: the temperature alone again.
    report("");
    g = FiringGlance::Of(*m_furnace, &m_rows);
    QVERIFY(g.stage.isEmpty() && g.remaining.isEmpty());
    QCOMPARE(g.percent, -1);
}

void TestFiringGlance::remainingTimeAndShareDone()
{
    report("Krone;253;1;heat");
    QCOMPARE(FiringGlance::Of(*m_furnace, &m_rows).percent, 0);
    m_furnace->SetTime(QStringLiteral("10:00"));
    report("Krone;193;2;heat");
    QCOMPARE(FiringGlance::Of(*m_furnace, &m_rows).percent, 23); // 60 of 253

    // Minutes that are no number: no time left and no share, the rest as before.
    report("Krone;;2;heat");
    Glance g = FiringGlance::Of(*m_furnace, &m_rows);
    QCOMPARE(g.remaining, QString());
    QCOMPARE(g.percent, -1);
    QCOMPARE(g.segment, QStringLiteral("Segment 2 von 3"));

    // Zero minutes left: done, whatever the estimate said.
    report("Krone;0;3;hold");
    g = FiringGlance::Of(*m_furnace, &m_rows);
    QCOMPARE(g.remaining, QStringLiteral("noch 0:00 h"));
    QCOMPARE(g.percent, 100);
    QCOMPARE(FiringGlance::Of(*m_furnace, nullptr).percent, 100);
}

void TestFiringGlance::percent_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<qint64>("left");
    QTest::addColumn<qint64>("estimate");
    QTest::addColumn<int>("expected");
    QTest::newRow("joined late: the estimate carries it") << qint64(0) << qint64(60) << qint64(240) << 75;
    QTest::newRow("longer than estimated") << qint64(300) << qint64(100) << qint64(240) << 75;
    QTest::newRow("no program") << qint64(30) << qint64(90) << qint64(0) << 25;
    QTest::newRow("nothing at all") << qint64(0) << qint64(0) << qint64(0) << 100;
    QTest::newRow("negative minutes count as none") << qint64(-5) << qint64(-5) << qint64(10) << 100;
}

void TestFiringGlance::percent()
{
    QFETCH(qint64, elapsed);
    QFETCH(qint64, left);
    QFETCH(qint64, estimate);
    QFETCH(int, expected);
    QCOMPARE(FiringGlance::Percent(elapsed, left, estimate), expected);
}

void TestFiringGlance::summaryOfAFiring()
{
    FiringSummary summary;
    summary.Observe(*m_furnace);
    m_furnace->AddFailures(QStringLiteral("E99")); // before the firing: not its own
    report("Krone;253;pre;pre");
    m_furnace->SetTemperature(QStringLiteral("1503"));
    m_furnace->SetTemperature(QStringLiteral("-5")); // the controller's wrapped reading
    m_furnace->SetTemperature(QStringLiteral("1480"));
    m_furnace->AddFailures(QStringLiteral("I3050,E201"));
    m_furnace->SetTime(QStringLiteral("13:14"));
    m_furnace->EndFiring(FiringResult::Failed);
    m_furnace->AddFailures(QStringLiteral("F07"));     // named after the result: still this firing's
    m_furnace->SetTemperature(QStringLiteral("1600")); // cooling readings are no longer counted

    SummaryText text = summary.Text(false);
    QCOMPARE(text.result, QStringLiteral("Programm abgebrochen"));
    const QList<QPair<QString, QString>> rows{{QStringLiteral("Dauer"), QStringLiteral("4:14 h")},
                                              {QStringLiteral("Ende"), QStringLiteral("13:14")},
                                              {QStringLiteral("Höchste Temperatur"), QStringLiteral("1503°C")}};
    QCOMPARE(text.rows, rows);
    QCOMPARE(text.failures, (QStringList{QStringLiteral("F07  Schwerer Fehler"), QStringLiteral("E201  Warnung"),
                                         QStringLiteral("I3050  Hinweis")}));
    QCOMPARE(summary.Text(true).rows.at(2).second, QStringLiteral("2737°F"));

    // A result with no firing the panel saw: no duration, no highest temperature.
    FiringSummary alone;
    alone.End(FiringResult::Success, QDateTime());
    text = alone.Text(false);
    QCOMPARE(text.result, QStringLiteral("Programm beendet"));
    QVERIFY(text.rows.isEmpty() && text.failures.isEmpty());
}

void TestFiringGlance::summaryComesAndGoes()
{
    FiringSummary summary;
    summary.Observe(*m_furnace);
    QSignalSpy changed(&summary, &FiringSummary::Changed);
    report("Krone;10;1;heat");
    QVERIFY(!summary.IsShown());
    m_furnace->EndFiring(FiringResult::Success);
    QVERIFY(summary.IsShown() && summary.Succeeded());
    report(""); // the controller's empty report keeps it
    QVERIFY(summary.IsShown());
    summary.Dismiss(); // the page left
    QVERIFY(!summary.IsShown());
    QCOMPARE(summary.Text(false).result, QString());

    m_furnace->EndFiring(FiringResult::Stopped);
    QVERIFY(summary.IsShown() && !summary.Succeeded());
    report("Krone;10;1;heat"); // the next firing
    QVERIFY(!summary.IsShown());
    QCOMPARE(changed.count(), 4);
}

void TestFiringGlance::severityInWords()
{
    using namespace ovra::GlobalElements::FailureSeverity;
    QCOMPARE(Lines(QStringLiteral("F07\nE201\nI3050\nX\n\n")),
             QStringLiteral("F07  Schwerer Fehler\nE201  Warnung\nI3050  Hinweis\nX\n\n"));
    QCOMPARE(Lines(QString()), QString());
    QCOMPARE(Line(QStringLiteral("ABCDEF")), QStringLiteral("ABCDEF"));
}

QTEST_GUILESS_MAIN(TestFiringGlance)
#include "tst_firingglance.moc"
