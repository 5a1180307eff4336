#pragma once

#include <QByteArray>
#include <QString>

// The controller's end of the line for the soak run: a raw pseudo-terminal reached by the
// panel through a symlink, so the line can be unplugged (closed) and plugged back (a new
// pseudo-terminal behind the same link). Blocking calls with time limits: the soak driver is
// a script, not an event loop.
class SoakLine
{
public:
    explicit SoakLine(const QString &linkPath);
    ~SoakLine();
    SoakLine(const SoakLine &) = delete;
    SoakLine &operator=(const SoakLine &) = delete;

    bool Plug();
    void Unplug();
    bool IsPlugged() const { return m_master >= 0; }

    // Writes bytes, then waits until the panel has read them off the line (at most waitMs).
    bool WriteAndDrain(const QByteArray &bytes, int waitMs);
    // Appends what the panel wrote within waitMs to `received` (returns at the first bytes).
    void Read(QByteArray &received, int waitMs);

private:
    QString m_linkPath;
    int m_master = -1;
    int m_slave = -1; // our own descriptor: shows what the panel has not read yet
};
