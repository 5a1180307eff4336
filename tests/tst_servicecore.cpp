// The service functions without a window: the display-key server over real sockets and the
// key script driven through a stand-in GPIO module, upkeep of the start-up scripts, the
// programs file and backup on the USB stick.
#include "app/paths.h"
#include "app/scriptupkeep.h"
#include "communication/internalcommunicator.h"
#include "programs/heatfiletext.h"
#include "programs/program.h"
#include "settings/pinguard.h"
#include "settings/usbfiles.h"
#include "settings/usbstick.h"
#include "updatefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QNetworkInterface>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using ovra::Communication::InternalCommunicator;
using ovra::GlobalElements::Program;
using ovra::Settings::PinGuard;
using ovra::Settings::UsbFiles;
using UpdateFiles::Read;
using UpdateFiles::Write;

namespace {
// The server shares this thread: wait with the event loop running.
QByteArray Answer(QTcpSocket &socket, const QByteArray &message)
{
    socket.write(message);
    QByteArray answer;
    (void)QTest::qWaitFor([&] { return (answer += socket.readAll()).size() >= 3; }, 5000);
    return answer;
}

// Inode and modification time: equal only for a file nobody wrote.
QPair<qint64, qint64> Stamp(const QString &path)
{
    struct stat st
    {
    };
    ::stat(QFile::encodeName(path).constData(), &st);
    return {qint64(st.st_ino), qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec};
}

bool Runnable(const QString &path)
{
    return QFileInfo(path).permission(QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
}

const QByteArray good = "[metainfo];name=Krone;manufacturer=user;material=Zirkon;favorite=false;"
                        "[1];rate=10;temp=1173;hold=1800;";
} // namespace

class TestServiceCore : public QObject
{
    Q_OBJECT

private slots:
    void wordsAndClients();
    void listensOnLoopbackOnly();
    void keyScriptSwitchesDisplayAndTouch();
    void scriptUpkeepRewritesOnlyWhatDiffers();
    void loadingIsAllOrNothing();
    void stickFailuresAndBackup();
    void pinIsTheControllersNumber_data();
    void pinIsTheControllersNumber();
    void pinGuardLocksOutGuessing();
};

void TestServiceCore::wordsAndClients()
{
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTcpSocket first;
    first.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(first.waitForConnected(3000));
    QCOMPARE(Answer(first, "aus"), QByteArray("ack"));
    QCOMPARE(Answer(first, "ein"), QByteArray("ack"));
    QCOMPARE(Answer(first, "anaus"), QByteArray("nak")); // two words in one read: one unknown text

    // A second client waits unread in the backlog until the first leaves.
    QTcpSocket second;
    second.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(second.waitForConnected(3000));
    second.write("aus");
    QCOMPARE(Answer(first, "an"), QByteArray("nak"));
    QCOMPARE(touch.size(), 4);
    first.disconnectFromHost();
    QTRY_COMPARE(touch.size(), 5);
    QVERIFY(!touch.first().at(0).toBool() && touch.at(2).at(0).toBool() && !touch.last().at(0).toBool());
    QByteArray answer;
    QTRY_COMPARE((answer += second.readAll()), QByteArray("ack"));
}

void TestServiceCore::listensOnLoopbackOnly()
{
    InternalCommunicator server(nullptr, 0);
    QTcpSocket key6;
    key6.connectToHost(QHostAddress::LocalHostIPv6, server.Port());
    QCOMPARE(key6.waitForConnected(3000), server.IsListeningIPv6());
    const QList<QHostAddress> all = QNetworkInterface::allAddresses();
    const auto outside = std::find_if(all.cbegin(), all.cend(), [](const QHostAddress &a) {
        return !a.isLoopback() && a.protocol() == QAbstractSocket::IPv4Protocol;
    });
    if (outside == all.cend())
        QSKIP("this machine has no address besides the loopback");
    QTcpSocket stranger;
    stranger.connectToHost(*outside, server.Port());
    QVERIFY(!stranger.waitForConnected(3000));
    QCOMPARE(stranger.error(), QAbstractSocket::ConnectionRefusedError);
}

void TestServiceCore::keyScriptSwitchesDisplayAndTouch()
{
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty())
        QSKIP("no python3 on this machine");
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTemporaryDir work;
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PYTHONPATH"), QStringLiteral(OVRA_SOURCE_DIR "/tests/fakegpio"));
    environment.insert(QStringLiteral("PYTHONDONTWRITEBYTECODE"), QStringLiteral("1"));
    script.setProcessEnvironment(environment);
    script.setWorkingDirectory(work.path());
    // A hold of 50 ms stands for the furnace's second.
    script.start(python, {QStringLiteral(OVRA_SOURCE_DIR "/resources/scripts/dispOn.py"),
                          QString::number(server.Port()), QStringLiteral("50")});
    QByteArray output;
    const auto printed = [&](const char *text) { return (output += script.readAll()).contains(text); };
    QTRY_VERIFY(printed("mode BOARD\nsetup 32 out 1\nsetup 13 out 1\nsetup 15 in up\nwatch 15 falling 1500\n"));
    QFile pid(work.filePath(QStringLiteral("dispOn.pid")));
    QVERIFY(pid.open(QIODevice::ReadOnly));
    QCOMPARE(pid.readAll().toLongLong(), script.processId());

