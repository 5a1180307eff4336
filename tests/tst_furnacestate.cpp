// The furnace model without a window: fed by a real message handler with the controller's
// fields, observed by a real firing recorder on a real SQLite file.
#include "app/furnacestate.h"
#include "communication/messagehandler.h"
#include "records/firinghistory.h"
#include "records/firingrecorder.h"
#include "records/firingstore.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Communication::DoorState;
using ovra::Communication::FiringResult;
using ovra::Communication::MessageHandler;
using ovra::GlobalElements::FurnaceState;

class TestFurnaceState : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firingFromRequestToOver();
    void firingTheControllerStarted();
    void unreadableReportsChangeNothing();
    void resultWithoutFiringIsKept();
    void temperatureKeepsTheUnitOfItsReport();
    void failuresCarryTheControllersClock();
    void deviceAndClock();
    void argonOnlyByItsWord();
    void recorderObservesAWholeFiring();

private:
    // Feeds the fields one by one, as the frame's dispatch does; fails on a rejected one.
    void Feed(std::initializer_list<const char *> fields);

    QTemporaryDir m_home;
    MessageHandler *m_handler = nullptr;
    FurnaceState *m_furnace = nullptr;
};

void TestFurnaceState::init()
{
    m_handler = new MessageHandler(ovra::GlobalElements::Paths(m_home.path()));
    m_furnace = new FurnaceState();
    m_furnace->Follow(m_handler);
}

void TestFurnaceState::cleanup()
{
    delete m_furnace;
    delete m_handler;
}

void TestFurnaceState::Feed(std::initializer_list<const char *> fields)
{
    for (const char *field : fields)
        QVERIFY2(m_handler->ParseMessage(QString::fromUtf8(field)), field);
}

void TestFurnaceState::firingFromRequestToOver()
{
    QSignalSpy started(m_furnace, &FurnaceState::FiringStarted);
    QSignalSpy progress(m_furnace, &FurnaceState::FiringProgress);
    QSignalSpy ended(m_furnace, &FurnaceState::FiringEnded);
    QSignalSpy over(m_furnace, &FurnaceState::FiringOver);
    Feed({"date==20261125", "time==0930"});
    m_furnace->RequestFiring(QStringLiteral("Speed"), 15, QString());
    QVERIFY(!m_furnace->IsFiring()); // asked for is not running

    Feed({"hpinfo==Speed;95;pre;pre"});
    const auto &firing = m_furnace->CurrentFiring();
    QVERIFY(m_furnace->IsFiring());
    QCOMPARE(firing.phase, ovra::GlobalElements::Firing::Phase::PreDry);
    QCOMPARE(firing.preDryMinutes, 15);
    QCOMPARE(firing.startTime, QStringLiteral("09:30"));
    QCOMPARE(firing.end, QStringLiteral("11:05")); // reckoned from the minutes left
    Feed({"time==0931", "hpinfo==Speed;80;3;hold", "esttime==10:51"});
    QCOMPARE(started.count(), 1);
    QCOMPARE(progress.count(), 2);
    QCOMPARE(firing.stage, 3u);
    QCOMPARE(firing.phase, ovra::GlobalElements::Firing::Phase::Hold);
    QCOMPARE(firing.end, QStringLiteral("10:51")); // the controller's own word wins
    QCOMPARE(firing.startTime, QStringLiteral("09:30"));

    Feed({"hpsuccess"});
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.at(0).at(0).value<FiringResult>(), FiringResult::Success);
    QVERIFY(!m_furnace->IsFiring());
    QCOMPARE(firing.result, FiringResult::Success);
    Feed({"hpinfo=="});
    QCOMPARE(over.count(), 1);
    QCOMPARE(firing.program, QStringLiteral("Speed")); // the last firing stays readable
}

