#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class QSocketNotifier;

// The simulator's end of the serial line: the master side of a pseudo-terminal whose slave the
// panel opens as if it were the real port.
//
// The panel only dispatches a frame when a read hands it the end byte without a start byte, so
// a frame is written in two parts: everything up to the end byte, then - once the panel has
// drained that from the slave and a little time has passed - the end byte alone. To see what
// the panel has not read yet we keep our own descriptor on the slave open; that also keeps the
// master readable (no EIO) while no panel is attached.
class PtyLine : public QObject
{
    Q_OBJECT

public:
    enum class LinkResult { Created, NotASymlink, Failed };

    explicit PtyLine(QObject *parent = nullptr);
    ~PtyLine() override;

    PtyLine(const PtyLine &) = delete;
    PtyLine &operator=(const PtyLine &) = delete;

    bool open(QString *error);
    QString slavePath() const { return m_slavePath; }

    // Points path at the slave. An existing symlink is replaced; anything else is left alone.
    LinkResult createLink(const QString &path, QString *error);
    // Removes the link again, but only if it still points at our slave.
    void removeLink();

    // frame: a complete frame ending in the end byte. Any frame still being sent is dropped.
    void sendFrame(const QByteArray &frame);
    // Stops the frame being sent; bytes not yet written are dropped.
    void abortFrame();
    bool isSending() const { return m_stage != Stage::Idle; }

    // Drops what was written to the slave and not read by the panel, so that a panel attaching
    // late does not start on a heap of stale frames.
    void discardUnreadInput();

    // Bytes written but not yet read on the slave side, -1 if unknown.
    int unreadBySlave() const;

signals:
    void bytesReceived(const QByteArray &bytes);
    // The end byte of the current frame is on the line.
    void frameWritten();
    void lineError(const QString &message);

private:
    enum class Stage { Idle, WritingHead, WaitingForRead, Settling, WritingTail };

    void readMaster();
    void flushOutput();
    void outputDrained();
    void pollSlave();
    void closeAll();

    int m_masterFd = -1;
    int m_slaveFd = -1;
    QString m_slavePath;
    QString m_linkPath;
    QSocketNotifier *m_readNotifier = nullptr;
    QSocketNotifier *m_writeNotifier = nullptr;
    QByteArray m_output;
    QByteArray m_tail;
    Stage m_stage = Stage::Idle;
    QTimer m_pollTimer;
    QTimer m_settleTimer;
    QElapsedTimer m_waitingSince;
};
