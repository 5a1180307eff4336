#include "updatesender.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

QByteArray UpdateSender::blockText(int number, const QByteArray &data)
{
    return QByteArray::number(number).rightJustified(6, '0') + QByteArray::number(data.size()).rightJustified(3, '0') +
           data.toBase64() + '&' + QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex();
}

bool UpdateSender::load(const QByteArray &file, int blockBytes, const Faults &faults, QString *error)
{
    if (blockBytes < 1 || blockBytes > maxBlockBytes) {
        *error = QStringLiteral("block size must be 1 to %1 bytes").arg(maxBlockBytes);
        return false;
    }
    if (file.isEmpty()) {
        *error = QStringLiteral("the file is empty");
        return false;
    }
    if ((file.size() + blockBytes - 1) / blockBytes > 999999) {
        *error = QStringLiteral("more than 999999 blocks");
        return false;
    }
    *this = UpdateSender();
    m_faults = faults;
    for (int at = 0; at < file.size(); at += blockBytes)
        m_blocks.append(file.mid(at, blockBytes));
    for (int i = 0; i < m_blocks.size(); ++i) {
        m_attempts.append(0);
        m_order.append(i);
        if (decide(faults.dropPercent, quint32(i) * 3u + 1u))
            m_drop.insert(i);
    }
    for (int i = 0; i + 1 < m_order.size(); ++i) {
        if (decide(faults.reorderPercent, quint32(i) * 3u + 2u)) {
            m_order.swapItemsAt(i, i + 1);
            ++i;
        }
    }
    return true;
}

bool UpdateSender::decide(double percent, quint32 salt) const
{
    if (percent <= 0)
        return false;
    // One generator per decision: the same seed gives the same faults whatever the timing.
    QRandomGenerator random(m_faults.seed ^ (salt * 2654435761u));
    return random.bounded(100.0) < percent;
}

bool UpdateSender::next(Sending *sending)
{
    int number = -1;
    bool resend = false;
    if (!m_resendQueue.isEmpty()) {
        number = m_resendQueue.takeFirst();
        resend = true;
    } else if (m_position < m_order.size()) {
        number = m_order.at(m_position++);
    } else {
        return false;
    }

    const int attempt = m_attempts[number]++;
    *sending = Sending();
    sending->number = number;
    sending->resend = resend;
    sending->text = blockText(number, m_blocks.at(number));
    // Only first sendings are lost: the panel does not ask twice for a block it awaits.
    sending->dropped = !resend && m_drop.contains(number);
    sending->corrupted =
        !sending->dropped && decide(m_faults.corruptPercent, quint32(number) * 3u + quint32(attempt) * 7919u);
    if (sending->corrupted) {
        // One Base64 character of the data changed: the digest no longer fits.
        const int dataLength = sending->text.indexOf('&') - 9;
        if (dataLength > 0) {
            const int at = 9 + int(quint32(number * 131 + attempt) % quint32(dataLength));
            const char was = sending->text.at(at);
            sending->text[at] = was == 'A' ? 'B' : 'A';
        }
    }
    m_dropped += sending->dropped ? 1 : 0;
    m_corrupted += sending->corrupted ? 1 : 0;
    m_resent += resend ? 1 : 0;
    return true;
}

void UpdateSender::requestResend(int number, int inFlight)
{
    if (number < 0 || number >= m_blocks.size() || number == inFlight || m_resendQueue.contains(number))
        return;
    const int ahead = m_order.indexOf(number, m_position);
    if (ahead >= 0)
        m_order.removeAt(ahead);
    m_resendQueue.append(number);
}

void UpdateSender::resendLast()
{
    if (!m_blocks.isEmpty() && !m_resendQueue.contains(m_blocks.size() - 1))
        m_resendQueue.append(m_blocks.size() - 1);
}
