#include "lablink/laboutbox.h"

#include "records/firingstore.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace ovra {
namespace LabLink {

LabOutbox::LabOutbox(Records::FiringStore &store) : m_store(store)
{
    // A panel that never fired has no file yet: whatever is recorded from now on is new.
    if (!m_store.IsOpen())
        m_initialMark = 0;
}

bool LabOutbox::Exec(const QString &sql) const
{
    QSqlQuery query(QSqlDatabase::database(m_store.Connection(), false));
    if (query.exec(sql))
        return true;
    qDebug() << "lab link outbox:" << sql.left(40) << query.lastError().text();
    return false;
}

bool LabOutbox::Ready() const
{
    if (!m_store.IsOpen())
        return false;
    if (!m_tables)
        m_tables = Exec(QStringLiteral("CREATE TABLE IF NOT EXISTS lablink_outbox(firing INTEGER PRIMARY KEY"
                                       " REFERENCES firings(id) ON DELETE CASCADE)")) &&
                   Exec(QStringLiteral("CREATE TABLE IF NOT EXISTS lablink_mark(one INTEGER PRIMARY KEY CHECK(one = 1),"
                                       " firing INTEGER)"));
    return m_tables;
}

void LabOutbox::Collect()
{
    if (!Ready())
        return;
    const QSqlDatabase db = QSqlDatabase::database(m_store.Connection(), false);
    QSqlQuery mark(db);
    if (!mark.exec(QStringLiteral("SELECT firing FROM lablink_mark")))
        return;
    qint64 since = 0;
    if (mark.next()) {
        since = mark.value(0).toLongLong();
    } else {
        QSqlQuery newest(db);
        since = m_initialMark >= 0 ? m_initialMark
                : newest.exec(QStringLiteral("SELECT COALESCE(MAX(id), 0) FROM firings")) && newest.next()
                    ? newest.value(0).toLongLong()
                    : 0;
    }
    QSqlQuery take(db);
    take.prepare(QStringLiteral("INSERT OR IGNORE INTO lablink_outbox(firing) SELECT id FROM firings WHERE id > ?"));
    take.addBindValue(since);
    QSqlQuery store(db);
    store.prepare(QStringLiteral("INSERT OR REPLACE INTO lablink_mark(one, firing)"
                                 " VALUES(1, (SELECT MAX(COALESCE((SELECT MAX(id) FROM firings), 0), ?)))"));
    store.addBindValue(since);
    if (!take.exec() || !store.exec())
        qDebug() << "lab link outbox: cannot take in new firings" << take.lastError().text()
                 << store.lastError().text();
    m_store.Flush();
}

QList<qint64> LabOutbox::Next(int limit, const QSet<qint64> &excluding) const
{
    QList<qint64> out;
    if (!Ready())
        return out;
    QSqlQuery query(QSqlDatabase::database(m_store.Connection(), false));
    query.prepare(QStringLiteral("SELECT o.firing FROM lablink_outbox o JOIN firings f ON f.id = o.firing"
                                 " WHERE f.result IS NOT NULL ORDER BY o.firing"));
    if (!query.exec())
        return out;
    while (out.size() < limit && query.next()) {
        const qint64 firing = query.value(0).toLongLong();
        if (!excluding.contains(firing))
            out.append(firing);
    }
    return out;
}

void LabOutbox::Done(qint64 firing)
{
    if (!Ready())
        return;
    QSqlQuery query(QSqlDatabase::database(m_store.Connection(), false));
    query.prepare(QStringLiteral("DELETE FROM lablink_outbox WHERE firing = ?"));
    query.addBindValue(firing);
    if (!query.exec())
        qDebug() << "lab link outbox:" << query.lastError().text();
    m_store.Flush();
}

int LabOutbox::Waiting() const
{
    if (!Ready())
        return 0;
    QSqlQuery query(QSqlDatabase::database(m_store.Connection(), false));
    return query.exec(QStringLiteral("SELECT COUNT(*) FROM lablink_outbox o JOIN firings f ON f.id = o.firing"
                                     " WHERE f.result IS NOT NULL")) &&
                   query.next()
               ? query.value(0).toInt()
               : 0;
}

int LabOutbox::RequeueAll()
{
    if (!Ready())
        return 0;
    Collect();
    QSqlQuery query(QSqlDatabase::database(m_store.Connection(), false));
    if (!query.exec(QStringLiteral("INSERT OR IGNORE INTO lablink_outbox(firing) SELECT id FROM firings"
                                   " WHERE result IS NOT NULL")))
        qDebug() << "lab link outbox:" << query.lastError().text();
    m_store.Flush();
    return Waiting();
}

} // namespace LabLink
} // namespace ovra