    // Held with the display on: display and touch off. Held again: both on, on a new socket.
    script.write("press\n");
    QTRY_VERIFY(printed("output 32 0\noutput 13 0\nhandled\n"));
    script.write("release\npress\n");
    QTRY_VERIFY(printed("output 32 1\noutput 13 1\nhandled\n"));
    QTRY_COMPARE(touch.size(), 2);
    QCOMPARE(touch.at(0).at(0).toBool(), false);
    QCOMPARE(touch.at(1).at(0).toBool(), true);
    QVERIFY(!output.contains("failure"));
    script.kill();
    script.waitForFinished();
}

void TestServiceCore::scriptUpkeepRewritesOnlyWhatDiffers()
{
    QTemporaryDir references;
    QTemporaryDir home;
    QVERIFY(Write(references.filePath(QStringLiteral("start.sh")), "echo start\n"));
    QVERIFY(Write(references.filePath(QStringLiteral("key.py")), "print('key')\n"));
    const QStringList scripts = {QStringLiteral("/home/pi/start.sh"), QStringLiteral("/home/pi/DispOn/key.py"),
                                 QStringLiteral("/home/pi/Downloads/none.py")};
    const ovra::GlobalElements::ScriptUpkeep upkeep(ovra::GlobalElements::Paths(home.path()), references.path());
    const QString start = home.filePath(QStringLiteral("start.sh"));
    const QString key = home.filePath(QStringLiteral("DispOn/key.py"));

    // A fresh card: the folder made, both written and runnable; no reference, no file.
    QCOMPARE(upkeep.Run(scripts), (QStringList{start, key}));
    QVERIFY(Runnable(start) && Runnable(key));
    QVERIFY(!QFileInfo::exists(home.filePath(QStringLiteral("Downloads"))));

    // Equal copies stay untouched; a lost run bit comes back without a rewrite.
    QVERIFY(QFile::setPermissions(key, QFile::ReadOwner | QFile::WriteOwner));
    const auto startBefore = Stamp(start);
    const auto keyBefore = Stamp(key);
    QCOMPARE(upkeep.Run(scripts), QStringList());
    QCOMPARE(Stamp(start), startBefore);
    QCOMPARE(Stamp(key), keyBefore);
    QVERIFY(Runnable(key));

    // A changed or emptied script is put back.
    QVERIFY(Write(start, "echo tampered\n"));
    QVERIFY(Write(key, ""));
    QCOMPARE(upkeep.Run(scripts), (QStringList{start, key}));
    QCOMPARE(Read(start), QByteArray("echo start\n"));
    QCOMPARE(Read(key), QByteArray("print('key')\n"));
}

