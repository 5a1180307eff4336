#include "lab/mqttlink.h"

#include "lab/payloads.h"

#include <QDebug>

#include <mosquitto.h>

namespace ovra {
namespace Lab {

MqttLink::MqttLink(const QString &host, int port, const QString &clientId, QObject *parent)
    : QObject(parent), m_host(host), m_port(port)
{
    m_client = mosquitto_new(clientId.toUtf8().constData(), false, this);
    if (m_client) {
        mosquitto_connect_callback_set(m_client, &MqttLink::OnConnect);
        mosquitto_disconnect_callback_set(m_client, &MqttLink::OnDisconnect);
        mosquitto_message_callback_set(m_client, &MqttLink::OnMessage);
        mosquitto_reconnect_delay_set(m_client, 1, 30, true);
    }
}

MqttLink::~MqttLink()
{
    Stop();
    if (m_client)
        mosquitto_destroy(m_client);
}

bool MqttLink::Start(QString *error)
{
    if (!m_client) {
        *error = QStringLiteral("cannot create an MQTT client");
        return false;
    }
    // Asynchronous: a broker that is not up yet is retried by the network thread.
    const int rc = mosquitto_connect_async(m_client, m_host.toUtf8().constData(), m_port, 30);
    if (rc != MOSQ_ERR_SUCCESS && rc != MOSQ_ERR_ERRNO) {
        *error =
            QStringLiteral("cannot reach the broker %1:%2: %3").arg(m_host).arg(m_port).arg(mosquitto_strerror(rc));
        return false;
    }
    if (rc == MOSQ_ERR_ERRNO)
        qWarning().noquote()
            << QStringLiteral("lab: the broker %1:%2 is not reachable yet; retrying").arg(m_host).arg(m_port);
    if (mosquitto_loop_start(m_client) != MOSQ_ERR_SUCCESS) {
        *error = QStringLiteral("cannot start the MQTT thread");
        return false;
    }
    m_running = true;
    return true;
}

void MqttLink::Stop()
{
    if (!m_running)
        return;
    m_running = false;
    mosquitto_disconnect(m_client);
    mosquitto_loop_stop(m_client, false);
}

void MqttLink::OnConnect(mosquitto *client, void *self, int rc)
{
    auto *link = static_cast<MqttLink *>(self);
    if (rc != 0) {
        qWarning().noquote() << QStringLiteral("lab: the broker refused the connection: %1")
                                    .arg(QString::fromUtf8(mosquitto_connack_string(rc)));
        return;
    }
    link->m_connected = true;
    qInfo().noquote() << QStringLiteral("lab: connected to the broker %1:%2").arg(link->m_host).arg(link->m_port);
    for (const char *topic : {"ovra/+/online", "ovra/+/state", "ovra/+/event", "ovra/+/record"})
        mosquitto_subscribe(client, nullptr, topic, 1);
}

void MqttLink::OnDisconnect(mosquitto *, void *self, int rc)
{
    auto *link = static_cast<MqttLink *>(self);
    // Retries fail quietly: one line when the link is lost, one when it is back.
    if (rc != 0 && link->m_connected.exchange(false))
        qWarning().noquote()
            << QStringLiteral("lab: lost the broker %1:%2; reconnecting").arg(link->m_host).arg(link->m_port);
}

void MqttLink::OnMessage(mosquitto *, void *self, const mosquitto_message *message)
{
    auto *link = static_cast<MqttLink *>(self);
    const QString topic = QString::fromUtf8(message->topic);
    const int size = message->payloadlen;
    // Too large for any of our payloads: not copied, only reported.
    const QByteArray payload = size > Payloads::maxRecordBytes || size <= 0
                                   ? QByteArray()
                                   : QByteArray(static_cast<const char *>(message->payload), size);
    QMetaObject::invokeMethod(
        link, [link, topic, payload, size] { emit link->Message(topic, payload, size); }, Qt::QueuedConnection);
}

} // namespace Lab
} // namespace ovra
