// ovra-soak: runs the real panel against a controller line that misbehaves in every way the
// furnace's line can (noise, wrong checksums, frames torn across reads, the cable pulled and
// put back, a controller that goes quiet), seeded so a failing run can be repeated exactly.
// Prints its figures and exits 0 only when every frame sent outside a fault was answered,
// the panel never died, its memory stayed flat and its log folder never held more than six
// files.
#include "simframe.h"
#include "soakline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

namespace {

constexpr int kMaxLogFiles = 6;
// Bytes per second on a 115200-baud line (8N1: ten bits a byte).
constexpr double kLineBytesPerSecond = 11520.0;

enum class Reply { Ack, Nack, None };

struct Figures
{
    qint64 sent = 0, answered = 0, unanswered = 0, wrongAnswers = 0, endByteResent = 0;
    qint64 garbage = 0, badChecksum = 0, split = 0, unplugged = 0, silences = 0;
    qint64 bytes = 0, maxRecoveryMs = 0, maxLogFiles = 0;
    QList<double> rssMb;
};

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

double residentMb(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return -1;
}

double mean(const QList<double> &values)
{
    double sum = 0;
    for (double v : values)
        sum += v;
    return values.isEmpty() ? 0 : sum / values.size();
}

class Soak
{
public:
    Soak(SoakLine &line, QProcess &panel, quint32 seed, int settleUs)
        : m_line(line), m_panel(panel), m_random(seed), m_settleUs(settleUs)
    {
    }

    Figures figures;

    QList<QByteArray> Body()
    {
        const int n = int(figures.sent);
        return {"time==" + QByteArray::number(1000 + n % 1360).right(4), "date==20261123",
                "temp==" + QByteArray::number(293 + n % 1300)};
    }

    // One frame as the controller sends it: start and content, then the end byte alone.
    // `patienceMs`: how long a frame may wait for its answer once its end byte went again.
    Reply Send(const QByteArray &frame, int pieces = 1, int patienceMs = 5000)
    {
        m_received.clear();
        m_line.Read(m_received, 0);
        m_received.clear();
        // No faster than the line: a frame leaves once the bytes before it had time to.
        if (!m_lineClock.isValid())
            m_lineClock.start();
        const qint64 dueUs = qint64(double(figures.bytes) * 1e6 / kLineBytesPerSecond);
        const qint64 nowUs = m_lineClock.nsecsElapsed() / 1000;
        if (dueUs > nowUs)
            QThread::usleep(ulong(dueUs - nowUs));
        const QByteArray head = frame.left(frame.size() - 1);
        const int step = (head.size() + pieces - 1) / pieces;
        for (int at = 0; at < head.size(); at += step) {
            if (!m_line.WriteAndDrain(head.mid(at, step), 1000))
                return Reply::None;
            QThread::usleep(ulong(m_settleUs));
        }
        m_line.WriteAndDrain(QByteArray(1, simframe::kEtx), 1000);
        figures.bytes += frame.size();
        ++figures.sent;
        Reply reply = Await(200);
        if (reply == Reply::None) {
            // Head and end byte were read in one go: a lone end byte dispatches what is held.
            // The wait is long because a loaded machine can hold the panel back for a second
            // or more; a late answer is still an answer, only none at all counts against it.
            ++figures.endByteResent;
            m_line.WriteAndDrain(QByteArray(1, simframe::kEtx), 1000);
            reply = Await(patienceMs);
        }
        return reply;
    }

    Reply Await(int waitMs)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < waitMs) {
            m_line.Read(m_received, 20);
            const QList<QByteArray> frames = simframe::takeFrames(m_received);
            if (!frames.isEmpty()) {
                const simframe::Answer answer = simframe::parseAnswer(frames.last());
                return answer.valid && !answer.nack ? Reply::Ack : Reply::Nack;
            }
        }
        return Reply::None;
    }

    // A plain frame that must be answered "ack".
    bool Clean(int pieces = 1)
    {
        const Reply reply = Send(simframe::buildFrame(Body()), pieces);
        if (reply == Reply::Ack)
            ++figures.answered;
        else if (reply == Reply::None)
            ++figures.unanswered;
        else
            ++figures.wrongAnswers;
        return reply == Reply::Ack;
    }

    // Frames until one is answered; how long that took. The frames sent meanwhile fall in the
    // fault and are not counted as unanswered.
    qint64 Recover(int limitMs)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < limitMs) {
            // Short patience: while the line is still being reset, frames are lost by design.
            if (Send(simframe::buildFrame(Body()), 1, 1000) == Reply::Ack) {
                ++figures.answered;
                figures.maxRecoveryMs = qMax(figures.maxRecoveryMs, timer.elapsed());
                return timer.elapsed();
            }
            if (m_panel.state() != QProcess::Running)
                return -1;
        }
        return -1;
    }

    void Garbage()
    {
        QByteArray noise;
        const int n = 1 + int(m_random.bounded(64));
        while (noise.size() < n) {
            const char c = char(m_random.bounded(256));
            if (c != simframe::kStx && c != simframe::kEtx)
                noise.append(c);
        }
        m_line.WriteAndDrain(noise, 1000);
        ++figures.garbage;
    }

    bool BadChecksum()
    {
        QByteArray frame = simframe::buildFrame(Body());
        frame.insert(frame.size() - 1, '7');
        ++figures.badChecksum;
        const Reply reply = Send(frame);
        if (reply != Reply::Nack)
            ++figures.wrongAnswers;
        return reply == Reply::Nack;
    }

    QRandomGenerator &Random() { return m_random; }
    void RestartLineClock() { m_lineClock.invalidate(); }

