#include "lablink/lablink.h"

#include "app/furnacestate.h"
#include "lablink/labpayloads.h"
#include "process/firingrules.h"
#include "records/firinghistory.h"
#include "records/firingstore.h"

#include <QDebug>
#include <QJsonObject>

namespace ovra {
namespace LabLink {

using GlobalElements::FurnaceState;

std::unique_ptr<LabLink> LabLink::FromHome(const QString &home, const FurnaceState &furnace,
                                           Records::FiringStore &store, const Timing &timing)
{
    LabLinkConfig config;
    QString error;
    if (!LabLinkConfig::Load(home, &config, &error)) {
        if (!error.isEmpty())
            qDebug().noquote() << "lab link: no link:" << error;
        return nullptr;
    }
    return std::make_unique<LabLink>(config, furnace, store, timing);
}

LabLink::LabLink(const LabLinkConfig &config, const FurnaceState &furnace, Records::FiringStore &store,
                 const Timing &timing)
    : m_config(config), m_furnace(furnace), m_store(store), m_timing(timing), m_outbox(store)
{
    m_status.SetBroker(QStringLiteral("%1:%2%3")
                           .arg(config.host)
                           .arg(config.port)
                           .arg(config.cafile.isEmpty() ? QString() : QStringLiteral(" (TLS)")));
    m_reader.setMaxThreadCount(1);
    m_stateTimer.setSingleShot(true);
    m_stateTimer.setInterval(timing.stateIntervalMs);
    connect(&m_stateTimer, &QTimer::timeout, this, [this] {
        if (m_stateDirty)
            PublishState();
    });

    const FurnaceState *f = &furnace;
    for (auto signal : {&FurnaceState::DeviceChanged, &FurnaceState::ClockChanged, &FurnaceState::TemperatureChanged,
                        &FurnaceState::FiringStarted, &FurnaceState::FiringProgress, &FurnaceState::FiringOver,
                        &FurnaceState::FailuresCleared})
        connect(f, signal, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::UnitChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::DoorChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::MaterialChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::LanguageChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::PageChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::FiringEndChanged, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::FailureWithdrawn, this, &LabLink::StateChanged);
    connect(f, &FurnaceState::DeviceChanged, this, &LabLink::StartWhenIdKnown);
    connect(f, &FurnaceState::DeviceChanged, this, &LabLink::PublishDiscovery);
    connect(f, &FurnaceState::TemperatureChanged, this, &LabLink::CheckDoorWarning);
    connect(f, &FurnaceState::DoorChanged, this, &LabLink::CheckDoorWarning);

    connect(f, &FurnaceState::FiringStarted, this, [this] {
        const GlobalElements::Firing &firing = m_furnace.CurrentFiring();
        Event(QStringLiteral("firing_started"),
              {{QStringLiteral("program"), firing.program}, {QStringLiteral("job"), firing.job}});
        CollectSoon();
    });
    connect(f, &FurnaceState::FiringEnded, this, [this](Communication::FiringResult result) {
        const GlobalElements::Firing &firing = m_furnace.CurrentFiring();
        const QString word = result == Communication::FiringResult::Success   ? QStringLiteral("success")
                             : result == Communication::FiringResult::Stopped ? QStringLiteral("stopped")
                                                                              : QStringLiteral("failed");
        Event(QStringLiteral("firing_ended"), {{QStringLiteral("program"), firing.program},
                                               {QStringLiteral("job"), firing.job},
                                               {QStringLiteral("result"), word}});
        StateChanged();
        CollectSoon();
    });
    connect(f, &FurnaceState::FailureAdded, this, [this](const GlobalElements::FailureEntry &failure) {
        Event(QStringLiteral("failure"), {{QStringLiteral("code"), failure.code}});
        StateChanged();
    });
    connect(f, &FurnaceState::FailureWithdrawn, this, [this](const QString &code) {
        Event(QStringLiteral("failure_withdrawn"), {{QStringLiteral("code"), code}});
    });

    m_outbox.Collect();
    m_status.SetWaiting(m_outbox.Waiting());
    StartWhenIdKnown();
}

LabLink::~LabLink()
{
    m_reader.waitForDone();
    if (m_client)
        m_client->Finish("false", 1000);
}

void LabLink::StartWhenIdKnown()
{
    if (m_client)
        return;
    m_id = m_config.furnaceId.isEmpty() ? FurnaceIdFrom(m_furnace.Device().serial) : m_config.furnaceId;
    if (m_id.isEmpty())
        return;
    MqttClient::Options o;
    o.host = m_config.host;
    o.port = m_config.port;
    o.username = m_config.username;
    o.password = m_config.password;
    o.cafile = m_config.cafile;
    o.keepalive = m_config.keepalive;
    o.clientId = QStringLiteral("ovra-") + m_id;
    o.willTopic = Topic(m_id, "online");
    o.backoffMinMs = m_timing.backoffMinMs;
    o.backoffMaxMs = m_timing.backoffMaxMs;
    m_client = std::make_unique<MqttClient>(o);
    connect(m_client.get(), &MqttClient::Connected, this, &LabLink::OnConnected);
    connect(m_client.get(), &MqttClient::Disconnected, this, [this](MqttClient::Problem problem) {
        if (m_status.IsConnected() || problem != m_status.LastProblem())
            qDebug().noquote() << "lab link: not connected to" << m_status.Broker() + QLatin1Char(':')
                               << MqttClient::Describe(problem);
        m_status.SetConnected(false);
        m_status.SetProblem(problem);
        // What was in flight goes again after the next connect; a receiver drops duplicates.
        m_stateMid = 0;
        m_eventsInFlight.clear();
        m_recordsInFlight.clear();
    });
    connect(m_client.get(), &MqttClient::Published, this, &LabLink::OnPublished);
    m_client->Start();
}

void LabLink::OnConnected()
{
    qDebug() << "lab link: connected to" << m_status.Broker() << "as" << m_id;
    m_status.SetConnected(true);
    m_client->Publish(Topic(m_id, "online"), "true", 1, true);
    PublishDiscovery();
    m_stateDirty = true;
    PublishState();
    PumpEvents();
    PumpRecords();
}

void LabLink::PublishDiscovery()
{
    // Again when the controller describes the furnace anew: the model and version are in it.
    if (!m_client || !m_client->IsConnected())
        return;
    for (const auto &message : DiscoveryMessages(m_id, m_furnace.Device()))
        m_client->Publish(message.first, message.second, 1, true);
}

void LabLink::OnPublished(int mid)
{
    if (mid == m_stateMid) {
        m_stateMid = 0;
        if (m_stateDirty && !m_stateTimer.isActive())
            PublishState();
    }
    if (m_eventsInFlight.remove(mid) > 0)
        PumpEvents();
    const auto record = m_recordsInFlight.constFind(mid);
    if (record != m_recordsInFlight.constEnd()) {
        const QString uid = record.value().second;
        m_outbox.Done(record.value().first);
        m_recordsInFlight.erase(record);
        m_status.SetWaiting(m_outbox.Waiting());
        emit RecordDelivered(uid);
        PumpRecords();
    }
}

void LabLink::StateChanged()
{
    m_stateDirty = true;
    if (!m_stateTimer.isActive() && m_stateMid == 0)
        PublishState();
}

void LabLink::PublishState()
{
    if (!m_client || !m_client->IsConnected() || m_stateMid != 0)
        return;
    m_stateMid = m_client->Publish(Topic(m_id, "state"), StatePayload(m_furnace), 0, true);
    if (m_stateMid == 0)
        return;
    m_stateDirty = false;
    ++m_statesPublished;
    m_stateTimer.start();
}

void LabLink::Event(const QString &event, const QJsonObject &fields)
{
    if (m_events.size() >= m_timing.eventsWaiting) {
        qDebug() << "lab link: too many events waiting, the oldest is dropped";
        m_events.removeFirst();
    }
    m_events.append(EventPayload(event, m_furnace, fields));
    PumpEvents();
}

void LabLink::PumpEvents()
{
    // Unacknowledged events are bounded, so a broker that stops reading holds at most a few.
    while (m_client && m_client->IsConnected() && !m_events.isEmpty() && m_eventsInFlight.size() < 10) {
        const int mid = m_client->Publish(Topic(m_id, "event"), m_events.first(), 1, false);
        if (mid == 0)
            return;
        m_events.removeFirst();
        m_eventsInFlight.insert(mid, true);
    }
}

void LabLink::PumpRecords()
{
    const int busy = m_recordsInFlight.size() + m_preparing.size();
    if (!m_client || !m_client->IsConnected() || busy >= m_timing.recordsInFlight)
        return;
    QSet<qint64> sending = m_preparing;
    for (const auto &record : qAsConst(m_recordsInFlight))
        sending.insert(record.first);
    const QString file = m_store.File();
    const QString id = m_id;
    for (qint64 firing : m_outbox.Next(m_timing.recordsInFlight - busy, sending)) {
        m_preparing.insert(firing);
        m_reader.start([this, file, id, firing] {
            Records::FiringRecord record;
            bool found = false;
            {
                const Records::FiringHistory history(file);
                found = history.Load(firing, &record);
            }
            const QByteArray payload = found ? RecordPayload(record, id) : QByteArray();
            const QString uid = record.uid;
            QMetaObject::invokeMethod(
                this, [this, firing, found, uid, payload] { RecordReady(firing, found, uid, payload); },
                Qt::QueuedConnection);
        });
    }
}

void LabLink::RecordReady(qint64 firing, bool found, const QString &uid, const QByteArray &payload)
{
    m_preparing.remove(firing);
    if (!found) {
        m_outbox.Done(firing); // gone from the store
        m_status.SetWaiting(m_outbox.Waiting());
    } else if (m_client->IsConnected()) {
        const int mid = m_client->Publish(Topic(m_id, "record"), payload, 1, false);
        if (mid != 0)
            m_recordsInFlight.insert(mid, {firing, uid});
    }
    PumpRecords();
}

void LabLink::CollectSoon()
{
    // After the recorder has written the firing's beginning or result, whatever order the
    // furnace's observers were connected in.
    QTimer::singleShot(0, this, [this] {
        m_outbox.Collect();
        m_status.SetWaiting(m_outbox.Waiting());
        PumpRecords();
    });
}

void LabLink::CheckDoorWarning()
{
    const bool warn = Process::Door::WarnHot(m_furnace.Shown().value, m_furnace.DoorTempLimit(), m_furnace.Door());
    if (warn && !m_doorWarned)
        Event(QStringLiteral("door_warning"),
              {{QStringLiteral("temperature"), static_cast<qint64>(qRound64(m_furnace.Celsius()))}});
    m_doorWarned = warn;
}

void LabLink::ResendHistory()
{
    const int queued = m_outbox.RequeueAll();
    qDebug() << "lab link: the whole history queued again," << queued << "records waiting";
    m_status.SetWaiting(queued);
    PumpRecords();
}

} // namespace LabLink
} // namespace ovra