void TestServiceCore::loadingIsAllOrNothing()
{
    QTemporaryDir stick;
    QVERIFY(QDir(stick.path()).mkpath(QStringLiteral("ovra")));
    const UsbFiles files(stick.path());
    // A person's edits: each spoils the file it is in, wherever it stands.
    const QList<QPair<QByteArray, QByteArray>> spoilers = {
        {"temp=1173", "temp=1924"},   // above 1650 °C
        {"hold=1800", "hold=90"},     // not whole minutes
        {"name=Zweite", "name=a$$b"}, // would split the frame
        {"manufacturer=user", "manufacturer=Zircos"},
        {"name=Zweite", "name=Fremd"}, // a maker's program of that name
        {"[1];rate=10;temp=1173;hold=1800;", ""},
    };
    for (const auto &spoiler : spoilers) {
        QVERIFY(Write(files.ProgramsFile(),
                      "# note\n" + good + "\n" +
                          QByteArray(good).replace("Krone", "Zweite").replace(spoiler.first, spoiler.second)));
        QList<Program *> loaded;
        QString error;
        QVERIFY2(!files.LoadPrograms({QStringLiteral("Fremd")}, &loaded, &error), spoiler.second.constData());
        QVERIFY2(error.contains(QStringLiteral("myprograms.txt:3: ")), qPrintable(error));
        QVERIFY(loaded.isEmpty());
    }
    // What the panel saves it reads back; a person can read it too.
    const Program bridge(QStringLiteral("Brücke"), QStringLiteral("Argon"), {{10, 900, 30}}, QStringLiteral("user"),
                         true);
    QList<Program *> loaded;
    QString error;
    QVERIFY(files.SavePrograms({&bridge}, &error));
    QVERIFY(QString::fromUtf8(Read(files.ProgramsFile()))
                .contains(QStringLiteral("# Brücke | Argon | 10 °C/min to 900 °C, hold 30 min\n")));
    QVERIFY(files.LoadPrograms({}, &loaded, &error) && loaded.size() == 1);
    QCOMPARE(ovra::GlobalElements::HeatfileText::Write(*loaded.first()),
             ovra::GlobalElements::HeatfileText::Write(bridge));
    qDeleteAll(loaded);
    loaded.clear();
    QVERIFY(Write(files.ProgramsFile(), good + "\n" + good));
    QVERIFY(!files.LoadPrograms({}, &loaded, &error) && error.contains(QStringLiteral("taken")));
    QVERIFY(Write(files.ProgramsFile(), "# notes only\n\n"));
    QVERIFY(!files.LoadPrograms({}, &loaded, &error));
}

void TestServiceCore::stickFailuresAndBackup()
{
    using ovra::Settings::UsbStick::IsStickVolume;
    QVERIFY(IsStickVolume(QStringLiteral("/dev/sda1"), QStringLiteral("/media/pi/STICK")));
    QVERIFY(!IsStickVolume(QStringLiteral("/dev/sda2"), QStringLiteral("/"))); // a board booted from USB

    const Program crown(QStringLiteral("Krone"), QStringLiteral("Zirkon"), {{10, 900, 30}}, QStringLiteral("Zircos"),
                        false);
    QString error;
    QVERIFY(!UsbFiles(QString()).SavePrograms({&crown}, &error));
    QTemporaryDir stick;
    // Where the folder must go there is a file (as root, permissions would not stop us).
    QVERIFY(Write(stick.filePath(QStringLiteral("ovra")), "in the way"));
    QVERIFY(!UsbFiles(stick.path()).SavePrograms({&crown}, &error));
    QVERIFY(QFile::remove(stick.filePath(QStringLiteral("ovra"))));

    QTemporaryDir logs;
    QVERIFY(Write(logs.filePath(QStringLiteral("Log_1.txt")), "line\n"));
    const QString folder = UsbFiles(stick.path())
                               .Backup({&crown}, QStringLiteral("Model: X"), QStringLiteral("SN 42/7"), logs.path(),
                                       QDateTime(QDate(2026, 11, 23), QTime(9, 30, 5)), &error);
    QCOMPARE(folder, stick.filePath(QStringLiteral("ovra/backup/SN_42_7_20261123_093005")));
    QVERIFY(Read(folder + QStringLiteral("/programs.txt")).contains("name=Krone;manufacturer=Zircos"));
    QCOMPARE(Read(folder + QStringLiteral("/device.txt")), QByteArray("Model: X\n"));
    QCOMPARE(Read(folder + QStringLiteral("/logs/Log_1.txt")), QByteArray("line\n"));
}

