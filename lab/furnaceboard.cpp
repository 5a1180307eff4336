#include "lab/furnaceboard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMutexLocker>

namespace ovra {
namespace Lab {

FurnaceBoard::Entry *FurnaceBoard::Find(const QString &id, Change *full)
{
    auto it = m_furnaces.find(id);
    if (it != m_furnaces.end())
        return &it.value();
    if (m_furnaces.size() >= maxFurnaces) {
        *full = Change::Full;
        return nullptr;
    }
    return &m_furnaces[id];
}

FurnaceBoard::Change FurnaceBoard::SetOnline(const QString &id, bool online)
{
    QMutexLocker lock(&m_mutex);
    Change result = Change::Changed;
    const bool known = m_furnaces.contains(id);
    Entry *entry = Find(id, &result);
    if (!entry)
        return result;
    if (known && entry->online == online)
        return Change::Unchanged;
    entry->online = online;
    m_list.clear();
    return Change::Changed;
}

FurnaceBoard::Change FurnaceBoard::SetState(const QString &id, const QJsonObject &state)
{
    QMutexLocker lock(&m_mutex);
    Change result = Change::Changed;
    Entry *entry = Find(id, &result);
    if (!entry)
        return result;
    if (entry->hasState && entry->state == state)
        return Change::Unchanged;
    entry->state = state;
    entry->hasState = true;
    m_list.clear();
    return Change::Changed;
}

QJsonObject FurnaceBoard::ItemObject(const QString &id, const Entry &entry)
{
    return {{QStringLiteral("id"), id},
            {QStringLiteral("online"), entry.online},
            {QStringLiteral("state"), entry.hasState ? QJsonValue(entry.state) : QJsonValue(QJsonValue::Null)}};
}

QByteArray FurnaceBoard::Item(const QString &id) const
{
    QMutexLocker lock(&m_mutex);
    const auto it = m_furnaces.constFind(id);
    if (it == m_furnaces.constEnd())
        return {};
    return QJsonDocument(ItemObject(id, it.value())).toJson(QJsonDocument::Compact);
}

QByteArray FurnaceBoard::List() const
{
    QMutexLocker lock(&m_mutex);
    if (m_list.isEmpty()) {
        QJsonArray list;
        for (auto it = m_furnaces.constBegin(); it != m_furnaces.constEnd(); ++it)
            list.append(ItemObject(it.key(), it.value()));
        m_list = QJsonDocument(list).toJson(QJsonDocument::Compact);
    }
    return m_list;
}

int FurnaceBoard::Size() const
{
    QMutexLocker lock(&m_mutex);
    return m_furnaces.size();
}

} // namespace Lab
} // namespace ovra
