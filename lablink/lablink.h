#pragma once

#include "lablink/lablinkconfig.h"
#include "lablink/lablinkstatus.h"
#include "lablink/laboutbox.h"
#include "lablink/mqttclient.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QThreadPool>
#include <QTimer>

#include <memory>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}
namespace Records {
class FiringStore;
}

namespace LabLink {

// The furnace on the lab's broker: observes the furnace's state and its firing records and
// publishes them as docs/lablink.md states. Never touches the serial line: what it costs the
// controller's answer is a flag and a timer per report; the JSON is made between reports.
class LabLink : public QObject
{
    Q_OBJECT

public:
    struct Timing
    {
        int stateIntervalMs = 500; // at most one state per interval, the newest
        int backoffMinMs = 1000;
        int backoffMaxMs = 60000;
        int recordsInFlight = 2;
        int eventsWaiting = 100; // events kept while the broker is away; the oldest go first
    };

    // `<home>/lablink.ini`: none, no link (nullptr, nothing logged); a bad one, nullptr and one
    // log line. The furnace and the store must outlive the link.
    static std::unique_ptr<LabLink> FromHome(const QString &home, const GlobalElements::FurnaceState &furnace,
                                             Records::FiringStore &store, const Timing &timing);
    static std::unique_ptr<LabLink> FromHome(const QString &home, const GlobalElements::FurnaceState &furnace,
                                             Records::FiringStore &store)
    {
        return FromHome(home, furnace, store, Timing());
    }

    LabLink(const LabLinkConfig &config, const GlobalElements::FurnaceState &furnace, Records::FiringStore &store,
            const Timing &timing);
    ~LabLink() override; // says "false" on the way out

    const LabLinkStatus &Status() const { return m_status; }
    QString FurnaceId() const { return m_id; } // empty until known
    int StatesPublished() const { return m_statesPublished; }

public slots:
    // Every stored record once more, same ids.
    void ResendHistory();

signals:
    // A record the broker acknowledged (its id).
    void RecordDelivered(const QString &uid);

private:
    void StartWhenIdKnown();
    void OnConnected();
    void PublishDiscovery();
    void OnPublished(int mid);
    void StateChanged();
    void PublishState();
    void Event(const QString &event, const QJsonObject &fields);
    void PumpEvents();
    void PumpRecords();
    void RecordReady(qint64 firing, bool found, const QString &uid, const QByteArray &payload);
    void CollectSoon();
    void CheckDoorWarning();

    LabLinkConfig m_config;
    const GlobalElements::FurnaceState &m_furnace;
    Records::FiringStore &m_store;
    Timing m_timing;
    LabOutbox m_outbox;
    LabLinkStatus m_status;
    std::unique_ptr<MqttClient> m_client;
    QString m_id;

    QTimer m_stateTimer; // spacing of state publishes
    bool m_stateDirty = false;
    int m_stateMid = 0; // the state publish in flight, 0: none
    int m_statesPublished = 0;

    QList<QByteArray> m_events; // waiting for the broker
    QHash<int, bool> m_eventsInFlight;
    QHash<int, QPair<qint64, QString>> m_recordsInFlight; // message id: firing, uid
    // A ten-hour firing's record is read and made into JSON off the panel's thread: the
    // controller's frames are answered meanwhile.
    QThreadPool m_reader;
    QSet<qint64> m_preparing;
    bool m_doorWarned = false;
};

} // namespace LabLink
} // namespace ovra
