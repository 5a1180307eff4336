#pragma once

#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {

// What the panel is started with. The defaults are those of the furnace itself.
struct PanelOptions
{
    QString port = QStringLiteral("/dev/ttyAMA0");
    QString home = QStringLiteral("/home/pi");
    quint16 keyPort = 6666;
    // Development aid: leave the event loop once the window has been shown, so that
    // start-up time and memory can be measured from outside.
    bool quitAfterStart = false;
    // Development aid: wait before the automatic self-test (the furnace waits 7000 ms).
    int selftestDelayMs = 7000;
    // Development aid: the serial line's silence watchdog (the furnace: 20000 ms).
    int lineWatchdogMs = 20000;
    // How long the start and door buttons stay locked after a press (the furnace: 1000 ms).
    int playLockMs = 1000;
    // Development aid: a folder that stands for the USB stick (empty: the mounted stick).
    QString usbDir;
    // Set: the firing records are written to this folder and the panel exits.
    QString exportRecordsDir;
    // How long the USB menu waits for the controller's next word on a firmware or
    // configuration update before it reports failure.
    int usbAnswerTimeoutMs = 120000;

    // For running the panel away from the furnace (tests, benchmarks, tools): no serial
    // device, any free display-key port, `home` standing for the device's home.
    static PanelOptions Sandbox(const QString &home);
};

class CommandLine
{
public:
    enum class Outcome { Run, ExitSuccess, ExitUsageError };

    // Parses argv (argv[0] included). On ExitSuccess the text for stdout (help or version)
    // is in `output`; on ExitUsageError the message for stderr is there.
    static Outcome Parse(const QStringList &arguments, PanelOptions &options, QString &output);

    static constexpr int usageErrorExitCode = 2;
};

} // namespace GlobalElements
} // namespace ovra
