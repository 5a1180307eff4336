// hx3sim: plays the HX3 furnace controller against the touch panel over a pseudo-terminal.

#include "consoleinput.h"
#include "hx3controller.h"
#include "programstore.h"
#include "ptyline.h"
#include "sampleprograms.h"
#include "signalwatcher.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <cctype>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr int kUsageError = 2;
constexpr int kMaxGenerated = 9999;
// Beyond this one report interval of a second spans more than a day of furnace time.
constexpr double kMaxSpeed = 100000.0;
constexpr int kMaxDoorMs = 600000;
constexpr int kMaxUsbMs = 600000;

// Tests and scripts read us through a pipe, so every line goes out at once.
void printLine(const QString &line)
{
    const QByteArray bytes = line.toLocal8Bit() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

// Started with stdin/stdout/stderr closed, the pty would get one of those numbers and operator
// input or log lines would end up on the line. Park /dev/null there first.
void occupyClosedStandardFds()
{
    for (int fd = 0; fd <= 2; ++fd) {
        if (::fcntl(fd, F_GETFD) == -1)
            ::open("/dev/null", O_RDWR);
    }
}

int usageError(const QString &text)
{
    std::fprintf(stderr, "hx3sim: %s\n", qPrintable(text));
    return kUsageError;
}
} // namespace

