#pragma once

#include "lablink/mqttclient.h"

#include <QObject>
#include <QString>

namespace ovra {
namespace LabLink {

// What the service page shows of the link: the broker, connected or not, the last problem in
// words of the language shown, and how many records wait for the broker. No widget.
class LabLinkStatus : public QObject
{
    Q_OBJECT

public:
    explicit LabLinkStatus(QObject *parent = nullptr) : QObject(parent) {}

    QString Broker() const { return m_broker; } // "host:port", " (TLS)" added when encrypted
    bool IsConfigured() const { return !m_broker.isEmpty(); }
    bool IsConnected() const { return m_connected; }
    MqttClient::Problem LastProblem() const { return m_problem; }
    QString StateText() const;   // "Verbunden", "Nicht verbunden", ..., translated
    QString ProblemText() const; // empty without a problem since the start
    int Waiting() const { return m_waiting; }

    void SetBroker(const QString &broker);
    void SetConnected(bool connected);
    void SetProblem(MqttClient::Problem problem);
    void SetWaiting(int records);

signals:
    void Changed();

private:
    QString m_broker;
    bool m_connected = false;
    MqttClient::Problem m_problem = MqttClient::Problem::None;
    int m_waiting = 0;
};

} // namespace LabLink
} // namespace ovra
