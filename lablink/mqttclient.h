#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

struct mosquitto;

namespace ovra {
namespace LabLink {

// One connection to a broker through libmosquitto, driven by a thread of its own that also
// resolves the name, connects, and reconnects with a doubling delay. The caller's thread never
// waits on the network; what the library reports comes to it as queued signals.
class MqttClient : public QObject
{
    Q_OBJECT

public:
    enum class Problem { None, NameUnknown, Unreachable, Refused, NotAuthorised, Tls, Lost };

    struct Options
    {
        QString host;
        int port = 1883;
        QString username;
        QString password;
        QString cafile;
        int keepalive = 30;
        QString clientId;
        QString willTopic; // "false", retained, QoS 1
        int backoffMinMs = 1000;
        int backoffMaxMs = 60000;
    };

    static const char *Describe(Problem problem); // for the log: "broker unreachable", ...

    explicit MqttClient(const Options &options, QObject *parent = nullptr);
    ~MqttClient() override; // leaves without last words; see Finish()
    MqttClient(const MqttClient &) = delete;
    MqttClient &operator=(const MqttClient &) = delete;

    void Start();
    bool IsConnected() const { return m_connected; }
    // Queues the message with the library; the message id, or 0 when it was not taken (not
    // connected, or refused). Published(id) follows once QoS 0 is written or QoS 1 acknowledged.
    int Publish(const QString &topic, const QByteArray &payload, int qos, bool retain);
    // A clean leave: `payload` on the will's topic, then a disconnect; waits at most `waitMs`.
    void Finish(const QByteArray &payload, int waitMs);

signals:
    void Connected();
    void Disconnected(ovra::LabLink::MqttClient::Problem problem);
    void Published(int messageId);

private:
    void Run();
    void Report(Problem problem);
    void Halt();
    static void OnConnect(struct mosquitto *, void *self, int rc);
    static void OnDisconnect(struct mosquitto *, void *self, int rc);
    static void OnPublish(struct mosquitto *, void *self, int mid);

    Options m_options;
    struct mosquitto *m_mosq = nullptr;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_leaving{false};
    std::atomic<bool> m_connected{false};
    // The library's thread only:
    int m_delayMs = 0;
    Problem m_refusal = Problem::None;
    bool m_attemptConnected = false;
};

} // namespace LabLink
} // namespace ovra

Q_DECLARE_METATYPE(ovra::LabLink::MqttClient::Problem)
