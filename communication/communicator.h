#pragma once

#include "communication/frameassembler.h"

#include <QByteArray>
#include <QObject>
#include <QSerialPort>

class QTimer;

namespace ovra {
namespace Communication {

class MessageHandler;

// Owns the serial line to the controller: collects bytes into frames, hands each frame to
// the MessageHandler and writes its answer back. The one frame the panel writes unasked is the
// handler's re-ask for update blocks when the controller has fallen silent mid-update.
class Communicator : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultWatchdogIntervalMs = 20000;
    static constexpr int maxBufferBytes = FrameAssembler::maxBufferBytes;

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
    void Dispatch(const QByteArray &frame);
    void SendUnasked(const QByteArray &frame);

    QSerialPort *m_port;
    MessageHandler *m_handler;
    FrameAssembler m_assembler;
    QTimer *m_watchdog;
    int m_watchdogIntervalMs;
};

} // namespace Communication
} // namespace ovra
