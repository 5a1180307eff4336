// The panel's command line: defaults are the furnace's own, bad input exits with code 2, the
// records export over a shell.
#include "app/commandline.h"
#include "app/pageinterface.h"
#include "app/paths.h"
#include "records/firingstore.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using ovra::GlobalElements::CommandLine;
using ovra::GlobalElements::PanelOptions;
using ovra::GlobalElements::Paths;

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void defaultsAndOptions();
    void badInput_data();
    void badInput();
    void homeStandsForTheDeviceHome();
    void processExitCodes();
};

void TestCommandLine::defaultsAndOptions()
{
    PanelOptions options;
    QString text;
    QCOMPARE(CommandLine::Parse({QStringLiteral("ovra-panel")}, options, text), CommandLine::Outcome::Run);
    QCOMPARE(options.port, QStringLiteral("/dev/ttyAMA0"));
    QCOMPARE(options.home, QStringLiteral("/home/pi"));
    QCOMPARE(options.keyPort, quint16(6666));

    QCOMPARE(CommandLine::Parse({QStringLiteral("ovra-panel"), QStringLiteral("--port"), QStringLiteral("/tmp/line"),
                                 QStringLiteral("--home=/tmp/h"), QStringLiteral("--key-port"), QStringLiteral("7001")},
                                options, text),
             CommandLine::Outcome::Run);
    QCOMPARE(options.port, QStringLiteral("/tmp/line"));
    QCOMPARE(options.home, QStringLiteral("/tmp/h"));
    QCOMPARE(options.keyPort, quint16(7001));
    // --version is checked on the real program below.
    QCOMPARE(CommandLine::Parse({QStringLiteral("ovra-panel"), QStringLiteral("--help")}, options, text),
             CommandLine::Outcome::ExitSuccess);
    QVERIFY(text.contains(QStringLiteral("--key-port")));
}

void TestCommandLine::badInput_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--colour")} << "Unknown option";
    QTest::newRow("port not a number") << QStringList{QStringLiteral("--key-port"), QStringLiteral("x")}
                                       << "--key-port";
    QTest::newRow("port too large") << QStringList{QStringLiteral("--key-port=65536")} << "--key-port";
    QTest::newRow("negative port") << QStringList{QStringLiteral("--key-port=-1")} << "--key-port";
    QTest::newRow("missing value") << QStringList{QStringLiteral("--port")} << "Missing value";
    QTest::newRow("empty home") << QStringList{QStringLiteral("--home=")} << "non-empty";
    QTest::newRow("positional") << QStringList{QStringLiteral("extra")} << "Unexpected argument";
}

void TestCommandLine::badInput()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    PanelOptions options;
    const PanelOptions before;
    QString text;
    args.prepend(QStringLiteral("ovra-panel"));
    QCOMPARE(CommandLine::Parse(args, options, text), CommandLine::Outcome::ExitUsageError);
    QVERIFY2(text.contains(message), qPrintable(text));
    QCOMPARE(options.port, before.port); // nothing half-applied
    QCOMPARE(options.keyPort, before.keyPort);
}

void TestCommandLine::homeStandsForTheDeviceHome()
{
    const Paths sandbox(QStringLiteral("/tmp/panel-home/"));
    // Paths below it: the update and start-up script tests, in their own homes.
    QCOMPARE(sandbox.Resolve(QStringLiteral("/home/pi")), QStringLiteral("/tmp/panel-home"));
    QCOMPARE(sandbox.Resolve(QStringLiteral("/home/pink/x")), QStringLiteral("/home/pink/x"));
    QCOMPARE(sandbox.Resolve(QStringLiteral("../logs")), QStringLiteral("../logs"));
    // Two homes side by side: nothing process-wide leaks from one to the other.
    const Paths device(QString{});
    QCOMPARE(device.Resolve(QStringLiteral("/home/pi/x")), QStringLiteral("/home/pi/x"));
    QCOMPARE(sandbox.Home(), QStringLiteral("/tmp/panel-home"));
}

void TestCommandLine::processExitCodes()
{
    const QString panel = QStringLiteral(OVRA_PANEL_BINARY);
    QProcess process;
    process.start(panel, {QStringLiteral("--version")});
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray(OVRA_VERSION_TEXT "\n"));

    process.start(panel, {QStringLiteral("--key-port"), QStringLiteral("many")});
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), CommandLine::usageErrorExitCode);
    QVERIFY(process.readAllStandardError().contains("--key-port"));
    QVERIFY(process.readAllStandardOutput().isEmpty());

    // The records over a shell: a firing cut off by a kill is exported as interrupted, with
    // its samples and report; a folder that cannot be made gets one line on stderr.
    QTemporaryDir home;
    {
        ovra::Records::FiringStore store(ovra::Records::FiringStore::FileIn(home.path()));
        ovra::Records::FiringStart cut;
        cut.program = QStringLiteral("Krone, \"schnell\"");
        store.Begin(cut);
        store.AddSample(0, 21.5);
    }
    const QString out = home.path() + QStringLiteral("/stick");
    process.start(panel, {QStringLiteral("--home"), home.path(), QStringLiteral("--export-records"), out});
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), 0);
    QFile csv(out + QStringLiteral("/firings.csv"));
    QVERIFY(csv.open(QIODevice::ReadOnly));
    QVERIFY(csv.readAll().contains(",\"Krone, \"\"schnell\"\"\",,0,interrupted,,\r\n"));
    QFile pdf(out + QStringLiteral("/firing-1.pdf"));
    QVERIFY(pdf.open(QIODevice::ReadOnly) && pdf.read(5) == "%PDF-");
    process.start(panel, {QStringLiteral("--home"), home.path(), QStringLiteral("--export-records"),
                          QStringLiteral("/proc/version/records")});
    QVERIFY(process.waitForFinished(10000));
    QVERIFY(process.exitCode() != 0);
    // The reason is the first line (a sanitizer build adds its own summary after it).
    QCOMPARE(process.readAllStandardError().split('\n').first(), QByteArray("cannot create /proc/version/records"));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
