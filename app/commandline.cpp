#include "app/commandline.h"

#include "app/pageinterface.h"

#include <QCommandLineParser>

namespace ovra {
namespace GlobalElements {

PanelOptions PanelOptions::Sandbox(const QString &home)
{
    PanelOptions options;
    options.port = home + QStringLiteral("/no-line");
    options.home = home;
    options.keyPort = 0;
    return options;
}

CommandLine::Outcome CommandLine::Parse(const QStringList &arguments, PanelOptions &options, QString &output)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Operating panel of the sintering furnace. Talks to the furnace controller "
                       "over a serial line."));
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Show this help and exit."));
    const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("version")},
                                           QStringLiteral("Show the panel version and exit."));
    const QCommandLineOption portOption(QStringLiteral("port"),
                                        QStringLiteral("Serial device of the controller "
                                                       "(default /dev/ttyAMA0)."),
                                        QStringLiteral("path"), options.port);
    const QCommandLineOption homeOption(QStringLiteral("home"),
                                        QStringLiteral("Folder that stands for /home/pi: scripts, "
                                                       "Downloads, translations, update file "
                                                       "(default /home/pi)."),
                                        QStringLiteral("dir"), options.home);
    const QCommandLineOption keyPortOption(QStringLiteral("key-port"),
                                           QStringLiteral("TCP port of the display-key server "
                                                          "(default 6666; 0: any free port)."),
                                           QStringLiteral("n"), QString::number(options.keyPort));
    const QCommandLineOption quitOption(QStringLiteral("quit-after-start"),
                                        QStringLiteral("Leave as soon as the window is shown "
                                                       "(for measuring start-up)."));
    const QCommandLineOption selftestDelayOption(QStringLiteral("selftest-delay-ms"),
                                                 QStringLiteral("Wait before the automatic self-test "
                                                                "(default 7000)."),
                                                 QStringLiteral("ms"), QString::number(options.selftestDelayMs));
    const QCommandLineOption lineWatchdogOption(QStringLiteral("line-watchdog-ms"),
                                                QStringLiteral("Silence after which the serial line is "
                                                               "closed and reopened (default 20000)."),
                                                QStringLiteral("ms"), QString::number(options.lineWatchdogMs));
    const QCommandLineOption usbDirOption(QStringLiteral("usb-dir"),
                                          QStringLiteral("Folder that stands for the USB stick "
                                                         "(default: the mounted stick)."),
                                          QStringLiteral("dir"));
    const QCommandLineOption exportOption(QStringLiteral("export-records"),
                                          QStringLiteral("Write the firing records to a folder and exit."),
                                          QStringLiteral("dir"));
    parser.addOptions({helpOption, versionOption, portOption, homeOption, keyPortOption, quitOption,
                       selftestDelayOption, usbDirOption, lineWatchdogOption, exportOption});

    if (!parser.parse(arguments)) {
        output = parser.errorText() + QStringLiteral("\nTry --help.\n");
        return Outcome::ExitUsageError;
    }
    if (parser.isSet(helpOption)) {
        output = parser.helpText();
        return Outcome::ExitSuccess;
    }
    if (parser.isSet(versionOption)) {
        output = Pageinterface::versionInfo + QLatin1Char('\n');
        return Outcome::ExitSuccess;
    }
    if (!parser.positionalArguments().isEmpty()) {
        output =
            QStringLiteral("Unexpected argument: %1\nTry --help.\n").arg(parser.positionalArguments().constFirst());
        return Outcome::ExitUsageError;
    }

    bool ok = false;
    const QString keyPortText = parser.value(keyPortOption);
    const uint keyPort = keyPortText.toUInt(&ok);
    // 0 lets the system choose a free port: tests run side by side without a fixed one.
    if (!ok || keyPort > 65535) {
        output = QStringLiteral("Invalid --key-port '%1': expected a TCP port from 0 to 65535.\n").arg(keyPortText);
        return Outcome::ExitUsageError;
    }
    const QString delayText = parser.value(selftestDelayOption);
    const int selftestDelay = delayText.toInt(&ok);
    if (!ok || selftestDelay < 0) {
        output = QStringLiteral("Invalid --selftest-delay-ms '%1': expected milliseconds.\n").arg(delayText);
        return Outcome::ExitUsageError;
    }
    const QString watchdogText = parser.value(lineWatchdogOption);
    const int lineWatchdog = watchdogText.toInt(&ok);
    if (!ok || lineWatchdog <= 0) {
        output = QStringLiteral("Invalid --line-watchdog-ms '%1': expected milliseconds.\n").arg(watchdogText);
        return Outcome::ExitUsageError;
    }
    const QString port = parser.value(portOption);
    const QString home = parser.value(homeOption);
    if (port.isEmpty() || home.isEmpty()) {
        output = QStringLiteral("--port and --home need a non-empty path.\n");
        return Outcome::ExitUsageError;
    }

    options.port = port;
    options.home = home;
    options.keyPort = static_cast<quint16>(keyPort);
    options.quitAfterStart = parser.isSet(quitOption);
    options.selftestDelayMs = selftestDelay;
    options.lineWatchdogMs = lineWatchdog;
    options.usbDir = parser.value(usbDirOption);
    options.exportRecordsDir = parser.value(exportOption);
    return Outcome::Run;
}

} // namespace GlobalElements
} // namespace ovra
