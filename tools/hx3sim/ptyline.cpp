#include "ptyline.h"

#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {
// How often to look whether the panel has read the head of a frame, how long to give it at
// most, and how long to wait after that before the end byte, so the two never share a read.
constexpr int kPollIntervalMs = 1;
constexpr int kGiveUpMs = 1000;
// Long enough for a busy panel to have handled the body before the end byte arrives;
// a real line leaves a similar gap. At one frame a second it costs nothing.
constexpr int kSettleMs = 15;

QString errnoText(const char *what)
{
    return QStringLiteral("%1: %2").arg(QLatin1String(what), QString::fromLocal8Bit(std::strerror(errno)));
}
} // namespace

PtyLine::PtyLine(QObject *parent) : QObject(parent)
{
    m_pollTimer.setInterval(kPollIntervalMs);
    m_pollTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_pollTimer, &QTimer::timeout, this, &PtyLine::pollSlave);

    m_settleTimer.setSingleShot(true);
    m_settleTimer.setInterval(kSettleMs);
    m_settleTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_settleTimer, &QTimer::timeout, this, [this] {
        m_stage = Stage::WritingTail;
        m_output += m_tail;
        flushOutput();
    });
}

PtyLine::~PtyLine()
{
    removeLink();
    closeAll();
}

bool PtyLine::open(QString *error)
{
    // Raw from the very first byte: in the default cooked mode 0x03 would act as ^C and flush
    // the line, and everything would echo back to us.
    termios raw{};
    cfmakeraw(&raw);
    raw.c_cflag |= CREAD | CLOCAL;
    raw.c_cc[VMIN] = 1;
    raw.c_cc[VTIME] = 0;
    cfsetispeed(&raw, B115200);
    cfsetospeed(&raw, B115200);

    char name[256] = {};
    if (::openpty(&m_masterFd, &m_slaveFd, name, &raw, nullptr) != 0) {
        if (error)
            *error = errnoText("openpty");
        m_masterFd = m_slaveFd = -1;
        return false;
    }
    m_slavePath = QFile::decodeName(name);

    const int flags = ::fcntl(m_masterFd, F_GETFL);
    ::fcntl(m_masterFd, F_SETFL, flags | O_NONBLOCK);
    ::fcntl(m_masterFd, F_SETFD, FD_CLOEXEC);
    ::fcntl(m_slaveFd, F_SETFD, FD_CLOEXEC);

    m_readNotifier = new QSocketNotifier(m_masterFd, QSocketNotifier::Read, this);
    connect(m_readNotifier, &QSocketNotifier::activated, this, &PtyLine::readMaster);
    m_writeNotifier = new QSocketNotifier(m_masterFd, QSocketNotifier::Write, this);
    m_writeNotifier->setEnabled(false);
    connect(m_writeNotifier, &QSocketNotifier::activated, this, &PtyLine::flushOutput);
    return true;
}

PtyLine::LinkResult PtyLine::createLink(const QString &path, QString *error)
{
    const QByteArray linkName = QFile::encodeName(path);
    struct stat st
    {
    };
    if (::lstat(linkName.constData(), &st) == 0) {
        if (!S_ISLNK(st.st_mode)) {
            if (error)
                *error = QStringLiteral("%1 exists and is not a symlink; not replacing it").arg(path);
            return LinkResult::NotASymlink;
        }
        if (::unlink(linkName.constData()) != 0) {
            if (error)
                *error = errnoText("unlink");
            return LinkResult::Failed;
        }
    }
    if (::symlink(QFile::encodeName(m_slavePath).constData(), linkName.constData()) != 0) {
        if (error)
            *error = errnoText("symlink");
        return LinkResult::Failed;
    }
    m_linkPath = path;
    return LinkResult::Created;
}

