// Frame-to-answer latency through a real pseudo-terminal with the panel's event loop in the
// path: from the write of the end byte to the last byte of the answer. Prints percentiles,
// beside those of a bare reader answering on a second pseudo-terminal in the same run.
// With --lab-stalled [interval-ms] the lab link is on, publishing states (the panel's spacing
// of 500 ms, or the interval given; 0: one for every frame) to a real broker that has stopped
// reading (SIGSTOP): the line must not wait on it.
#include "communication/communicator.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "app/furnacestate.h"
#include "lablink/lablink.h"
#include "records/firingstore.h"
#include "tests/mosquittobroker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSerialPort>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <csignal>
#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

using ovra::Communication::Communicator;
using ovra::Communication::MessageHandler;
namespace Frame = ovra::Communication::Frame;

namespace {
void quietLog(QtMsgType, const QMessageLogContext &, const QString &) {}

// One end of the line as the controller drives it: the frame's body, then, once the reader
// has taken it all, the end byte alone; the clock runs from that byte to the answer's end.
// "Taken" needs the reader's word (BodyRead): right after a write the pseudo-terminal may not
// have moved the bytes across yet, so an empty queue alone proves nothing.
class ControllerSide
{
public:
    ControllerSide(int master, int slave, std::function<qint64()> bufferedByReader)
        : m_master(master), m_slave(slave), m_buffered(std::move(bufferedByReader)),
          m_answers(master, QSocketNotifier::Read)
    {
        QObject::connect(&m_answers, &QSocketNotifier::activated, [this] { Read(); });
    }
    // Sends one frame; done() runs when its answer is complete.
    void Send(const QByteArray &body, std::function<void()> done)
    {
        m_done = std::move(done);
        m_answer.clear();
        m_bodyRead = false;
        if (::write(m_master, body.constData(), size_t(body.size())) != body.size())
            QCoreApplication::exit(1);
        WaitForBodyTaken();
    }
    void BodyRead() { m_bodyRead = true; }
    std::vector<double> micros;

private:
    void WaitForBodyTaken()
    {
        int unread = 0;
        ::ioctl(m_slave, FIONREAD, &unread);
        if (!m_bodyRead || unread != 0 || m_buffered() != 0) {
            QTimer::singleShot(0, [this] { WaitForBodyTaken(); });
            return;
        }
        m_clock.start();
        if (::write(m_master, "\x03", 1) != 1)
            QCoreApplication::exit(1);
    }
    void Read()
    {
        char buf[256];
        ssize_t n;
        while ((n = ::read(m_master, buf, sizeof buf)) > 0)
            m_answer.append(buf, int(n));
        if (!m_answer.endsWith('\x03') || !m_done)
            return;
        micros.push_back(double(m_clock.nsecsElapsed()) / 1000.0);
        std::function<void()> done;
        std::swap(done, m_done);
        done();
    }

