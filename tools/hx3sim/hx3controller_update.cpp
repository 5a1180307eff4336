// Streaming an update file to the panel, block by block, as the controller does.
#include "hx3controller.h"

#include "ptyline.h"
#include "simframe.h"

#include <QFile>

namespace {
// A block lost on the line still took its time there; the panel's request for it then
// arrives before the next block, as on the real line.
constexpr int kLostBlockMs = 20;
// After the panel has read a block's end byte, before the next start byte: the panel drops a
// frame whose end byte reaches it in one read with the next frame's start.
constexpr int kEndByteSettleMs = 15;
// Quiet after the last block without the panel's end: its last block was lost.
constexpr int kTailQuietMs = 1000;
constexpr int kTailRetries = 3;
} // namespace

void Hx3Controller::commandUpdate(const QString &arguments)
{
    if (arguments.isEmpty()) {
        emit message(QStringLiteral("usage: update FILE"));
        return;
    }
    if (m_update.streaming) {
        emit message(QStringLiteral("update: one is already running"));
        return;
    }
    QFile file(arguments);
    if (!file.open(QIODevice::ReadOnly)) {
        emit message(QStringLiteral("update: cannot read %1: %2").arg(arguments, file.errorString()));
        return;
    }
    QString error;
    if (!m_update.sender.load(file.readAll(), m_options.updateBlockBytes, m_options.updateFaults, &error)) {
        emit message(QStringLiteral("update: %1: %2").arg(arguments, error));
        return;
    }
    emit message(QStringLiteral("update: %1, %2 blocks of up to %3 bytes")
                     .arg(arguments)
                     .arg(m_update.sender.total())
                     .arg(m_options.updateBlockBytes));
    enqueue({{{"update==" + QByteArray::number(m_update.sender.total())}, Kind::Update}});
}

void Hx3Controller::startStreaming()
{
    m_update.streaming = true;
    m_update.inFlight = -1;
    m_update.draining = false;
    m_update.tailRetries = 0;
    m_update.lastDecile = 0;
    m_update.clock.start();
    sendNextBlock();
}

void Hx3Controller::sendNextBlock()
{
    if (!m_update.streaming || m_update.inFlight >= 0 || m_update.pace.isActive())
        return;
    UpdateSender::Sending sending;
    if (!m_update.sender.next(&sending)) {
        if (!m_update.tail.isActive())
            m_update.tail.start(kTailQuietMs);
        return;
    }
    m_update.tail.stop();

    const int decile = m_update.sender.firstPassSent() * 10 / m_update.sender.total();
    if (decile > m_update.lastDecile) {
        m_update.lastDecile = decile;
        emit message(QStringLiteral("update: %1% sent (%2/%3 blocks, %4 resent)")
                         .arg(decile * 10)
                         .arg(m_update.sender.firstPassSent())
                         .arg(m_update.sender.total())
                         .arg(m_update.sender.resent()));
    }
    if (m_options.verbose)
        emit message(QStringLiteral("tx block %1%2%3%4")
                         .arg(sending.number)
                         .arg(QLatin1String(sending.resend ? " again" : ""))
                         .arg(QLatin1String(sending.dropped ? " (lost)" : ""))
                         .arg(QLatin1String(sending.corrupted ? " (damaged)" : "")));

    m_update.frameBytes = sending.text.size() + 2;
    m_update.frameClock.start();
    if (sending.dropped) {
        scheduleNextBlock(kLostBlockMs);
        return;
    }
    m_update.inFlight = sending.number;
    m_line->sendFrame(simframe::kStx + sending.text + simframe::kEtx);
}

void Hx3Controller::scheduleNextBlock(int minimumMs)
{
    if (m_update.draining) {
        m_update.pace.start(1);
        return;
    }
    // Ten bits a byte on the line: start, eight data, stop.
    const qint64 lineMs = m_options.updateBaud > 0 ? qint64(m_update.frameBytes) * 10000 / m_options.updateBaud : 0;
    const qint64 wait = qMax<qint64>(lineMs, minimumMs) - m_update.frameClock.elapsed();
    m_update.pace.start(int(qMax<qint64>(0, wait)));
}

void Hx3Controller::onUpdatePace()
{
    if (m_update.draining) {
        if (m_line->unreadBySlave() > 0) {
            m_update.pace.start(1);
            return;
        }
        m_update.draining = false;
        scheduleNextBlock(int(m_update.frameClock.elapsed()) + kEndByteSettleMs);
        return;
    }
    sendNextBlock();
}

void Hx3Controller::onUpdateAnswer(const QByteArray &content)
{
    const QList<QByteArray> fields = simframe::splitFields(content);
    if (fields.size() < 2 || !simframe::checksumMatches(fields)) {
        ++m_counters.badChecksum;
        emit message(QStringLiteral("BAD ANSWER (checksum) during update ") + simframe::printable(content));
        return;
    }
    ++m_counters.answers;
    bool ended = false;
    for (int i = 0; i + 1 < fields.size(); ++i) {
        ++m_counters.requests;
        const auto [keyword, parameter] = simframe::splitCommand(fields.at(i));
        if (m_options.verbose)
            emit message(QStringLiteral("request: ") + QString::fromUtf8(fields.at(i)));
        bool ok = false;
        const int number = parameter.toInt(&ok);
        if (keyword == "resend" && ok)
            m_update.sender.requestResend(number, m_update.inFlight);
        else if (keyword == "endupdate")
            ended = true;
        else if (keyword != "hx3update")
            emit message(QStringLiteral("update: unexpected request ") + QString::fromUtf8(fields.at(i)));
    }
    if (ended) {
        finishUpdate(QStringLiteral("panel has the file"));
        return;
    }
    sendNextBlock();
}

void Hx3Controller::onUpdateTail()
{
    if (++m_update.tailRetries > kTailRetries) {
        finishUpdate(QStringLiteral("panel did not finish"));
        return;
    }
    emit message(QStringLiteral("update: no end from the panel, last block again"));
    m_update.sender.resendLast();
    sendNextBlock();
}

void Hx3Controller::finishUpdate(const QString &how)
{
    m_update.streaming = false;
    m_update.inFlight = -1;
    m_update.pace.stop();
    m_update.tail.stop();
    emit message(QStringLiteral("update: %1 after %2 s: %3 blocks, %4 lost, %5 damaged, %6 sent again")
                     .arg(how)
                     .arg(double(m_update.clock.elapsed()) / 1000.0, 0, 'f', 1)
                     .arg(m_update.sender.total())
                     .arg(m_update.sender.dropped())
                     .arg(m_update.sender.corrupted())
                     .arg(m_update.sender.resent()));
    sendNext();
}
