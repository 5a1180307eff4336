#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <atomic>

struct mosquitto;
struct mosquitto_message;

namespace ovra {
namespace Lab {

// The subscription to the furnaces' topics. libmosquitto runs its own network thread (it also
// reconnects); each message is handed to this object's thread by a queued invocation.
class MqttLink : public QObject
{
    Q_OBJECT

public:
    // `clientId` names a persistent session: QoS 1 records sent while the service was down
    // arrive when it is back.
    MqttLink(const QString &host, int port, const QString &clientId, QObject *parent = nullptr);
    ~MqttLink() override;

    bool Start(QString *error);
    // Disconnects and joins the network thread; no Message is emitted after it.
    void Stop();

signals:
    // `payload` is empty when the message was larger than `tooLarge` bytes; `size` is its size.
    void Message(const QString &topic, const QByteArray &payload, int size);

private:
    static void OnConnect(mosquitto *client, void *self, int rc);
    static void OnDisconnect(mosquitto *client, void *self, int rc);
    static void OnMessage(mosquitto *client, void *self, const mosquitto_message *message);

    QString m_host;
    int m_port;
    mosquitto *m_client = nullptr;
    bool m_running = false;
    std::atomic<bool> m_connected{false};
};

} // namespace Lab
} // namespace ovra