private:
    SoakLine &m_line;
    QProcess &m_panel;
    QRandomGenerator m_random;
    int m_settleUs;
    QByteArray m_received;
    QElapsedTimer m_lineClock;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Soak and fault run of the panel on a faulty line."));
    parser.addHelpOption();
    const QCommandLineOption panelOption(QStringLiteral("panel"), QStringLiteral("The panel binary."),
                                         QStringLiteral("path"));
    const QCommandLineOption framesOption(QStringLiteral("frames"), QStringLiteral("Frames to send."),
                                          QStringLiteral("n"), QStringLiteral("3000"));
    const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("Random seed."), QStringLiteral("n"),
                                        QStringLiteral("1"));
    const QCommandLineOption faultOption(QStringLiteral("fault-every"),
                                         QStringLiteral("One fault in this many frames on average."),
                                         QStringLiteral("n"), QStringLiteral("50"));
    const QCommandLineOption watchdogOption(QStringLiteral("watchdog-ms"), QStringLiteral("The panel's line watchdog."),
                                            QStringLiteral("ms"), QStringLiteral("300"));
    const QCommandLineOption silenceOption(QStringLiteral("silence-ms"),
                                           QStringLiteral("How long the controller goes quiet."), QStringLiteral("ms"),
                                           QStringLiteral("1000"));
    const QCommandLineOption settleOption(QStringLiteral("settle-us"), QStringLiteral("Pause before the end byte."),
                                          QStringLiteral("us"), QStringLiteral("1500"));
    const QCommandLineOption warmupOption(QStringLiteral("warmup"),
                                          QStringLiteral("Clean frames before the measured run "
                                                         "(the panel's first log file, caches)."),
                                          QStringLiteral("n"), QStringLiteral("1000"));
    const QCommandLineOption growthOption(QStringLiteral("max-growth-mb"),
                                          QStringLiteral("Resident memory the last tenth may add to the first; "
                                                         "a negative value does not judge memory."),
                                          QStringLiteral("MB"), QStringLiteral("1.0"));
    parser.addOptions({growthOption, warmupOption, panelOption, framesOption, seedOption, faultOption, watchdogOption,
                       silenceOption, settleOption});
    parser.process(app);

    const qint64 frames = parser.value(framesOption).toLongLong();
    const int faultEvery = qMax(2, parser.value(faultOption).toInt());
    const int watchdogMs = qMax(1, parser.value(watchdogOption).toInt());
    const int silenceMs = parser.value(silenceOption).toInt();
    const quint32 seed = parser.value(seedOption).toUInt();
    const double maxGrowthMb = parser.value(growthOption).toDouble();

    QTemporaryDir home;
    QDir(home.path()).mkpath(QStringLiteral("Downloads/build"));
    const QString logs = home.filePath(QStringLiteral("Downloads/logs"));
    SoakLine line(home.filePath(QStringLiteral("line")));
    if (!line.Plug()) {
        print(QStringLiteral("soak: no pseudo-terminal"));
        return 1;
    }

    QProcess panel;
    panel.setWorkingDirectory(home.filePath(QStringLiteral("Downloads/build")));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    panel.setProcessEnvironment(env);
    panel.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    panel.start(QFileInfo(parser.value(panelOption)).absoluteFilePath(),
                {QStringLiteral("--port"), home.filePath(QStringLiteral("line")), QStringLiteral("--home"), home.path(),
                 QStringLiteral("--key-port"), QStringLiteral("0"), QStringLiteral("--selftest-delay-ms"),
                 QStringLiteral("100000000"), QStringLiteral("--line-watchdog-ms"), QString::number(watchdogMs)});
    if (!panel.waitForStarted(5000)) {
        print(QStringLiteral("soak: panel did not start"));
        return 1;
    }

    Soak soak(line, panel, seed, parser.value(settleOption).toInt());
    Figures &f = soak.figures;
    if (soak.Recover(30000) < 0) {
        print(QStringLiteral("soak: the panel never answered"));
        return 1;
    }
    for (int i = parser.value(warmupOption).toInt(); i > 0; --i)
        soak.Clean();
    f = Figures{};
    soak.RestartLineClock();

    QElapsedTimer clock;
    clock.start();
    const qint64 sampleEvery = qMax<qint64>(1, frames / 200);
    bool recovered = true;
    while (f.sent < frames && recovered && panel.state() == QProcess::Running) {
        if (f.sent % sampleEvery == 0) {
            f.rssMb << residentMb(panel.processId());
            f.maxLogFiles = qMax<qint64>(f.maxLogFiles, QDir(logs).entryList(QDir::Files).size());
        }
        if (soak.Random().bounded(faultEvery) != 0) {
            soak.Clean();
            continue;
        }
        switch (soak.Random().bounded(20)) {
        case 0: // the cable pulled and put back
            ++f.unplugged;
            line.Unplug();
            QThread::msleep(50 + soak.Random().bounded(450));
            line.Plug();
            recovered = soak.Recover(watchdogMs * 3 + 5000) >= 0;
            break;
        case 1: // the controller goes quiet; the watchdog resets the port meanwhile
            ++f.silences;
            QThread::msleep(ulong(silenceMs));
            recovered = soak.Recover(watchdogMs * 3 + 5000) >= 0;
            break;
        case 2:
        case 3:
        case 4:
        case 5:
        case 6: soak.BadChecksum(); break;
        case 7:
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
            ++f.split;
            soak.Clean(2 + int(soak.Random().bounded(4)));
            break;
        default:
            soak.Garbage();
            soak.Clean();
            break;
        }
    }
    const double seconds = clock.elapsed() / 1000.0;
    const bool alive = panel.state() == QProcess::Running;
    f.rssMb << residentMb(panel.processId());

    const int tenth = qMax(1, f.rssMb.size() / 10);
    const double firstMb = mean(f.rssMb.mid(0, tenth));
    const double lastMb = mean(f.rssMb.mid(f.rssMb.size() - tenth));
    const double lineFrames = kLineBytesPerSecond / (double(f.bytes) / qMax<qint64>(1, f.sent));

    print(QStringLiteral("seed %1: %2 frames in %3 s (%4 frames/s, the line carries %5 of these a second)")
              .arg(seed)
              .arg(f.sent)
              .arg(seconds, 0, 'f', 1)
              .arg(f.sent / seconds, 0, 'f', 0)
              .arg(lineFrames, 0, 'f', 0));
    print(QStringLiteral("faults: %1 garbage, %2 wrong checksums, %3 split frames, %4 unplugged, %5 silences of %6 ms")
              .arg(f.garbage)
              .arg(f.badChecksum)
              .arg(f.split)
              .arg(f.unplugged)
              .arg(f.silences)
              .arg(silenceMs));
    print(QStringLiteral("answered %1, unanswered %2, wrong answers %3, end byte sent again %4, longest recovery %5 ms")
              .arg(f.answered)
              .arg(f.unanswered)
              .arg(f.wrongAnswers)
              .arg(f.endByteResent)
              .arg(f.maxRecoveryMs));
    print(QStringLiteral("resident memory: first tenth %1 MB, last tenth %2 MB; log files at most %3")
              .arg(firstMb, 0, 'f', 2)
              .arg(lastMb, 0, 'f', 2)
              .arg(f.maxLogFiles));

    QStringList failures;
    if (!alive)
        failures << QStringLiteral("the panel died");
    if (!recovered)
        failures << QStringLiteral("the panel did not recover");
    if (f.unanswered > 0 || f.wrongAnswers > 0)
        failures << QStringLiteral("frames unanswered or answered wrongly");
    if (maxGrowthMb >= 0 && lastMb - firstMb > maxGrowthMb)
        failures << QStringLiteral("memory grew");
    if (f.maxLogFiles > kMaxLogFiles)
        failures << QStringLiteral("too many log files");
    print(failures.isEmpty() ? QStringLiteral("soak: PASS")
                             : QStringLiteral("soak: FAIL: ") + failures.join(QStringLiteral(", ")));

    panel.terminate();
    if (!panel.waitForFinished(3000))
        panel.kill();
    return failures.isEmpty() ? 0 : 1;
}
