#include "lab/labservice.h"

#include "lab/eventhub.h"
#include "lab/furnaceboard.h"
#include "lab/labstore.h"
#include "lab/payloads.h"
#include "lab/webhook.h"

#include <QDebug>
#include <QJsonDocument>

namespace ovra {
namespace Lab {

LabService::LabService(LabStore *store, FurnaceBoard *board, EventHub *hub, Webhook *webhook, QObject *parent)
    : QObject(parent), m_store(store), m_board(board), m_hub(hub), m_webhook(webhook)
{
}

void LabService::Problems(const QStringList &problems, const QString &topic)
{
    for (const QString &problem : problems) {
        if (m_logged.contains(problem))
            continue;
        m_logged.insert(problem);
        qWarning().noquote() << QStringLiteral("lab: bad input on %1: %2; dropped as far as invalid, further ones "
                                               "of this kind are not logged")
                                    .arg(Payloads::Printable(topic.toUtf8()), problem);
    }
}

void LabService::FurnaceChanged(const QString &id)
{
    m_hub->Publish("furnace", m_board->Item(id).toStdString());
}

void LabService::Message(const QString &topic, const QByteArray &payload, int size)
{
    QStringList problems;
    const auto parsed = Payloads::ParseTopic(topic, &problems);
    if (parsed && payload.isEmpty() && size > 0)
        problems << QStringLiteral("%1: larger than any payload").arg(parsed->kind);
    else if (parsed && parsed->kind != QLatin1String("record") && size > Payloads::maxMessageBytes)
        problems << QStringLiteral("%1: larger than any payload").arg(parsed->kind);
    if (!problems.isEmpty() || !parsed) {
        Problems(problems, topic);
        return;
    }
    const QString &id = parsed->furnace;
    FurnaceBoard::Change change = FurnaceBoard::Change::Unchanged;
    if (parsed->kind == QLatin1String("online")) {
        // An empty retained message clears the topic: the furnace is no longer announced.
        if (const auto online = payload.isEmpty() ? std::optional<bool>(false) : Payloads::Online(payload, &problems))
            change = m_board->SetOnline(id, *online);
    } else if (parsed->kind == QLatin1String("state")) {
        if (payload.isEmpty())
            return;
        if (const auto state = Payloads::State(payload, &problems))
            change = m_board->SetState(id, *state);
    } else if (parsed->kind == QLatin1String("event")) {
        if (const auto event = Payloads::Event(payload, id, &problems)) {
            const QByteArray json = QJsonDocument(*event).toJson(QJsonDocument::Compact);
            m_hub->Publish("event", json.toStdString());
            if (m_webhook)
                m_webhook->Post(json);
        }
    } else if (parsed->kind == QLatin1String("record")) {
        if (const auto record = Payloads::Record(payload, id, &problems)) {
            switch (m_store->AddRecord(*record)) {
            case LabStore::Added::Stored:
                m_hub->Publish("record",
                               QJsonDocument(Payloads::ListItem(*record)).toJson(QJsonDocument::Compact).toStdString());
                break;
            case LabStore::Added::Duplicate: problems << QStringLiteral("record: an id already stored"); break;
            case LabStore::Added::Failed: break;
            }
        }
    } else {
        problems << QStringLiteral("topic: not a kind the lab view reads");
    }
    if (change == FurnaceBoard::Change::Changed)
        FurnaceChanged(id);
    else if (change == FurnaceBoard::Change::Full)
        problems << QStringLiteral("topic: more furnaces than the lab view keeps");
    Problems(problems, topic);
}

} // namespace Lab
} // namespace ovra
