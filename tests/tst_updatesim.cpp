// A whole panel update from the controller simulator over a pseudo-terminal, with blocks
// lost, damaged and swapped on the way: the file arrives byte for byte, the panel's own
// unpacking script installs it in a home of its own and reports "done".
#include "communication/communicator.h"
#include "communication/messagehandler.h"
#include "simulatorprocess.h"
#include "updatefiles.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Communication::Communicator;
using ovra::Communication::MessageHandler;

namespace {

QByteArray noise(int size, quint32 seed)
{
    QByteArray data(size, Qt::Uninitialized); // size: a multiple of 4
    QRandomGenerator(seed).fillRange(reinterpret_cast<quint32 *>(data.data()), qsizetype(size / 4));
    return data;
}

} // namespace

class TestUpdateSim : public QObject
{
    Q_OBJECT

private slots:
    void updateSurvivesLostDamagedAndSwappedBlocks();
};

void TestUpdateSim::updateSurvivesLostDamagedAndSwappedBlocks()
{
    QVERIFY2(!UpdateFiles::Python().isEmpty(), "python3 is needed");
    qputenv("OVRA_REBOOT_COMMAND", "true");

    QTemporaryDir root;
    QTemporaryDir controller; // the simulator's side: where the update comes from
    const QString home = root.filePath(QStringLiteral("home"));
    const QString downloads = home + QStringLiteral("/Downloads");
    QVERIFY(UpdateFiles::MakeHome(home));
    QVERIFY(UpdateFiles::Write(root.filePath(QStringLiteral("outside/keep.txt")), "not to be touched"));

    // A few hundred kilobytes that do not compress, as a program does not much.
    const QByteArray program = noise(260 * 1024, 7);
    const QByteArray translation = noise(20 * 1024, 8);
    const QString zip = controller.filePath(QStringLiteral("update.zip"));
    QVERIFY(UpdateFiles::MakeZip(zip, {{"build/ovra-panel", program}, {"translations/ovra_de.qm", translation}}));
    const QByteArray archive = UpdateFiles::Read(zip);
    QVERIFY(archive.size() > 250 * 1024);
    const auto outsideHome = UpdateFiles::Snapshot(root.filePath(QStringLiteral("outside")));

    Simulator sim(QStringList{QStringLiteral("--update"), zip} +
                  QStringLiteral("--update-block 960 --update-drop 5 --update-corrupt 5 --update-reorder 2 "
                                 "--update-seed 11 --update-baud 0")
                      .split(QLatin1Char(' ')));
    const QString slave = sim.SlavePath();
    QVERIFY(!slave.isEmpty());
    const auto printed = [&sim] { return sim.Lines(QRegularExpression()).join(QLatin1Char('\n')).toLocal8Bit(); };

    MessageHandler handler{ovra::GlobalElements::Paths(home)};
    handler.SetUnpackDelayMs(200);
    handler.SetUnpackInterpreters({UpdateFiles::Python()});
    QByteArray received;
    // Queued: runs once the last block's frame is handled and the file closed, before the
    // script takes the file away.
    connect(
        &handler, &MessageHandler::SignalUpdateProgress, this,
        [&](const QString &progress) {
            if (progress == QLatin1String("100%"))
                received = UpdateFiles::Read(downloads + QStringLiteral("/outfile.txt"));
        },
        Qt::QueuedConnection);
    QSignalSpy usb(&handler, &MessageHandler::SignalUSB);
    Communicator link(&handler, nullptr, slave);
    QVERIFY(link.IsPortOpen());

    // A real event loop, as the panel runs: QTRY_* sleeps between its looks, long enough for
    // a block's end byte to reach the port together with its body, which drops the block.
    QVERIFY2(usb.wait(120000), printed().constData());
    const QString finished = sim.Lines(QRegularExpression(QStringLiteral("^update: panel has the file"))).value(0);
    QVERIFY2(!finished.isEmpty(), printed().constData());
    QVERIFY2(received == archive, qPrintable(finished));
    QCOMPARE(usb.at(0).at(0).toString(), QStringLiteral("done"));

    // The faults really happened.
    const QRegularExpressionMatch faults =
        QRegularExpression(QStringLiteral("(\\d+) lost, (\\d+) damaged, (\\d+) sent again")).match(finished);
    QVERIFY2(faults.hasMatch(), qPrintable(finished));
    QVERIFY2(faults.captured(1).toInt() > 0 && faults.captured(2).toInt() > 0, qPrintable(finished));

    QCOMPARE(UpdateFiles::Read(downloads + QStringLiteral("/build/ovra-panel")), program);
    QCOMPARE(UpdateFiles::Read(downloads + QStringLiteral("/translations/ovra_de.qm")), translation);
    QCOMPARE(
        QDir(downloads).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        (QStringList{"build", "build_previous", "decode_and_unzip_lin.py", "translations", "translations_previous"}));
    QCOMPARE(UpdateFiles::Read(downloads + QStringLiteral("/build_previous/ovra-panel")), QByteArray("old program"));
    QCOMPARE(QDir(root.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), (QStringList{"home", "outside"}));
    QCOMPARE(UpdateFiles::Snapshot(root.filePath(QStringLiteral("outside"))), outsideHome);
    // The line is served as before.
    QVERIFY(!handler.IsUpdateActive());
}

QTEST_GUILESS_MAIN(TestUpdateSim)
#include "tst_updatesim.moc"
