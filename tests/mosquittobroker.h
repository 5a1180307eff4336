#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

// Debian's mosquitto on a free loopback port, with its own config and persistence in `dir`.
// Stop() ends it as an administrator would (its sessions saved), Start() again keeps the port.
class MosquittoBroker
{
public:
    explicit MosquittoBroker(const QString &dir);
    ~MosquittoBroker();

    int Port() const { return m_port; }
    // `extra`: more config lines (password_file, certificates); false when it did not come up.
    bool Start(const QStringList &extra = {});
    void Stop();
    QString Dir() const { return m_dir; }
    qint64 ProcessId() const { return m_process.processId(); }
    QByteArray Log() const { return m_log; } // what it said up to its last start or stop

private:
    QString m_dir;
    int m_port = 0;
    QProcess m_process;
    QByteArray m_log;
};

// mosquitto_sub on the broker: every message as "topic payload", collected as it comes.
class MqttSubscriber
{
public:
    // `session`: a persistent session of that id (QoS 1 messages wait for it while away).
    MqttSubscriber(int port, const QString &topic, const QString &session = QString(), const QStringList &extra = {});
    ~MqttSubscriber();

    QStringList Lines(const QRegularExpression &pattern);
    // The payloads of `topic`, oldest first.
    QStringList Payloads(const QString &topic);

private:
    QProcess m_process;
    QByteArray m_pending;
    QStringList m_lines;
};
