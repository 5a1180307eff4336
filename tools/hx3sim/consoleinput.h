#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QSocketNotifier;

// Operator commands, one per line, from a file descriptor (standard input in the program).
// End of input just stops listening: the simulator also runs with stdin closed or /dev/null.
class ConsoleInput : public QObject
{
    Q_OBJECT

public:
    explicit ConsoleInput(int fd, QObject *parent = nullptr);

signals:
    void lineReceived(const QString &line);

private:
    void readAvailable();

    int m_fd;
    QSocketNotifier *m_notifier = nullptr;
    QByteArray m_pending;
};
