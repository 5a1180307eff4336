#pragma once

#include <QObject>

class QTimer;

namespace ovra {
namespace GlobalElements {

// Tells systemd, when it started the panel with a watchdog, that the event loop still turns:
// "READY=1" once, then "WATCHDOG=1" at half the interval systemd gave. A panel whose loop
// hangs stops answering the controller; systemd then ends and restarts it. Does nothing
// when the panel was not started that way.
class ServiceWatchdog : public QObject
{
    Q_OBJECT

public:
    explicit ServiceWatchdog(QObject *parent = nullptr);

    bool IsActive() const;

    // Sends one notification datagram to $NOTIFY_SOCKET; false when there is none or it fails.
    static bool Notify(const QByteArray &state);

private:
    QTimer *m_timer = nullptr;
};

} // namespace GlobalElements
} // namespace ovra