int main(int argc, char *argv[])
{
    occupyClosedStandardFds();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("hx3sim"));
    // A reader of our output that goes away must not kill us before the summary and the
    // link clean-up; the failed write is simply lost.
    std::signal(SIGPIPE, SIG_IGN);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Plays the HX3 furnace controller against the panel over a pseudo-terminal."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption linkOption(QStringLiteral("link"),
                                        QStringLiteral("Create a symlink <path> to the slave side (removed at exit)."),
                                        QStringLiteral("path"));
    const QCommandLineOption verboseOption(QStringLiteral("verbose"),
                                           QStringLiteral("Print every frame sent (tx:) and received (rx:)."));
    const QCommandLineOption intervalOption(QStringLiteral("interval"),
                                            QStringLiteral("Milliseconds between time/date/temperature frames."),
                                            QStringLiteral("ms"), QStringLiteral("1000"));
    const QCommandLineOption unitOption(QStringLiteral("unit"),
                                        QStringLiteral("Temperature unit announced to the panel: c or f."),
                                        QStringLiteral("c|f"), QStringLiteral("c"));
    const QCommandLineOption langOption(QStringLiteral("lang"),
                                        QStringLiteral("Language keyword announced to the panel, e.g. spanisch."),
                                        QStringLiteral("keyword"), QStringLiteral("deutsch"));
    const QCommandLineOption runForOption(QStringLiteral("run-for"), QStringLiteral("Exit after this many seconds."),
                                          QStringLiteral("seconds"));
    const QCommandLineOption stepOption(QStringLiteral("step-ms"),
                                        QStringLiteral("Milliseconds between the self-test's results."),
                                        QStringLiteral("ms"), QStringLiteral("700"));
    const QCommandLineOption selftestFailOption(
        QStringLiteral("selftest-fail"), QStringLiteral("Every self-test fails in this row: door, heater or cooling."),
        QStringLiteral("row"));
    const QCommandLineOption commissioningOption(
        QStringLiteral("commissioning"),
        QStringLiteral("Start as a new furnace: the panel walks the operator through its set-up."));
    const QCommandLineOption programsOption(
        QStringLiteral("programs"),
        QStringLiteral("Start with the programs of <file> (one heatfile text a line) instead of the samples."),
        QStringLiteral("file"));
    const QCommandLineOption manyOption(
        QStringLiteral("many"),
        QStringLiteral("Add <n> generated programs (\"Programm 001\" ...) after the others, for long lists."),
        QStringLiteral("n"));
    const QCommandLineOption speedOption(
        QStringLiteral("speed"),
        QStringLiteral("Furnace time runs <n> times as fast: firings, cooling and the controller's clock."),
        QStringLiteral("n"), QStringLiteral("1"));
    const QCommandLineOption doorOption(
        QStringLiteral("door-ms"),
        QStringLiteral("Milliseconds the lift door takes to open or close, whatever the speed."), QStringLiteral("ms"),
        QStringLiteral("3000"));
    const QCommandLineOption serialOption(QStringLiteral("serial"),
                                          QStringLiteral("Serial number told to the panel (letters, digits, - and _)."),
                                          QStringLiteral("text"), QStringLiteral("S1-2304-0087"));
    const QCommandLineOption argonOption(QStringLiteral("argon"),
                                         QStringLiteral("An argon furnace: says argon==True at start-up."));
    const QCommandLineOption pinOption(QStringLiteral("pin"),
                                       QStringLiteral("Service PIN handed to the panel at start-up (1 to 8 digits)."),
                                       QStringLiteral("digits"), QStringLiteral("1234"));
    const QCommandLineOption usbOption(QStringLiteral("usb"),
                                       QStringLiteral("A stick is in the USB socket at start-up."));
    const QCommandLineOption usbMsOption(
        QStringLiteral("usb-ms"),
        QStringLiteral("Milliseconds a firmware or configuration update from the stick takes."), QStringLiteral("ms"),
        QStringLiteral("1500"));
    const QCommandLineOption updateOption(
        QStringLiteral("update"),
        QStringLiteral("Once the panel is up, send <file> as a panel update, block by block."), QStringLiteral("file"));
    const QCommandLineOption updateBlockOption(QStringLiteral("update-block"),
                                               QStringLiteral("Data bytes per update block (1-999)."),
                                               QStringLiteral("bytes"), QStringLiteral("512"));
    const QCommandLineOption updateDropOption(QStringLiteral("update-drop"),
                                              QStringLiteral("Percent of update blocks lost on the line."),
                                              QStringLiteral("pct"), QStringLiteral("0"));
    const QCommandLineOption updateCorruptOption(QStringLiteral("update-corrupt"),
                                                 QStringLiteral("Percent of update blocks arriving with damaged data."),
                                                 QStringLiteral("pct"), QStringLiteral("0"));
    const QCommandLineOption updateReorderOption(QStringLiteral("update-reorder"),
                                                 QStringLiteral("Percent of update blocks sent after their successor."),
                                                 QStringLiteral("pct"), QStringLiteral("0"));
    const QCommandLineOption updateSeedOption(QStringLiteral("update-seed"),
                                              QStringLiteral("Seed of the faults above; a seed repeats a run."),
                                              QStringLiteral("n"), QStringLiteral("1"));
    const QCommandLineOption updateBaudOption(
        QStringLiteral("update-baud"),
        QStringLiteral("Line speed the blocks are paced at; 0: as fast as the panel reads."), QStringLiteral("baud"),
        QStringLiteral("115200"));
    parser.addOptions({linkOption,          verboseOption,       intervalOption,    unitOption,
                       langOption,          runForOption,        stepOption,        selftestFailOption,
                       commissioningOption, programsOption,      manyOption,        speedOption,
                       doorOption,          argonOption,         pinOption,         usbOption,
                       usbMsOption,         updateOption,        updateBlockOption, updateDropOption,
                       updateCorruptOption, updateReorderOption, updateSeedOption,  updateBaudOption,
                       serialOption});

    if (!parser.parse(QCoreApplication::arguments()))
        return usageError(parser.errorText());
    if (parser.isSet(helpOption)) {
        printLine(parser.helpText());
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError(QStringLiteral("unexpected argument: %1").arg(parser.positionalArguments().first()));

    Hx3Controller::Options options;
    options.verbose = parser.isSet(verboseOption);

    bool ok = false;
    QString error;
    options.intervalMs = parser.value(intervalOption).toInt(&ok);
    if (!ok || options.intervalMs <= 0)
        return usageError(QStringLiteral("--interval needs a positive number of milliseconds, not \"%1\"")
                              .arg(parser.value(intervalOption)));

    const QString unit = parser.value(unitOption);
    if (unit != QLatin1String("c") && unit != QLatin1String("f"))
        return usageError(QStringLiteral("--unit must be c or f, not \"%1\"").arg(unit));
    options.unit = unit.toLatin1();

    options.language = parser.value(langOption).toUtf8();
    if (!Hx3Controller::isLanguageKeyword(options.language))
        return usageError(
            QStringLiteral("--lang needs a keyword without control characters, \"$\" or \"=\", not \"%1\"")
                .arg(parser.value(langOption)));

    options.stepMs = parser.value(stepOption).toInt(&ok);
    if (!ok || options.stepMs <= 0)
        return usageError(QStringLiteral("--step-ms needs a positive number of milliseconds, not \"%1\"")
                              .arg(parser.value(stepOption)));

    if (parser.isSet(selftestFailOption)) {
        options.selftestFailRow = parser.value(selftestFailOption).toLatin1();
        if (!Hx3Controller::isSelfTestRow(options.selftestFailRow))
            return usageError(QStringLiteral("--selftest-fail must be door, heater or cooling, not \"%1\"")
                                  .arg(parser.value(selftestFailOption)));
    }
    options.commissioning = parser.isSet(commissioningOption);
    options.argon = parser.isSet(argonOption);
    options.serial = parser.value(serialOption).toLatin1();
    if (options.serial.isEmpty() || options.serial.size() > 32 ||
        !std::all_of(options.serial.cbegin(), options.serial.cend(),
                     [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_'; }))
        return usageError(QStringLiteral("--serial needs 1 to 32 letters, digits, - or _"));

    const QString pin = parser.value(pinOption);
    pin.toUInt(&ok);
    if (!ok || pin.startsWith(QLatin1Char('+')) || pin.size() > 8)
        return usageError(QStringLiteral("--pin needs 1 to 8 digits, not \"%1\"").arg(pin));
    options.pin = pin.toLatin1();
    options.usbStick = parser.isSet(usbOption);
    options.usbMs = parser.value(usbMsOption).toInt(&ok);
    if (!ok || options.usbMs < 0 || options.usbMs > kMaxUsbMs)
        return usageError(QStringLiteral("--usb-ms needs 0 to %1 milliseconds, not \"%2\"")
                              .arg(kMaxUsbMs)
                              .arg(parser.value(usbMsOption)));

    options.speed = parser.value(speedOption).toDouble(&ok);
    if (!ok || !(options.speed > 0.0) || options.speed > kMaxSpeed)
        return usageError(QStringLiteral("--speed needs a factor above 0 and up to %1, not \"%2\"")
                              .arg(kMaxSpeed)
                              .arg(parser.value(speedOption)));

    options.doorMs = parser.value(doorOption).toInt(&ok);
    if (!ok || options.doorMs < 0 || options.doorMs > kMaxDoorMs)
        return usageError(QStringLiteral("--door-ms needs 0 to %1 milliseconds, not \"%2\"")
                              .arg(kMaxDoorMs)
                              .arg(parser.value(doorOption)));

    options.updateBlockBytes = parser.value(updateBlockOption).toInt(&ok);
    if (!ok || options.updateBlockBytes < 1 || options.updateBlockBytes > UpdateSender::maxBlockBytes)
        return usageError(QStringLiteral("--update-block needs 1 to %1 bytes, not \"%2\"")
                              .arg(UpdateSender::maxBlockBytes)
                              .arg(parser.value(updateBlockOption)));
    const QList<std::pair<const QCommandLineOption *, double *>> percents = {
        {&updateDropOption, &options.updateFaults.dropPercent},
        {&updateCorruptOption, &options.updateFaults.corruptPercent},
        {&updateReorderOption, &options.updateFaults.reorderPercent}};
    for (const auto &[option, value] : percents) {
        *value = parser.value(*option).toDouble(&ok);
        if (!ok || *value < 0.0 || *value > 50.0)
            return usageError(QStringLiteral("--%1 needs a percentage from 0 to 50, not \"%2\"")
                                  .arg(option->names().first(), parser.value(*option)));
    }
    options.updateFaults.seed = parser.value(updateSeedOption).toUInt(&ok);
    if (!ok)
        return usageError(
            QStringLiteral("--update-seed needs a whole number, not \"%1\"").arg(parser.value(updateSeedOption)));
    options.updateBaud = parser.value(updateBaudOption).toInt(&ok);
    if (!ok || options.updateBaud < 0)
        return usageError(
            QStringLiteral("--update-baud needs 0 or a line speed, not \"%1\"").arg(parser.value(updateBaudOption)));
    if (parser.isSet(updateOption) && !QFileInfo(parser.value(updateOption)).isReadable())
        return usageError(QStringLiteral("--update: cannot read \"%1\"").arg(parser.value(updateOption)));

    // Said once the line is up, so that "slave:" stays the first line for whoever reads us.
    QStringList programNotes;
    if (parser.isSet(programsOption)) {
        ProgramStore store;
        if (!store.loadFile(parser.value(programsOption), &programNotes, &error))
            return usageError(QStringLiteral("--programs: ") + error);
        options.programs = store.programs();
    }
    if (parser.isSet(manyOption)) {
        const int count = parser.value(manyOption).toInt(&ok);
        if (!ok || count < 0 || count > kMaxGenerated)
            return usageError(QStringLiteral("--many needs a count from 0 to %1, not \"%2\"")
                                  .arg(kMaxGenerated)
                                  .arg(parser.value(manyOption)));
        ProgramStore store(options.programs);
        const int before = store.size();
        for (const heatfile::Program &program : sampleprograms::generated(count))
            store.put(program);
        if (store.size() != before + count)
            programNotes.append(
                QStringLiteral("programs: %1 generated ones took the place of programs of the same name")
                    .arg(before + count - store.size()));
        options.programs = store.programs();
    }

    int runForMs = -1;
    if (parser.isSet(runForOption)) {
        const double seconds = parser.value(runForOption).toDouble(&ok);
        if (!ok || !(seconds > 0.0) || seconds > 1.0e6)
            return usageError(QStringLiteral("--run-for needs a positive number of seconds, not \"%1\"")
                                  .arg(parser.value(runForOption)));
        runForMs = static_cast<int>(seconds * 1000.0 + 0.5);
        if (runForMs < 1)
            runForMs = 1;
    }

    PtyLine line;
    if (!line.open(&error)) {
        std::fprintf(stderr, "hx3sim: cannot create the pseudo-terminal: %s\n", qPrintable(error));
        return 1;
    }
    if (parser.isSet(linkOption)) {
        switch (line.createLink(parser.value(linkOption), &error)) {
        case PtyLine::LinkResult::Created: break;
        case PtyLine::LinkResult::NotASymlink: return usageError(error);
        case PtyLine::LinkResult::Failed:
            std::fprintf(stderr, "hx3sim: cannot create the link: %s\n", qPrintable(error));
            return 1;
        }
    }
    // Announced once the link is in place: whoever reads this line may open the link at once.
    printLine(QStringLiteral("slave: %1").arg(line.slavePath()));
    for (const QString &note : qAsConst(programNotes))
        printLine(note);

    Hx3Controller controller(&line, options);
    QObject::connect(&controller, &Hx3Controller::message, &printLine);
    QObject::connect(&controller, &Hx3Controller::quitRequested, &app, [] { QCoreApplication::exit(0); });

    ConsoleInput console(0);
    QObject::connect(&console, &ConsoleInput::lineReceived, &controller, &Hx3Controller::handleCommand);

    SignalWatcher signalWatcher;
    QObject::connect(&signalWatcher, &SignalWatcher::terminationRequested, &app, [] { QCoreApplication::exit(0); });

    if (runForMs > 0)
        QTimer::singleShot(runForMs, &app, [] { QCoreApplication::exit(0); });

    controller.start();
    // Queued behind the start-up: it goes out once the panel is up.
    if (parser.isSet(updateOption))
        controller.handleCommand(QStringLiteral("update ") + parser.value(updateOption));
    app.exec();

    printLine(controller.summaryLine());
    line.removeLink();
    return 0;
}
