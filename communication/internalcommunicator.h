#pragma once

#include <QByteArray>
#include <QObject>

class QTcpServer;
class QTcpSocket;

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

    explicit InternalCommunicator(QObject *parent = nullptr, quint16 port = defaultPort);

    // True when the IPv4 loopback listens: that is where the key script connects.
    bool IsListening() const;
    bool IsListeningIPv6() const;
    quint16 Port() const;

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
};

} // namespace Communication
} // namespace ovra
