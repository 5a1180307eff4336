#include "communication/internalcommunicator.h"

#include <QDebug>
#include <QTcpServer>
#include <QTcpSocket>

namespace ovra {
namespace Communication {

InternalCommunicator::InternalCommunicator(QObject *parent, quint16 port)
    : QObject(parent), m_server(new QTcpServer(this))
{
    connect(m_server, &QTcpServer::newConnection, this, &InternalCommunicator::SlotNewConnection);
    if (m_server->listen(QHostAddress::Any, port))
        qDebug() << "Server up!";
    else
        qDebug() << "Server not up!";
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
    QTcpSocket *socket = m_server->nextPendingConnection();
    if (socket == nullptr)
        return;
    if (m_socket != nullptr)
        m_socket->deleteLater();
    m_socket = socket;
    m_socket->setParent(this);
    // One client at a time: the next waits in the backlog until this one leaves.
    m_server->pauseAccepting();
    connect(m_socket, &QTcpSocket::readyRead, this, &InternalCommunicator::SlotHandleMessage);
    connect(m_socket, &QTcpSocket::disconnected, this, &InternalCommunicator::SlotDestroyConnection);
}

void InternalCommunicator::SlotHandleMessage()
{
    auto *socket = qobject_cast<QTcpSocket *>(sender());
    if (socket == nullptr)
        socket = m_socket;
    if (socket == nullptr)
        return;
    const QByteArray message = socket->readAll();
    if (message == "aus") {
        socket->write("ack");
        emit SignalReceivedTouchEvent(false);
        return;
    }
    // Anything but "aus" switches on; only "ein" is acknowledged. The key script sends "an"
    // and does not read the answer, so "nak" for it is expected.
    emit SignalReceivedTouchEvent(true);
    socket->write(message == "ein" ? "ack" : "nak");
}

void InternalCommunicator::SlotDestroyConnection()
{
    m_server->resumeAccepting();
    qDebug() << "connection terminated";
}

} // namespace Communication
} // namespace ovra
