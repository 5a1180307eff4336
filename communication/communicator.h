#pragma once

#include <QByteArray>
#include <QObject>
#include <QSerialPort>

class QTimer;

namespace ovra {
namespace Communication {

class MessageHandler;

// Owns the serial line to the controller: collects bytes into frames, hands each frame to
// the MessageHandler and writes its answer back. The panel never writes anything else.
class Communicator : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultWatchdogIntervalMs = 20000;
    // A partial frame that grows past this is noise, not a frame.
    static constexpr int maxBufferBytes = 1024 * 1024;

    Communicator(MessageHandler *handler, QObject *parent = nullptr,
                 const QString &portName = QStringLiteral("/dev/ttyAMA0"),
                 int watchdogIntervalMs = defaultWatchdogIntervalMs);

    bool IsPortOpen() const;

public slots:
    void SlotHandleMessage();
    void SlotHandleError(QSerialPort::SerialPortError error);
    void SlotRestartSerialCom();
    void SlotNewConnection();
    void SlotDestroyConnection();

private:
    // False when the bytes would overflow the buffer; the partial frame is then dropped.
    bool AppendToBuffer(const QByteArray &bytes);
    void DispatchBuffer();

    QSerialPort *m_port;
    MessageHandler *m_handler;
    QByteArray m_buffer;
    bool m_discarding = false; // after an overflow, until the next start byte
    QTimer *m_watchdog;
    int m_watchdogIntervalMs;
};

} // namespace Communication
} // namespace ovra
