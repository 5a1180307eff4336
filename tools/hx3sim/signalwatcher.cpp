#include "signalwatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {
// One watcher per process: a signal handler can only reach global state.
int g_pipe[2] = {-1, -1};

extern "C" void onTerminationSignal(int signalNumber)
{
    const int savedErrno = errno;
    const char byte = static_cast<char>(signalNumber);
    [[maybe_unused]] const ssize_t ignored = ::write(g_pipe[1], &byte, 1);
    errno = savedErrno;
}
} // namespace

SignalWatcher::SignalWatcher(QObject *parent) : QObject(parent)
{
    if (g_pipe[0] >= 0 || ::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;

    struct sigaction action
    {
    };
    action.sa_handler = onTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);

    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SignalWatcher::readPipe);
}

SignalWatcher::~SignalWatcher()
{
    if (!m_notifier)
        return;
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    delete m_notifier;
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
    g_pipe[0] = g_pipe[1] = -1;
}

void SignalWatcher::readPipe()
{
    char byte = 0;
    int last = 0;
    while (::read(g_pipe[0], &byte, 1) == 1)
        last = static_cast<unsigned char>(byte);
    if (last != 0)
        emit terminationRequested(last);
}
