#include "soakline.h"

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

SoakLine::SoakLine(const QString &linkPath) : m_linkPath(linkPath) {}

SoakLine::~SoakLine()
{
    Unplug();
    QFile::remove(m_linkPath);
}

bool SoakLine::Plug()
{
    termios raw{};
    cfmakeraw(&raw);
    char name[128] = {};
    if (::openpty(&m_master, &m_slave, name, &raw, nullptr) != 0)
        return false;
    ::fcntl(m_master, F_SETFL, ::fcntl(m_master, F_GETFL) | O_NONBLOCK);
    const QByteArray link = QFile::encodeName(m_linkPath);
    const QByteArray temp = link + ".new";
    ::unlink(temp.constData());
    return ::symlink(name, temp.constData()) == 0 && ::rename(temp.constData(), link.constData()) == 0;
}

void SoakLine::Unplug()
{
    if (m_master >= 0)
        ::close(m_master);
    if (m_slave >= 0)
        ::close(m_slave);
    m_master = m_slave = -1;
}

bool SoakLine::WriteAndDrain(const QByteArray &bytes, int waitMs)
{
    if (m_master < 0)
        return false;
    int written = 0;
    while (written < bytes.size()) {
        const ssize_t n = ::write(m_master, bytes.constData() + written, size_t(bytes.size() - written));
        if (n < 0 && errno != EAGAIN)
            return false;
        if (n > 0)
            written += int(n);
        else
            ::usleep(200);
    }
    QElapsedTimer timer;
    timer.start();
    int unread = 0;
    while (::ioctl(m_slave, FIONREAD, &unread) == 0 && unread > 0) {
        if (timer.elapsed() > waitMs)
            return false;
        ::usleep(100);
    }
    return true;
}

void SoakLine::Read(QByteArray &received, int waitMs)
{
    if (m_master < 0)
        return;
    pollfd fd{m_master, POLLIN, 0};
    if (::poll(&fd, 1, waitMs) <= 0)
        return;
    char buffer[4096];
    ssize_t n;
    while ((n = ::read(m_master, buffer, sizeof(buffer))) > 0)
        received.append(buffer, int(n));
}
