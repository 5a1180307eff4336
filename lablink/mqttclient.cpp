#include "lablink/mqttclient.h"

#include <QDebug>
#include <QMetaObject>

#include <mosquitto.h>

#include <algorithm>
#include <cerrno>
#include <chrono>

namespace ovra {
namespace LabLink {

namespace {
// libmosquitto's global state lives as long as any client does.
std::mutex libraryMutex;
int libraryUsers = 0;

void useLibrary(bool use)
{
    std::lock_guard<std::mutex> lock(libraryMutex);
    if (use && libraryUsers++ == 0)
        mosquitto_lib_init();
    if (!use && --libraryUsers == 0)
        mosquitto_lib_cleanup();
}

MqttClient::Problem problemOf(int rc, int error)
{
    switch (rc) {
    case MOSQ_ERR_EAI: return MqttClient::Problem::NameUnknown;
    case MOSQ_ERR_TLS: return MqttClient::Problem::Tls;
    case MOSQ_ERR_CONN_LOST: return MqttClient::Problem::Lost;
    case MOSQ_ERR_ERRNO:
        if (error == ECONNRESET || error == EPIPE)
            return MqttClient::Problem::Lost;
        break;
    default: break;
    }
    return MqttClient::Problem::Unreachable;
}
} // namespace

const char *MqttClient::Describe(Problem problem)
{
    switch (problem) {
    case Problem::None: break;
    case Problem::NameUnknown: return "the broker's name is unknown";
    case Problem::Unreachable: return "the broker cannot be reached";
    case Problem::Refused: return "the broker refused the connection";
    case Problem::NotAuthorised: return "user name or password refused";
    case Problem::Tls: return "the TLS handshake failed";
    case Problem::Lost: return "the connection was lost";
    }
    return "no problem";
}

MqttClient::MqttClient(const Options &options, QObject *parent) : QObject(parent), m_options(options)
{
    qRegisterMetaType<Problem>();
    useLibrary(true);
    m_mosq = mosquitto_new(options.clientId.toUtf8().constData(), true, this);
    mosquitto_threaded_set(m_mosq, true);
    mosquitto_connect_callback_set(m_mosq, &MqttClient::OnConnect);
    mosquitto_disconnect_callback_set(m_mosq, &MqttClient::OnDisconnect);
    mosquitto_publish_callback_set(m_mosq, &MqttClient::OnPublish);
    if (!options.username.isEmpty())
        mosquitto_username_pw_set(m_mosq, options.username.toUtf8().constData(),
                                  options.password.isEmpty() ? nullptr : options.password.toUtf8().constData());
    if (!options.willTopic.isEmpty())
        mosquitto_will_set(m_mosq, options.willTopic.toUtf8().constData(), 5, "false", 1, true);
    if (!options.cafile.isEmpty()) {
        const int rc =
            mosquitto_tls_set(m_mosq, options.cafile.toUtf8().constData(), nullptr, nullptr, nullptr, nullptr);
        if (rc != MOSQ_ERR_SUCCESS)
            qDebug() << "lab link: the CA file" << options.cafile << "is not usable:" << mosquitto_strerror(rc);
    }
}

MqttClient::~MqttClient()
{
    m_stop = true;
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
    mosquitto_destroy(m_mosq);
    useLibrary(false);
}

void MqttClient::Start()
{
    if (!m_thread.joinable())
        m_thread = std::thread(&MqttClient::Run, this);
}

int MqttClient::Publish(const QString &topic, const QByteArray &payload, int qos, bool retain)
{
    if (!m_connected)
        return 0;
    int mid = 0;
    const int rc =
        mosquitto_publish(m_mosq, &mid, topic.toUtf8().constData(), payload.size(), payload.constData(), qos, retain);
    return rc == MOSQ_ERR_SUCCESS ? std::max(mid, 1) : 0;
}

void MqttClient::Finish(const QByteArray &payload, int waitMs)
{
    if (m_connected && !m_options.willTopic.isEmpty()) {
        m_leaving = true;
        Publish(m_options.willTopic, payload, 1, true);
        mosquitto_disconnect(m_mosq);
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait_for(lock, std::chrono::milliseconds(waitMs), [this] { return !m_connected; });
    }
    m_stop = true;
    m_wake.notify_all();
}

void MqttClient::Run()
{
    m_delayMs = m_options.backoffMinMs;
    bool first = true;
    while (!m_stop && !m_leaving) {
        errno = 0;
        int rc = first ? mosquitto_connect_async(m_mosq, m_options.host.toUtf8().constData(), m_options.port,
                                                 m_options.keepalive)
                       : mosquitto_reconnect_async(m_mosq);
        first = false;
        while (rc == MOSQ_ERR_SUCCESS && !m_stop)
            rc = mosquitto_loop(m_mosq, 100, 1);
        const int error = errno;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_connected = false;
        }
        m_wake.notify_all();
        if (m_stop || m_leaving)
            break;
        Report(m_refusal != Problem::None ? m_refusal : problemOf(rc, error));
        m_refusal = Problem::None;
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait_for(lock, std::chrono::milliseconds(m_delayMs), [this] { return m_stop.load(); });
        m_delayMs = std::min(m_delayMs * 2, m_options.backoffMaxMs);
    }
}

void MqttClient::Report(Problem problem)
{
    QMetaObject::invokeMethod(
        this, [this, problem] { emit Disconnected(problem); }, Qt::QueuedConnection);
}

void MqttClient::OnConnect(struct mosquitto *, void *self, int rc)
{
    auto *client = static_cast<MqttClient *>(self);
    if (rc != 0) {
        // 4: bad user name or password, 5: not authorised; others refuse the protocol or id.
        client->m_refusal = (rc == 4 || rc == 5) ? Problem::NotAuthorised : Problem::Refused;
        return;
    }
    client->m_delayMs = client->m_options.backoffMinMs;
    client->m_connected = true;
    QMetaObject::invokeMethod(
        client, [client] { emit client->Connected(); }, Qt::QueuedConnection);
}

void MqttClient::OnDisconnect(struct mosquitto *, void *self, int)
{
    auto *client = static_cast<MqttClient *>(self);
    {
        std::lock_guard<std::mutex> lock(client->m_mutex);
        client->m_connected = false;
    }
    client->m_wake.notify_all();
}

void MqttClient::OnPublish(struct mosquitto *, void *self, int mid)
{
    auto *client = static_cast<MqttClient *>(self);
    QMetaObject::invokeMethod(
        client, [client, mid] { emit client->Published(mid); }, Qt::QueuedConnection);
}

} // namespace LabLink
} // namespace ovra
