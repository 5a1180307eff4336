#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace ovra {
namespace Lab {

// What the lab view accepts from the broker. Anyone on the lab network may publish, so every
// message is read as untrusted: the cleaned objects hold only known fields of the right type,
// and each kind of fault found is appended to `problems` as a short fixed phrase (never the
// input itself), so a caller can log it without echoing what was sent.
namespace Payloads {

constexpr int maxMessageBytes = 64 * 1024;
constexpr int maxRecordBytes = 4 * 1024 * 1024;

// Furnace and record ids: [A-Za-z0-9_-]{1,64}.
bool ValidId(const QString &id);
// A text that may safely appear in a log line: printable ASCII, the rest percent-encoded, cut short.
QString Printable(const QByteArray &text);

struct Topic
{
    QString furnace;
    QString kind; // "online", "state", "event", "record"
};
// "ovra/<id>/<kind>"; nullopt (with a problem) for an id that is not allowed.
std::optional<Topic> ParseTopic(const QString &topic, QStringList *problems);

std::optional<bool> Online(const QByteArray &payload, QStringList *problems);
std::optional<QJsonObject> State(const QByteArray &payload, QStringList *problems);
// The event with "furnace" added.
std::optional<QJsonObject> Event(const QByteArray &payload, const QString &furnace, QStringList *problems);
// The record as far as it is valid, "furnace" set to the topic's; nullopt without a valid id.
std::optional<QJsonObject> Record(const QByteArray &payload, const QString &furnace, QStringList *problems);

// A stored record as a line of the firing list: id, furnace, program, job, result, start, end.
QJsonObject ListItem(const QJsonObject &record);

} // namespace Payloads
} // namespace Lab
} // namespace ovra
