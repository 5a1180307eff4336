#include "lablink/mqttclient.h"

#include <QDebug>
#include <QMetaObject>

#include <mosquitto.h>

#include <dlfcn.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>

namespace ovra {
namespace LabLink {

namespace {
// libmosquitto, and the TLS libraries it brings, cost the panel 2 MB at start-up: they are
// loaded only when a link is configured. Never unloaded.
struct Library
{
    decltype(&mosquitto_lib_init) lib_init = nullptr;
    decltype(&mosquitto_lib_cleanup) lib_cleanup = nullptr;
    decltype(&mosquitto_new) make = nullptr;
    decltype(&mosquitto_destroy) destroy = nullptr;
    decltype(&mosquitto_threaded_set) threaded_set = nullptr;
    decltype(&mosquitto_connect_callback_set) connect_callback_set = nullptr;
    decltype(&mosquitto_disconnect_callback_set) disconnect_callback_set = nullptr;
    decltype(&mosquitto_publish_callback_set) publish_callback_set = nullptr;
    decltype(&mosquitto_username_pw_set) username_pw_set = nullptr;
    decltype(&mosquitto_will_set) will_set = nullptr;
    decltype(&mosquitto_tls_set) tls_set = nullptr;
    decltype(&mosquitto_strerror) strerror = nullptr;
    decltype(&mosquitto_publish) publish = nullptr;
    decltype(&mosquitto_disconnect) disconnect = nullptr;
    decltype(&mosquitto_connect_async) connect_async = nullptr;
    decltype(&mosquitto_reconnect_async) reconnect_async = nullptr;
    decltype(&mosquitto_loop) loop = nullptr;
};

template <typename F>
bool resolve(void *handle, const char *name, F *out)
{
    void *symbol = dlsym(handle, name);
    std::memcpy(out, &symbol, sizeof symbol);
    return symbol != nullptr;
}

const Library *library()
{
    static const Library *loaded = []() -> const Library * {
        void *handle = dlopen("libmosquitto.so.1", RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) {
            qDebug() << "lab link: libmosquitto.so.1 cannot be loaded:" << dlerror();
            return nullptr;
        }
        static Library l;
        const bool complete =
            resolve(handle, "mosquitto_lib_init", &l.lib_init) &&
            resolve(handle, "mosquitto_lib_cleanup", &l.lib_cleanup) && resolve(handle, "mosquitto_new", &l.make) &&
            resolve(handle, "mosquitto_destroy", &l.destroy) &&
            resolve(handle, "mosquitto_threaded_set", &l.threaded_set) &&
            resolve(handle, "mosquitto_connect_callback_set", &l.connect_callback_set) &&
            resolve(handle, "mosquitto_disconnect_callback_set", &l.disconnect_callback_set) &&
            resolve(handle, "mosquitto_publish_callback_set", &l.publish_callback_set) &&
            resolve(handle, "mosquitto_username_pw_set", &l.username_pw_set) &&
            resolve(handle, "mosquitto_will_set", &l.will_set) && resolve(handle, "mosquitto_tls_set", &l.tls_set) &&
            resolve(handle, "mosquitto_strerror", &l.strerror) && resolve(handle, "mosquitto_publish", &l.publish) &&
            resolve(handle, "mosquitto_disconnect", &l.disconnect) &&
            resolve(handle, "mosquitto_connect_async", &l.connect_async) &&
            resolve(handle, "mosquitto_reconnect_async", &l.reconnect_async) &&
            resolve(handle, "mosquitto_loop", &l.loop);
        if (!complete)
            qDebug() << "lab link: libmosquitto.so.1 lacks a function it should have";
        return complete ? &l : nullptr;
    }();
    return loaded;
}

// libmosquitto's global state lives as long as any client does.
std::mutex libraryMutex;
int libraryUsers = 0;

void useLibrary(const Library *lib, bool use)
{
    std::lock_guard<std::mutex> lock(libraryMutex);
    if (use && libraryUsers++ == 0)
        lib->lib_init();
    if (!use && --libraryUsers == 0)
        lib->lib_cleanup();
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
    const Library *lib = library();
    if (lib == nullptr)
        return;
    useLibrary(lib, true);
    m_mosq = lib->make(options.clientId.toUtf8().constData(), true, this);
    lib->threaded_set(m_mosq, true);
    lib->connect_callback_set(m_mosq, &MqttClient::OnConnect);
    lib->disconnect_callback_set(m_mosq, &MqttClient::OnDisconnect);
    lib->publish_callback_set(m_mosq, &MqttClient::OnPublish);
    if (!options.username.isEmpty())
        lib->username_pw_set(m_mosq, options.username.toUtf8().constData(),
                             options.password.isEmpty() ? nullptr : options.password.toUtf8().constData());
    if (!options.willTopic.isEmpty())
        lib->will_set(m_mosq, options.willTopic.toUtf8().constData(), 5, "false", 1, true);
    if (!options.cafile.isEmpty()) {
        const int rc = lib->tls_set(m_mosq, options.cafile.toUtf8().constData(), nullptr, nullptr, nullptr, nullptr);
        if (rc != MOSQ_ERR_SUCCESS)
            qDebug() << "lab link: the CA file" << options.cafile << "is not usable:" << lib->strerror(rc);
    }
}

MqttClient::~MqttClient()
{
    Halt();
    if (m_thread.joinable())
        m_thread.join();
    if (m_mosq == nullptr)
        return;
    library()->destroy(m_mosq);
    useLibrary(library(), false);
}

void MqttClient::Start()
{
    if (m_mosq != nullptr && !m_thread.joinable())
        m_thread = std::thread(&MqttClient::Run, this);
}

int MqttClient::Publish(const QString &topic, const QByteArray &payload, int qos, bool retain)
{
    if (!m_connected)
        return 0;
    int mid = 0;
    const int rc =
        library()->publish(m_mosq, &mid, topic.toUtf8().constData(), payload.size(), payload.constData(), qos, retain);
    return rc == MOSQ_ERR_SUCCESS ? std::max(mid, 1) : 0;
}

void MqttClient::Finish(const QByteArray &payload, int waitMs)
{
    if (m_connected && !m_options.willTopic.isEmpty()) {
        m_leaving = true;
        Publish(m_options.willTopic, payload, 1, true);
        library()->disconnect(m_mosq);
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait_for(lock, std::chrono::milliseconds(waitMs), [this] { return !m_connected; });
    }
    Halt();
}

void MqttClient::Halt()
{
    {
        // Under the lock: the thread's wait for its next attempt must not miss it.
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_all();
}

void MqttClient::Run()
{
    const Library *lib = library();
    m_delayMs = m_options.backoffMinMs;
    bool first = true;
    while (!m_stop && !m_leaving) {
        errno = 0;
        int rc =
            first ? lib->connect_async(m_mosq, m_options.host.toUtf8().constData(), m_options.port, m_options.keepalive)
                  : lib->reconnect_async(m_mosq);
        first = false;
        m_attemptConnected = false;
        while (rc == MOSQ_ERR_SUCCESS && !m_stop)
            rc = lib->loop(m_mosq, 100, 1);
        const int error = errno;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_connected = false;
        }
        m_wake.notify_all();
        if (m_stop || m_leaving)
            break;
        Problem problem = m_refusal != Problem::None ? m_refusal : problemOf(rc, error);
        if (problem == Problem::Lost && !m_attemptConnected)
            problem = Problem::Unreachable; // closed before it was ever accepted
        Report(problem);
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
    client->m_attemptConnected = true;
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