void TestFurnaceState::firingTheControllerStarted()
{
    m_furnace->RequestFiring(QStringLiteral("Speed"), 30, QStringLiteral("20261125,1200"));
    Feed({"hpinfo==Zirkon HT;120;1;heat"});
    // The panel's request was for another program: none of its choices belong to this one.
    QCOMPARE(m_furnace->CurrentFiring().program, QStringLiteral("Zirkon HT"));
    QCOMPARE(m_furnace->CurrentFiring().preDryMinutes, 0);
    QVERIFY(m_furnace->CurrentFiring().delayedStart.isEmpty());
    QCOMPARE(m_furnace->CurrentFiring().phase, ovra::GlobalElements::Firing::Phase::Heat);
}

void TestFurnaceState::unreadableReportsChangeNothing()
{
    QSignalSpy any(m_furnace, &FurnaceState::FiringProgress);
    QSignalSpy over(m_furnace, &FurnaceState::FiringOver);
    Feed({"hpinfo==Speed;95;pre", "hpinfo==;;"});
    QCOMPARE(any.count() + over.count(), 0);
    QVERIFY(!m_furnace->IsFiring());
    // Numbers that are not numbers read as 0, and the report counts.
    Feed({"hpinfo==Speed;soon;two;heat"});
    QCOMPARE(m_furnace->CurrentFiring().minutesLeft, 0);
    QCOMPARE(m_furnace->CurrentFiring().stage, 0u);
}

void TestFurnaceState::resultWithoutFiringIsKept()
{
    QSignalSpy ended(m_furnace, &FurnaceState::FiringEnded);
    Feed({"hpfailed"});
    QCOMPARE(ended.count(), 1);
    QCOMPARE(m_furnace->CurrentFiring().result, FiringResult::Failed);
    // A firing begun afresh carries no result of the last one.
    Feed({"hpinfo==Speed;5;1;heat"});
    QCOMPARE(m_furnace->CurrentFiring().result, FiringResult::None);
    m_furnace->EndFiring(FiringResult::Stopped);
    QVERIFY(!m_furnace->IsFiring());
    QCOMPARE(m_furnace->CurrentFiring().result, FiringResult::Stopped);
}

void TestFurnaceState::temperatureKeepsTheUnitOfItsReport()
{
    // The conversions themselves: tst_processtime.
    Feed({"temp==1473", "unit==f"});
    QCOMPARE(m_furnace->Celsius(), 1200.0);
    // The display shows the old reading until the next one, and so does the model.
    QCOMPARE(m_furnace->Shown().text, QStringLiteral("1200°C"));
    QVERIFY(m_furnace->DoorTempLimit() > 300u);
    Feed({"temp==294"}); // 21 °C
    QCOMPARE(m_furnace->Shown().text, QStringLiteral("69°F"));
}

void TestFurnaceState::failuresCarryTheControllersClock()
{
    QSignalSpy added(m_furnace, &FurnaceState::FailureAdded);
    Feed({"date==20261125", "time==0800", "error==E12,W345", "time==0801", "error==I6789"});
    QCOMPARE(added.count(), 3);
    QCOMPARE(m_furnace->Failures().size(), 3);
    QCOMPARE(m_furnace->Failures().at(0).code, QStringLiteral("I6789")); // newest first
    QCOMPARE(m_furnace->Failures().at(0).time, QStringLiteral("08:01"));
    QCOMPARE(m_furnace->Failures().at(2).date, QStringLiteral("25.11.2026"));
    Feed({"reseterror==E12"});
    QCOMPARE(m_furnace->Failures().size(), 2);
    QCOMPARE(m_furnace->FailureLog().size(), 3); // the list of what happened keeps it
    m_furnace->ClearFailures();
    QVERIFY(m_furnace->Failures().isEmpty() && m_furnace->FailureLog().isEmpty());
}

