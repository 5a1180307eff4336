#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGINT and SIGTERM into a Qt signal through a self-pipe, so that a stop from the shell
// or a test harness ends the run through the same path as "quit" and prints the summary.
class SignalWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SignalWatcher(QObject *parent = nullptr);
    ~SignalWatcher() override;

    SignalWatcher(const SignalWatcher &) = delete;
    SignalWatcher &operator=(const SignalWatcher &) = delete;

    bool isActive() const { return m_notifier != nullptr; }

signals:
    void terminationRequested(int signalNumber);

private:
    void readPipe();

    QSocketNotifier *m_notifier = nullptr;
};
