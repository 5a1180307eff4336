#include "consoleinput.h"

#include <QSocketNotifier>

#include <cerrno>

#include <unistd.h>

ConsoleInput::ConsoleInput(int fd, QObject *parent) : QObject(parent), m_fd(fd)
{
    // The descriptor is left blocking: it is usually shared with the calling shell, and one
    // read() per notification never blocks anyway.
    m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &ConsoleInput::readAvailable);
}

void ConsoleInput::readAvailable()
{
    char chunk[1024];
    ssize_t n = 0;
    do {
        n = ::read(m_fd, chunk, sizeof(chunk));
    } while (n < 0 && errno == EINTR);
    if (n <= 0) {
        m_notifier->setEnabled(false);
        if (!m_pending.isEmpty())
            emit lineReceived(QString::fromUtf8(m_pending).trimmed());
        m_pending.clear();
        return;
    }
    m_pending.append(chunk, static_cast<int>(n));
    for (int end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
        const QString line = QString::fromUtf8(m_pending.left(end)).trimmed();
        m_pending.remove(0, end + 1);
        if (!line.isEmpty())
            emit lineReceived(line);
    }
}
