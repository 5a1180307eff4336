#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

// The controller simulator as a child process, with its printed lines collected.
class Simulator
{
public:
    explicit Simulator(const QStringList &arguments);
    ~Simulator();

    // The pseudo-terminal the panel is to open; empty if the simulator did not start.
    QString SlavePath();
    bool Printed(const QString &line);
    // The printed lines matching `pattern`, oldest first.
    QStringList Lines(const QRegularExpression &pattern);
    // True once a frame carrying `part` went out and the panel has answered it.
    bool AnsweredFrameWith(const QString &part);
    // A line on the simulator's console, e.g. "temp 400".
    void Command(const QByteArray &line);

private:
    void Collect();

    QProcess m_process;
    QStringList m_lines;
};
