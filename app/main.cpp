#include "app/buildproof.h"
#include "app/commandline.h"
#include "app/logutils.h"
#include "app/mainwindow.h"
#include "app/servicewatchdog.h"
#include "records/firingexport.h"
#include "records/firingreport.h"

#include <QApplication>
#include <QGuiApplication>
#include <QTimer>

#include <cstdio>

namespace {

bool asksForInformationOnly(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg == "-h" || arg == "--help" || arg == "-v" || arg == "--version" || arg.startsWith("--export-records"))
            return true;
    }
    return false;
}

int printAndExit(ovra::GlobalElements::CommandLine::Outcome outcome, const QString &text)
{
    using ovra::GlobalElements::CommandLine;
    if (outcome == CommandLine::Outcome::ExitSuccess) {
        std::fputs(qPrintable(text), stdout);
        return 0;
    }
    std::fputs(qPrintable(text), stderr);
    return CommandLine::usageErrorExitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace ovra::GlobalElements;

    // Help, version and the export must work on a machine without a display. The export's
    // reports need fonts, hence a GUI application, but never the panel's display.
    if (asksForInformationOnly(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // stderr carries the one-line reason only, not the toolkit's remarks on the session.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        QGuiApplication app(argc, argv);
        PanelOptions options;
        QString text;
        const CommandLine::Outcome outcome = CommandLine::Parse(app.arguments(), options, text);
        if (outcome != CommandLine::Outcome::Run)
            return printAndExit(outcome, text);
        // Over a shell the furnace cannot be asked: its data stays open, the panel's is known.
        ovra::Settings::DeviceReport::Data device;
        device.softwareVersion = Pageinterface::versionInfo;
        QString error;
        if (!ovra::Records::ExportFirings(options.home, options.exportRecordsDir, &error, true,
                                          ovra::Records::FiringReport::Writer(device, false))) {
            std::fputs(qPrintable(error + QLatin1Char('\n')), stderr);
            return 1;
        }
        return 0;
    }

    QApplication app(argc, argv);
    Q_INIT_RESOURCE(resources);
    PanelOptions options;
    QString text;
    const CommandLine::Outcome outcome = CommandLine::Parse(app.arguments(), options, text);
    if (outcome != CommandLine::Outcome::Run)
        return printAndExit(outcome, text);

    initLogging();

    auto *window = new ovra::Mainwindow::MainWindow(options);
    // A build whose window came up and whose event loop runs has proved itself to the start-up
    // script. Waiting for the controller's first page instead would make a furnace whose
    // controller stays silent for two boots fall back to the older build for no fault of this one.
    BuildProof proof(BuildProof::ManagedFolder(QCoreApplication::applicationDirPath(), options.home));
    window->show();
    QTimer::singleShot(0, &proof, &BuildProof::OnPageShown);
    ServiceWatchdog watchdog;
    if (options.quitAfterStart)
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    const int result = app.exec();
    delete window;
    return result;
}