void PtyLine::removeLink()
{
    if (m_linkPath.isEmpty())
        return;
    // Another simulator may have taken the name over meanwhile; its link is not ours to remove.
    const QByteArray linkName = QFile::encodeName(m_linkPath);
    char target[512] = {};
    const ssize_t n = ::readlink(linkName.constData(), target, sizeof(target) - 1);
    if (n > 0 && QFile::decodeName(QByteArray(target, static_cast<int>(n))) == m_slavePath)
        ::unlink(linkName.constData());
    m_linkPath.clear();
}

void PtyLine::sendFrame(const QByteArray &frame)
{
    abortFrame();
    if (m_masterFd < 0 || frame.isEmpty())
        return;
    m_tail = frame.right(1);
    m_stage = Stage::WritingHead;
    m_output = frame.left(frame.size() - 1);
    flushOutput();
}

void PtyLine::abortFrame()
{
    m_pollTimer.stop();
    m_settleTimer.stop();
    m_output.clear();
    m_tail.clear();
    m_stage = Stage::Idle;
    if (m_writeNotifier)
        m_writeNotifier->setEnabled(false);
}

void PtyLine::discardUnreadInput()
{
    if (m_slaveFd >= 0)
        ::tcflush(m_slaveFd, TCIFLUSH);
}

int PtyLine::unreadBySlave() const
{
    int pending = 0;
    if (m_slaveFd < 0 || ::ioctl(m_slaveFd, FIONREAD, &pending) != 0)
        return -1;
    return pending;
}

void PtyLine::readMaster()
{
    QByteArray received;
    char chunk[4096];
    for (;;) {
        const ssize_t n = ::read(m_masterFd, chunk, sizeof(chunk));
        if (n > 0) {
            received.append(chunk, static_cast<int>(n));
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            break;
        // With our own slave descriptor open this should not happen; if it does, stop listening
        // rather than spin on a notifier that fires forever.
        m_readNotifier->setEnabled(false);
        emit lineError(n == 0 ? QStringLiteral("pty master: end of file") : errnoText("pty master read"));
        break;
    }
    if (!received.isEmpty())
        emit bytesReceived(received);
}

void PtyLine::flushOutput()
{
    while (!m_output.isEmpty()) {
        const ssize_t n = ::write(m_masterFd, m_output.constData(), static_cast<size_t>(m_output.size()));
        if (n > 0) {
            m_output.remove(0, static_cast<int>(n));
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            m_writeNotifier->setEnabled(true);
            return;
        }
        const QString message = errnoText("pty master write");
        abortFrame();
        emit lineError(message);
        return;
    }
    m_writeNotifier->setEnabled(false);
    outputDrained();
}

void PtyLine::outputDrained()
{
    switch (m_stage) {
    case Stage::WritingHead:
        // No look right away: the kernel hands written bytes to the slave side asynchronously,
        // so an immediate look may find nothing unread although the panel has not seen a byte.
        m_stage = Stage::WaitingForRead;
        m_waitingSince.start();
        m_pollTimer.start();
        break;
    case Stage::WritingTail:
        m_stage = Stage::Idle;
        m_tail.clear();
        emit frameWritten();
        break;
    case Stage::Idle:
    case Stage::WaitingForRead:
    case Stage::Settling: break;
    }
}

void PtyLine::pollSlave()
{
    if (m_stage != Stage::WaitingForRead) {
        m_pollTimer.stop();
        return;
    }
    // Past the give-up time the end byte goes out anyway: if the panel reads both at once it
    // drops the frame, which is what the real line does too.
    if (unreadBySlave() > 0 && m_waitingSince.elapsed() < kGiveUpMs)
        return;
    m_pollTimer.stop();
    m_stage = Stage::Settling;
    m_settleTimer.start();
}

void PtyLine::closeAll()
{
    abortFrame();
    delete m_readNotifier;
    m_readNotifier = nullptr;
    delete m_writeNotifier;
    m_writeNotifier = nullptr;
    if (m_masterFd >= 0)
        ::close(m_masterFd);
    if (m_slaveFd >= 0)
        ::close(m_slaveFd);
    m_masterFd = m_slaveFd = -1;
}
