#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QMutex>
#include <QString>

namespace ovra {
namespace Lab {

// Every furnace's last state and online flag, written by the broker's side and read by the web
// server's threads.
class FurnaceBoard
{
public:
    // A lab has a few dozen furnaces; a flood of invented ids must not grow the service without bound.
    static constexpr int maxFurnaces = 1000;

    enum class Change { Unchanged, Changed, Full };
    Change SetOnline(const QString &id, bool online);
    Change SetState(const QString &id, const QJsonObject &state);

    // {"id","online","state"}: the furnace as the event stream and the list show it.
    QByteArray Item(const QString &id) const;
    // All of them sorted by id, compact JSON.
    QByteArray List() const;
    int Size() const;

private:
    struct Entry
    {
        bool online = false;
        bool hasState = false;
        QJsonObject state;
    };
    Entry *Find(const QString &id, Change *full);
    static QJsonObject ItemObject(const QString &id, const Entry &entry);

    mutable QMutex m_mutex;
    QMap<QString, Entry> m_furnaces;
    mutable QByteArray m_list; // empty when it must be built anew
};

} // namespace Lab
} // namespace ovra
