#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

// The controller's half of an update: the file cut into blocks (number, length, Base64 data,
// "&", MD5 in hex), the order they go out in, and the panel's "resend==N" requests. Written
// without the panel's code, so that the two check each other. For tests of the panel it can
// lose, damage and swap blocks, decided by a seed so that a run can be repeated.
class UpdateSender
{
public:
    struct Faults
    {
        double dropPercent = 0;    // first sendings lost on the line
        double corruptPercent = 0; // sendings with one data character changed
        double reorderPercent = 0; // blocks sent after their successor
        quint32 seed = 1;
    };

    struct Sending
    {
        int number = -1;
        QByteArray text;      // the block as it goes between start and end byte
        bool dropped = false; // nothing reaches the panel
        bool corrupted = false;
        bool resend = false;
    };

    static constexpr int maxBlockBytes = 999; // three digits of declared length

    bool load(const QByteArray &file, int blockBytes, const Faults &faults, QString *error);
    int total() const { return m_blocks.size(); }

    // What goes out next: blocks asked for again first, then the file in order. False when
    // nothing is left to send.
    bool next(Sending *sending);
    // The panel asks for a block. A block on its way right now, or still to come, is not
    // sent twice: a second copy would only cost line time.
    void requestResend(int number, int inFlight);
    // The last block again, for a panel that never saw the end of the file.
    void resendLast();

    int firstPassSent() const { return m_position; }
    bool firstPassDone() const { return m_position >= m_order.size(); }
    int dropped() const { return m_dropped; }
    int corrupted() const { return m_corrupted; }
    int resent() const { return m_resent; }

    static QByteArray blockText(int number, const QByteArray &data);

private:
    bool decide(double percent, quint32 salt) const;

    QList<QByteArray> m_blocks;
    QList<int> m_order; // first pass
    QSet<int> m_drop;   // first sendings lost
    QList<int> m_resendQueue;
    QList<int> m_attempts; // sendings so far, per block
    Faults m_faults;
    int m_position = 0;
    int m_dropped = 0;
    int m_corrupted = 0;
    int m_resent = 0;
};
