#pragma once

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QString>

namespace ovra {
namespace Lab {

class EventHub;
class FurnaceBoard;
class LabStore;
class Webhook;

// What the broker says, applied: furnaces' states and online flags to the board, records to
// the store, and every change to the event stream (and the webhook). Bad input is dropped with
// one log line per kind of fault, however often it comes.
class LabService : public QObject
{
    Q_OBJECT

public:
    LabService(LabStore *store, FurnaceBoard *board, EventHub *hub, Webhook *webhook, QObject *parent = nullptr);

    void Message(const QString &topic, const QByteArray &payload, int size);

private:
    void Problems(const QStringList &problems, const QString &topic);
    void FurnaceChanged(const QString &id);

    LabStore *m_store;
    FurnaceBoard *m_board;
    EventHub *m_hub;
    Webhook *m_webhook;
    QSet<QString> m_logged;
};

} // namespace Lab
} // namespace ovra
