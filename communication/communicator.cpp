#include "communication/communicator.h"

#include "communication/messagehandler.h"

#include <QDebug>
#include <QTimer>

namespace ovra {
namespace Communication {

Communicator::Communicator(MessageHandler *handler, QObject *parent, const QString &portName, int watchdogIntervalMs)
    : QObject(parent), m_port(new QSerialPort(this)), m_handler(handler), m_watchdog(new QTimer(this)),
      m_watchdogIntervalMs(watchdogIntervalMs)
{
    qRegisterMetaType<QSerialPort::SerialPortError>("QSerialPort::SerialPortError");

    m_port->setPortName(portName);
    m_port->setBaudRate(QSerialPort::Baud115200, QSerialPort::AllDirections);

    connect(m_watchdog, &QTimer::timeout, this, &Communicator::SlotRestartSerialCom);
    m_watchdog->setInterval(m_watchdogIntervalMs);
    m_watchdog->start();

    if (m_port->open(QIODevice::ReadWrite))
        qDebug() << "serial port open!!";
    else
        qDebug() << "serial port not open!!";

    // Queued: the slot runs from the event loop, never inside the port's own emission.
    connect(m_port, &QSerialPort::readyRead, this, &Communicator::SlotHandleMessage, Qt::QueuedConnection);
    connect(m_port, &QSerialPort::errorOccurred, this, &Communicator::SlotHandleError);
    if (m_handler)
        connect(m_handler, &MessageHandler::SignalUnaskedFrame, this, &Communicator::SendUnasked);
}

bool Communicator::IsPortOpen() const
{
    return m_port->isOpen();
}

void Communicator::SlotHandleMessage()
{
    if (sender() == m_port) {
        m_watchdog->stop();
        m_watchdog->setInterval(m_watchdogIntervalMs);
        m_watchdog->start();
    }

    QByteArray frame;
    if (m_assembler.Feed(m_port->readAll(), &frame))
        Dispatch(frame);
}

void Communicator::Dispatch(const QByteArray &frame)
{
    qDebug() << "received data: " << frame;

    const QByteArray answer = m_handler->HandleFrame(frame);
    if (!answer.isEmpty()) {
        m_port->write(answer);
        qDebug() << "Pis Answer: " << answer;
    }
}

void Communicator::SendUnasked(const QByteArray &frame)
{
    if (!m_port->isOpen()) {
        qDebug() << "serial port closed, not sent: " << frame;
        return;
    }
    m_port->write(frame);
    qDebug() << "Pis unasked frame: " << frame;
}

void Communicator::SlotHandleError(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::NoError)
        return;
    qDebug() << "failure serial communication: " << error;
    qDebug() << "failure serial communication: " << m_port->errorString();
    m_port->clearError();

    // A vanished device keeps reporting the error in a busy loop while the port is open,
    // which would flood the log and rotate every older log file away. Closed, it waits
    // quietly for the watchdog to reopen it.
    if ((error == QSerialPort::ResourceError || error == QSerialPort::ReadError) && m_port->isOpen()) {
        m_port->close();
        qDebug() << "serial port closed until the watchdog reopens it";
    }
}

void Communicator::SlotRestartSerialCom()
{
    if (m_port->isOpen())
        m_port->close();
    if (m_port->open(QIODevice::ReadWrite))
        qDebug() << "serial port reset successfull!!";
    else
        qDebug() << "serial port reset not successfull!!";
}

void Communicator::SlotNewConnection() {}

void Communicator::SlotDestroyConnection()
{
    qDebug() << "connection terminated";
}

} // namespace Communication
} // namespace ovra
