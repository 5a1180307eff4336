#include "app/servicewatchdog.h"

#include <QDebug>
#include <QTimer>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ovra {
namespace GlobalElements {

ServiceWatchdog::ServiceWatchdog(QObject *parent) : QObject(parent)
{
    if (!Notify("READY=1"))
        return;
    bool ok = false;
    const qint64 usec = qEnvironmentVariable("WATCHDOG_USEC").toLongLong(&ok);
    if (!ok || usec <= 0)
        return;
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, [] { Notify("WATCHDOG=1"); });
    m_timer->start(int(qBound<qint64>(1, usec / 2000, 3600000)));
    qDebug() << "service watchdog every" << m_timer->interval() << "ms";
}

bool ServiceWatchdog::IsActive() const
{
    return m_timer != nullptr;
}

bool ServiceWatchdog::Notify(const QByteArray &state)
{
    const QByteArray path = qgetenv("NOTIFY_SOCKET");
    sockaddr_un address{};
    if (path.isEmpty() || size_t(path.size()) >= sizeof(address.sun_path))
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    // systemd may hand over an abstract socket, written with a leading '@'.
    if (address.sun_path[0] == '@')
        address.sun_path[0] = '\0';
    const int fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const socklen_t length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(path.size()));
    const bool sent = ::sendto(fd, state.constData(), size_t(state.size()), 0,
                               reinterpret_cast<const sockaddr *>(&address), length) == state.size();
    ::close(fd);
    return sent;
}

} // namespace GlobalElements
} // namespace ovra