    int m_master;
    int m_slave;
    std::function<qint64()> m_buffered;
    bool m_bodyRead = false;
    QSocketNotifier m_answers;
    QElapsedTimer m_clock;
    QByteArray m_answer;
    std::function<void()> m_done;
};

bool openRawPty(int &master, int &slave, char *name)
{
    termios raw{};
    cfmakeraw(&raw);
    if (openpty(&master, &slave, name, &raw, nullptr) != 0) {
        std::perror("openpty");
        return false;
    }
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
    return true;
}

double percentile(std::vector<double> v, double p)
{
    if (v.empty())
        return 0.0;
    std::sort(v.begin(), v.end());
    return v[size_t(p * double(v.size() - 1))];
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    qInstallMessageHandler(quietLog);
    const int rounds = argc > 1 ? std::max(10, atoi(argv[1])) : 2000;

    // The panel's line: the real communicator and frame handler behind a pseudo-terminal.
    int master = -1, slave = -1;
    char name[128] = {};
    if (!openRawPty(master, slave, name))
        return 1;
    MessageHandler handler(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
    Communicator communicator(&handler, nullptr, QString::fromLocal8Bit(name));
    auto *port = communicator.findChild<QSerialPort *>();
    ControllerSide panelLine(master, slave, [port] { return port->bytesAvailable(); });

    const bool labStalled = argc > 2 && std::strcmp(argv[2], "--lab-stalled") == 0;
    QTemporaryDir labHome, brokerDir;
    MosquittoBroker broker(brokerDir.path());
    ovra::GlobalElements::FurnaceState furnace;
    ovra::Records::FiringStore store(ovra::Records::FiringStore::FileIn(labHome.path()));
    std::unique_ptr<ovra::LabLink::LabLink> link;
    if (labStalled) {
        if (!broker.Start()) {
            std::fprintf(stderr, "mosquitto did not start\n");
            return 1;
        }
        furnace.Follow(&handler);
        ovra::LabLink::LabLinkConfig config;
        config.host = QStringLiteral("127.0.0.1");
        config.port = broker.Port();
        config.furnaceId = QStringLiteral("bench");
        ovra::LabLink::LabLink::Timing timing;
        timing.stateIntervalMs = argc > 3 ? atoi(argv[3]) : timing.stateIntervalMs;
        link = std::make_unique<ovra::LabLink::LabLink>(config, furnace, store, timing);
        QElapsedTimer waited;
        waited.start();
        while (!link->Status().IsConnected() && waited.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        if (!link->Status().IsConnected()) {
            std::fprintf(stderr, "the link did not connect\n");
            return 1;
        }
        ::kill(static_cast<pid_t>(broker.ProcessId()), SIGSTOP);
    }
    // Connected after the communicator's own slot, so it runs once the panel has read.
    QObject::connect(port, &QSerialPort::readyRead, [&panelLine] { panelLine.BodyRead(); });

    // The baseline, in the same event loop and interleaved frame by frame: a reader that
    // answers every end byte at once with a fixed frame. Its tail is the machine's (the
    // scheduler, the pseudo-terminal), so the panel's tail is read against it.
    int bareMaster = -1, bareSlave = -1;
    char bareName[128] = {};
    if (!openRawPty(bareMaster, bareSlave, bareName))
        return 1;
    fcntl(bareSlave, F_SETFL, fcntl(bareSlave, F_GETFL) | O_NONBLOCK);
    const QByteArray fixedAnswer = Frame::Build("ack");
    ControllerSide bareLine(bareMaster, bareSlave, [] { return qint64(0); });
    QSocketNotifier bareReader(bareSlave, QSocketNotifier::Read);
    QObject::connect(&bareReader, &QSocketNotifier::activated, [&] {
        char buf[512];
        ssize_t n;
        bool end = false;
        while ((n = ::read(bareSlave, buf, sizeof buf)) > 0)
            end = end || std::memchr(buf, 0x03, size_t(n)) != nullptr;
        bareLine.BodyRead();
        if (end && ::write(bareSlave, fixedAnswer.constData(), size_t(fixedAnswer.size())) != fixedAnswer.size())
            QCoreApplication::exit(1);
    });

    // The temperature changes with every frame, so that with the link on each one is a new state.
    const auto body = [](int n) {
        const QByteArray frame = Frame::Build("time==1405$$date==20261122$$temp==" + QByteArray::number(1400 + n % 100));
        return frame.left(frame.size() - 1);
    };
    int round = 0;
    // Panel, bare reader, panel, ...: a millisecond apart, as frames come on the line.
    std::function<void()> next;
    const auto toBare = [&] { bareLine.Send(body(round), [&] { QTimer::singleShot(1, next); }); };
    next = [&] {
        if (round++ >= rounds) {
            app.quit();
            return;
        }
        panelLine.Send(body(round), [&] { QTimer::singleShot(1, toBare); });
    };
    QTimer::singleShot(0, next);
    const int rc = app.exec();

    const std::vector<double> &panel = panelLine.micros;
    const std::vector<double> &bare = bareLine.micros;
    const double panelP99 = percentile(panel, 0.99);
    const double bareP99 = percentile(bare, 0.99);
    std::printf("frames=%zu p50_us=%.1f p90_us=%.1f p99_us=%.1f max_us=%.1f bare_p50_us=%.1f bare_p99_us=%.1f "
                "bare_max_us=%.1f p99_minus_bare_us=%.1f\n",
                panel.size(), percentile(panel, 0.50), percentile(panel, 0.90), panelP99, percentile(panel, 1.0),
                percentile(bare, 0.50), bareP99, percentile(bare, 1.0), panelP99 - bareP99);
    if (labStalled) {
        std::printf("lab_stalled states_published=%d\n", link->StatesPublished());
        ::kill(static_cast<pid_t>(broker.ProcessId()), SIGCONT);
    }
    for (int fd : {master, slave, bareMaster, bareSlave})
        ::close(fd);
    return rc;
}
