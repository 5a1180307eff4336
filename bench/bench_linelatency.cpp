// Frame-to-answer latency through a real pseudo-terminal with the panel's event loop in the
// path: from the write of the end byte to the last byte of the answer. Prints percentiles.
#include "communication/communicator.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSerialPort>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
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
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    qInstallMessageHandler(quietLog);
    const int rounds = argc > 1 ? std::max(10, atoi(argv[1])) : 2000;

    termios raw{};
    cfmakeraw(&raw);
    int master = -1;
    int slave = -1;
    char name[128] = {};
    if (openpty(&master, &slave, name, &raw, nullptr) != 0) {
        std::perror("openpty");
        return 1;
    }
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);

    MessageHandler handler(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
    Communicator communicator(&handler, nullptr, QString::fromLocal8Bit(name));
    auto *port = communicator.findChild<QSerialPort *>();

    const QByteArray frame = Frame::Build("time==1405$$date==20261122$$temp==1473");
    const QByteArray body = frame.left(frame.size() - 1);
    std::vector<double> micros;
    micros.reserve(size_t(rounds));
    QElapsedTimer clock;
    QByteArray answer;
    int round = 0;
    enum class Phase { BodySent, EndSent } phase = Phase::BodySent;

    QSocketNotifier answers(master, QSocketNotifier::Read);
    QTimer poll; // waits for the panel to take the body, as the controller's line does
    poll.setInterval(0);

    auto sendBody = [&] {
        phase = Phase::BodySent;
        if (::write(master, body.constData(), size_t(body.size())) != body.size())
            app.exit(1);
        poll.start();
    };
    QObject::connect(&poll, &QTimer::timeout, [&] {
        int unread = 0;
        ::ioctl(slave, FIONREAD, &unread);
        if (phase != Phase::BodySent || unread != 0 || port->bytesAvailable() != 0)
            return;
        poll.stop();
        phase = Phase::EndSent;
        answer.clear();
        clock.start();
        if (::write(master, "\x03", 1) != 1)
            app.exit(1);
    });
    QObject::connect(&answers, &QSocketNotifier::activated, [&] {
        char buf[256];
        ssize_t n;
        while ((n = ::read(master, buf, sizeof buf)) > 0)
            answer.append(buf, int(n));
        if (!answer.endsWith('\x03'))
            return;
        micros.push_back(double(clock.nsecsElapsed()) / 1000.0);
        if (++round >= rounds) {
            app.quit();
            return;
        }
        QTimer::singleShot(1, sendBody);
    });
    QTimer::singleShot(0, sendBody);
    const int rc = app.exec();

    std::sort(micros.begin(), micros.end());
    auto pct = [&](double p) { return micros.empty() ? 0.0 : micros[size_t(p * double(micros.size() - 1))]; };
    std::printf("frames=%zu p50_us=%.1f p90_us=%.1f p99_us=%.1f max_us=%.1f\n", micros.size(), pct(0.50), pct(0.90),
                pct(0.99), micros.empty() ? 0.0 : micros.back());
    ::close(master);
    ::close(slave);
    return rc;
}
