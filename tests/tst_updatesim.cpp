// A whole panel update from the controller simulator over a pseudo-terminal, with blocks
// lost, damaged and swapped on the way: the file arrives byte for byte, the panel's own
// unpacking script installs it in a home of its own and reports "done".
#include "communication/communicator.h"
#include "communication/messagehandler.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Communication::Communicator;
using ovra::Communication::MessageHandler;

namespace {

QString python()
{
    const QString system = QStandardPaths::findExecutable(QStringLiteral("python3"), {QStringLiteral("/usr/bin")});
    return system.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("python3")) : system;
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

QMap<QString, QByteArray> snapshot(const QString &root)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(root, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(root).relativeFilePath(path), QFileInfo(path).isDir() ? QByteArray("<dir>") : readFile(path));
    }
    return files;
}

QByteArray noise(int size, quint32 seed)
{
    QByteArray data(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        seed = seed * 1664525u + 1013904223u;
        data[i] = char(seed >> 24);
    }
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
    QVERIFY2(!python().isEmpty(), "python3 is needed");
    qputenv("OVRA_REBOOT_COMMAND", "true");

    QTemporaryDir root;
    QTemporaryDir controller; // the simulator's side: where the update comes from
    const QString home = root.filePath(QStringLiteral("home"));
    const QString downloads = home + QStringLiteral("/Downloads");
    QVERIFY(writeFile(downloads + QStringLiteral("/build/ovra-panel"), "old program"));
    QVERIFY(writeFile(downloads + QStringLiteral("/translations/ovra_en.qm"), "old translation"));
    QVERIFY(QFile::copy(QStringLiteral(OVRA_SOURCE_DIR "/resources/scripts/decode_and_unzip_lin.py"),
                        downloads + QStringLiteral("/decode_and_unzip_lin.py")));
    QVERIFY(writeFile(root.filePath(QStringLiteral("outside/keep.txt")), "not to be touched"));

    // A few hundred kilobytes that do not compress, as a program does not much.
    const QByteArray program = noise(260 * 1024, 7);
    const QByteArray translation = noise(20 * 1024, 8);
    QVERIFY(writeFile(controller.filePath(QStringLiteral("p")), program));
    QVERIFY(writeFile(controller.filePath(QStringLiteral("t")), translation));
    const QString zip = controller.filePath(QStringLiteral("update.zip"));
    QCOMPARE(QProcess::execute(python(), {QStringLiteral("-c"),
                                          QStringLiteral("import sys, zipfile\n"
                                                         "z = zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED)\n"
                                                         "z.write(sys.argv[2], 'build/ovra-panel')\n"
                                                         "z.write(sys.argv[3], 'translations/ovra_de.qm')\n"
                                                         "z.close()\n"),
                                          zip, controller.filePath(QStringLiteral("p")),
                                          controller.filePath(QStringLiteral("t"))}),
             0);
    const QByteArray archive = readFile(zip);
    QVERIFY(archive.size() > 250 * 1024);
    const auto outsideHome = snapshot(root.filePath(QStringLiteral("outside")));

    QProcess sim;
    sim.start(QStringLiteral(OVRA_HX3SIM_BINARY),
              {QStringLiteral("--interval"), QStringLiteral("200"),
               QStringLiteral("--update"), zip, QStringLiteral("--update-block"), QStringLiteral("960"),
               QStringLiteral("--update-drop"), QStringLiteral("5"), QStringLiteral("--update-corrupt"), QStringLiteral("5"),
               QStringLiteral("--update-reorder"), QStringLiteral("2"), QStringLiteral("--update-seed"), QStringLiteral("11"),
               QStringLiteral("--update-baud"), QStringLiteral("0")});
    QVERIFY(sim.waitForStarted());
    QStringList printed;
    // Read as it comes: a full pipe would stall the simulator.
    connect(&sim, &QProcess::readyReadStandardOutput, this, [&] {
        while (sim.canReadLine())
            printed << QString::fromUtf8(sim.readLine()).trimmed();
    });
    auto lineStartingWith = [&](const QString &prefix) {
        for (const QString &line : qAsConst(printed))
            if (line.startsWith(prefix))
                return line;
        return QString();
    };
    QTRY_VERIFY_WITH_TIMEOUT(!lineStartingWith(QStringLiteral("slave: ")).isEmpty(), 5000);

    MessageHandler handler{ovra::GlobalElements::Paths(home)};
    handler.SetUnpackDelayMs(200);
    handler.SetUnpackInterpreters({python()});
    QByteArray received;
    // Queued: runs once the last block's frame is handled and the file closed, before the
    // script takes the file away.
    connect(&handler, &MessageHandler::SignalUpdateProgress, this, [&](const QString &progress) {
        if (progress == QLatin1String("100%"))
            received = readFile(downloads + QStringLiteral("/outfile.txt"));
    }, Qt::QueuedConnection);
    QSignalSpy usb(&handler, &MessageHandler::SignalUSB);
    Communicator link(&handler, nullptr, lineStartingWith(QStringLiteral("slave: ")).mid(7));
    QVERIFY(link.IsPortOpen());

    // A real event loop, as the panel runs: QTRY_* sleeps between its looks, long enough for
    // a block's end byte to reach the port together with its body, which drops the block.
    QVERIFY2(usb.wait(120000), qPrintable(printed.join(QLatin1Char('\n'))));
    const QString finished = lineStartingWith(QStringLiteral("update: panel has the file"));
    QVERIFY2(!finished.isEmpty(), qPrintable(printed.join(QLatin1Char('\n'))));
    QVERIFY2(received == archive, qPrintable(finished));
    QCOMPARE(usb.at(0).at(0).toString(), QStringLiteral("done"));

    // The faults really happened.
    const QRegularExpressionMatch faults =
        QRegularExpression(QStringLiteral("(\\d+) lost, (\\d+) damaged, (\\d+) sent again")).match(finished);
    QVERIFY2(faults.hasMatch(), qPrintable(finished));
    QVERIFY2(faults.captured(1).toInt() > 0 && faults.captured(2).toInt() > 0, qPrintable(finished));

    QCOMPARE(readFile(downloads + QStringLiteral("/build/ovra-panel")), program);
    QCOMPARE(readFile(downloads + QStringLiteral("/translations/ovra_de.qm")), translation);
    QCOMPARE(QDir(downloads).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{"build", "decode_and_unzip_lin.py", "translations"}));
    QCOMPARE(QDir(root.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), (QStringList{"home", "outside"}));
    QCOMPARE(snapshot(root.filePath(QStringLiteral("outside"))), outsideHome);
    // The line is served as before.
    QVERIFY(!handler.IsUpdateActive());

    sim.write("quit\n");
    QVERIFY(sim.waitForFinished(5000));
}

QTEST_GUILESS_MAIN(TestUpdateSim)
#include "tst_updatesim.moc"
