#pragma once

#include <QObject>

class QTcpServer;
class QTcpSocket;

namespace ovra {
namespace Communication {

// Local server for the display-key script: "aus" switches touch input off, anything else
// switches it on. One client at a time.
class InternalCommunicator : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 defaultPort = 6666;

    explicit InternalCommunicator(QObject *parent = nullptr, quint16 port = defaultPort);

    bool IsListening() const;
    quint16 Port() const;

signals:
    void SignalReceivedTouchEvent(bool enable);

public slots:
    void SlotNewConnection();
    void SlotHandleMessage();
    void SlotDestroyConnection();

private:
    QTcpServer *m_server;
    QTcpSocket *m_socket = nullptr;
};

} // namespace Communication
} // namespace ovra