void TestFurnaceState::deviceAndClock()
{
    // Each field of the device data in its place (the pages show them: tst_startup).
    Feed({"name==Ovra 3", "swver==S5", "ophours==1234"});
    QCOMPARE(m_furnace->Device().software, QStringLiteral("S5 / R02E.1"));
    QCOMPARE(m_furnace->Device().hours, QStringLiteral("1234"));
    QVERIFY(!m_furnace->ClockDateTime().isValid());
    Feed({"date==20261125", "time==2359"});
    QCOMPARE(m_furnace->ClockDateTime(), QDateTime(QDate(2026, 11, 25), QTime(23, 59)));
    Feed({"date==2026xx25"}); // taken as shown, but no date
    QCOMPARE(m_furnace->Date(), QStringLiteral("25.xx.2026"));
    QVERIFY(!m_furnace->ClockDateTime().isValid());
}

void TestFurnaceState::argonOnlyByItsWord()
{
    QSignalSpy door(m_furnace, &FurnaceState::DoorChanged);
    Feed({"argon==true", "argon==False"});
    QVERIFY(!m_furnace->IsArgonOven());
    Feed({"argon==True", "argon==False"});
    QVERIFY(m_furnace->IsArgonOven());
    Feed({"dooropen", "doorclose==x", "doorclosed"});
    QCOMPARE(door.count(), 3);
    QCOMPARE(door.at(0).at(0).value<DoorState>(), DoorState::Opening);
    QCOMPARE(door.at(1).at(0).value<DoorState>(), DoorState::Closing);
    QCOMPARE(m_furnace->Door(), DoorState::Closed);
}

void TestFurnaceState::recorderObservesAWholeFiring()
{
    using namespace ovra::Records;
    {
        FiringRecorder recorder(m_home.path());
        recorder.Observe(
            *m_furnace,
            [](const QString &program) {
                FiringStart start;
                start.material = QStringLiteral("Zirkon");
                start.heatfileText = program + QStringLiteral(" as fired");
                return start;
            },
            [](const ovra::GlobalElements::DeviceInfo &d) { return d.type + QLatin1Char('/') + d.serial; });
        // The device data arrive before anything else, as at every start-up.
        Feed({"name==Ovra 3", "serialno==SN-1", "date==20261125", "time==0900", "temp==293"});
        m_furnace->RequestFiring(QStringLiteral("Speed"), 15, QString());
        Feed({"hpinfo==Speed;60;pre;pre", "temp==873", "error==W345", "hpinfo==Speed;30;1;heat", "time==1000"});
        m_furnace->EndFiring(FiringResult::Stopped);
        // The controller's last reports of the stopped firing make no second one.
        Feed({"hpinfo==Speed;29;1;heat", "hpinfo=="});
        recorder.Store().Flush();
    }
    FiringHistory history(FiringStore::FileIn(m_home.path()));
    const QList<FiringSummary> firings = history.List();
    QCOMPARE(firings.size(), 1);
    FiringRecord record;
    QVERIFY(history.Load(firings.at(0).id, &record));
    QCOMPARE(record.summary.program, QStringLiteral("Speed"));
    QCOMPARE(record.summary.result, QStringLiteral("stopped"));
    QCOMPARE(record.summary.startTime, QStringLiteral("09:00"));
    QCOMPARE(record.summary.endTime, QStringLiteral("10:00"));
    QCOMPARE(record.preDryMinutes, 15);
    QCOMPARE(record.heatfileText, QStringLiteral("Speed as fired"));
    QCOMPARE(record.device, QStringLiteral("Ovra 3/SN-1"));
    QCOMPARE(record.samples.size(), 2);
    QCOMPARE(record.samples.at(1).celsius, 600.0f); // the temperature last reported before it
    QCOMPARE(record.failures.size(), 1);
    QCOMPARE(record.failures.at(0), qMakePair(QStringLiteral("25.11.2026 09:00"), QStringLiteral("W345")));
}

QTEST_GUILESS_MAIN(TestFurnaceState)
#include "tst_furnacestate.moc"
