#include "communication/internalcommunicator.h"

#include <QDebug>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace ovra {
namespace Communication {

KeyMessage InterpretKeyMessage(const QByteArray &message)
{
    if (message == "aus")
        return {false, QByteArrayLiteral("ack")};
    // Anything but "aus" switches on; only "ein" is acknowledged. The key script sends "an"
    // and does not read the answer, so "nak" for it is expected.
    return {true, message == "ein" ? QByteArrayLiteral("ack") : QByteArrayLiteral("nak")};
}

InternalCommunicator::InternalCommunicator(QObject *parent, quint16 port)
    : QObject(parent), m_server(new QTcpServer(this)), m_server6(new QTcpServer(this)), m_idleTimer(new QTimer(this))
{
    m_idleTimer->setSingleShot(true);
    m_idleTimer->setInterval(defaultIdleTimeoutMs);
    connect(m_idleTimer, &QTimer::timeout, this, [this] {
        if (m_socket == nullptr)
            return;
        qDebug() << "display-key client silent for" << m_idleTimer->interval() << "ms: dropped";
        m_socket->abort();
        // Whatever state the dropped client left, the key must get through again.
        m_server->resumeAccepting();
        m_server6->resumeAccepting();
    });
    connect(m_server, &QTcpServer::newConnection, this, &InternalCommunicator::SlotNewConnection);
    connect(m_server6, &QTcpServer::newConnection, this, &InternalCommunicator::SlotNewConnection);
    if (m_server->listen(QHostAddress::LocalHost, port))
        qDebug() << "Server up!";
    else
        qDebug() << "Server not up!";
    // Same port on ::1 (the one the system chose, when asked for any). A system without IPv6
    // still has the IPv4 loopback the key script uses.
    const quint16 port6 = m_server->isListening() ? m_server->serverPort() : port;
    if (!m_server6->listen(QHostAddress::LocalHostIPv6, port6))
        qDebug() << "display-key server: no IPv6 loopback:" << m_server6->errorString();
}

void InternalCommunicator::SetIdleTimeoutMs(int ms)
{
    m_idleTimer->setInterval(ms);
}

bool InternalCommunicator::IsListeningIPv6() const
{
    return m_server6->isListening();
}

bool InternalCommunicator::IsListening() const
{
    return m_server->isListening();
}

quint16 InternalCommunicator::Port() const
{
    return m_server->serverPort();
}

void InternalCommunicator::SlotNewConnection()
{
    auto *server = qobject_cast<QTcpServer *>(sender());
    if (server == nullptr)
        server = m_server;
    QTcpSocket *socket = server->nextPendingConnection();
    if (socket == nullptr)
        return;
    if (m_socket != nullptr)
        m_socket->deleteLater();
    m_socket = socket;
    m_socket->setParent(this);
    // One client at a time, on either loopback: the next waits in the backlog until this
    // one leaves.
    m_server->pauseAccepting();
    m_server6->pauseAccepting();
    connect(m_socket, &QTcpSocket::readyRead, this, &InternalCommunicator::SlotHandleMessage);
    connect(m_socket, &QTcpSocket::disconnected, this, &InternalCommunicator::SlotDestroyConnection);
    m_idleTimer->start();
    // What a client sent before it was taken from the pending list raised no readyRead here.
    if (m_socket->bytesAvailable() > 0)
        QTimer::singleShot(0, this, &InternalCommunicator::SlotHandleMessage);
}

void InternalCommunicator::SlotHandleMessage()
{
    auto *socket = qobject_cast<QTcpSocket *>(sender());
    if (socket == nullptr)
        socket = m_socket;
    if (socket == nullptr)
        return;
    m_idleTimer->start();
    const KeyMessage key = InterpretKeyMessage(socket->readAll());
    // "aus" is acknowledged before the touch goes off, the others after it came on.
    if (!key.enable)
        socket->write(key.answer);
    emit SignalReceivedTouchEvent(key.enable);
    if (key.enable)
        socket->write(key.answer);
}

void InternalCommunicator::SlotDestroyConnection()
{
    m_idleTimer->stop();
    m_server->resumeAccepting();
    m_server6->resumeAccepting();
    qDebug() << "connection terminated";
}

} // namespace Communication
} // namespace ovra
