#pragma once

#include <QByteArray>
#include <QObject>

class QTcpServer;
class QTcpSocket;
class QTimer;

namespace ovra {
namespace Communication {

// What one message of the display-key script does: touch input on or off, and the answer
// written back. Any bytes are a message.
struct KeyMessage
{
    bool enable;
    QByteArray answer;
};
KeyMessage InterpretKeyMessage(const QByteArray &message);

// Local server for the display-key script: "aus" switches touch input off, anything else
// switches it on. One client at a time. It listens on the loopback interface only (IPv4 and,
// where the system has it, IPv6), so nobody on the network can switch the touch screen off.
class InternalCommunicator : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 defaultPort = 6666;
    // The key script sends within about a second of connecting. A client silent for this long
    // would hold the one place and lock the key out, so it is dropped.
    static constexpr int defaultIdleTimeoutMs = 10000;

    explicit InternalCommunicator(QObject *parent = nullptr, quint16 port = defaultPort);

    // True when the IPv4 loopback listens: that is where the key script connects.
    bool IsListening() const;
    bool IsListeningIPv6() const;
    quint16 Port() const;
    void SetIdleTimeoutMs(int ms);

signals:
    void SignalReceivedTouchEvent(bool enable);

public slots:
    void SlotNewConnection();
    void SlotHandleMessage();
    void SlotDestroyConnection();

private:
    QTcpServer *m_server;
    QTcpServer *m_server6;
    QTcpSocket *m_socket = nullptr;
    QTimer *m_idleTimer;
};

} // namespace Communication
} // namespace ovra