void TestServiceCore::pinIsTheControllersNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<uint>("code");
    QTest::addColumn<bool>("correct");
    QTest::newRow("leading zeros") << "0042" << 42u << true;
    QTest::newRow("ten digits, the largest") << "4294967295" << 4294967295u << true;
    QTest::newRow("ten digits, zero-padded") << "0000000042" << 42u << true;
    QTest::newRow("eleven digits") << "00000000042" << 42u << false;
    // Past 32 bits: not read modulo 2^32.
    QTest::newRow("2^32 + 42") << "4294967338" << 42u << false;
    // A code the controller sent as non-numeric arrives as 0; only an entry reads as 0.
    QTest::newRow("empty is not zero") << "" << 0u << false;
    QTest::newRow("sign") << "+12" << 12u << false;
}

void TestServiceCore::pinIsTheControllersNumber()
{
    QFETCH(QString, typed);
    QFETCH(uint, code);
    QTEST(PinGuard::Matches(typed, true, code), "correct");
    QVERIFY(!PinGuard::Matches(typed, false, code)); // nothing is right before the controller's code
}

void TestServiceCore::pinGuardLocksOutGuessing()
{
    qint64 now = 1000;
    PinGuard guard([&now] { return now; });
    const auto wrongFiveTimes = [&guard] {
        for (int i = 0; i < PinGuard::triesBeforeLock; ++i)
            QCOMPARE(guard.Check(QStringLiteral("1"), true, 7), PinGuard::Verdict::Wrong);
    };
    // Entries without a code from the controller are no guesses.
    for (int i = 0; i < 10; ++i)
        QCOMPARE(guard.Check(QStringLiteral("7"), false, 0), PinGuard::Verdict::Wrong);
    QVERIFY(!guard.IsLocked());

    // 60 s, 120 s, 240 s: the right PIN is refused meanwhile.
    for (const int seconds : {60, 120, 240}) {
        wrongFiveTimes();
        QCOMPARE(guard.SecondsLeft(), seconds);
        now += seconds * 1000 - 1;
        QCOMPARE(guard.SecondsLeft(), 1);
        QCOMPARE(guard.Check(QStringLiteral("7"), true, 7), PinGuard::Verdict::Locked);
        now += 1;
        QVERIFY(!guard.IsLocked());
    }
    // Four wrong, then right: the count starts afresh, and so does the lock's length.
    for (int i = 0; i < PinGuard::triesBeforeLock - 1; ++i)
        guard.Check(QStringLiteral("1"), true, 7);
    QCOMPARE(guard.Check(QStringLiteral("07"), true, 7), PinGuard::Verdict::Correct);
    for (int i = 0; i < PinGuard::triesBeforeLock - 1; ++i)
        guard.Check(QStringLiteral("1"), true, 7);
    QVERIFY(!guard.IsLocked());
    guard.Check(QStringLiteral("1"), true, 7);
    QCOMPARE(guard.SecondsLeft(), 60);
}

QTEST_GUILESS_MAIN(TestServiceCore)
#include "tst_servicecore.moc"
