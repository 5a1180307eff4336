#include "records/firinghistory.h"

#include <QAtomicInt>
#include <QDebug>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <utility>

namespace ovra {
namespace Records {

namespace {
// `job`: the column's name, or an empty text for a file from before it was kept.
QString summaryColumns(const QString &job)
{
    return QStringLiteral("f.id, f.program, f.start_date, f.start_time, f.end_date, f.end_time, f.result,"
                          " (SELECT s.seconds FROM samples s WHERE s.firing = f.id ORDER BY s.n DESC LIMIT 1), %1")
        .arg(job);
}

FiringSummary ReadSummary(const QSqlQuery &q)
{
    FiringSummary s;
    s.id = q.value(0).toLongLong();
    s.program = q.value(1).toString();
    s.startDate = q.value(2).toString();
    s.startTime = q.value(3).toString();
    s.endDate = q.value(4).toString();
    s.endTime = q.value(5).toString();
    s.result = q.value(6).toString();
    s.seconds = q.value(7).toInt();
    s.job = q.value(8).toString();
    return s;
}
} // namespace

FiringHistory::FiringHistory(const QString &file)
{
    static QAtomicInt serial;
    m_connection = QStringLiteral("ovra-history-%1").arg(serial.fetchAndAddRelaxed(1));
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    db.setDatabaseName(file);
    // Read-only: looking at the history must never create or change the file.
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    m_open = QFile::exists(file) && db.open();
    if (QFile::exists(file) && !m_open)
        qDebug() << "firing history: cannot open" << file << db.lastError().text();
    // Read-only, an older file is read as it is: what it lacks reads as empty.
    const std::pair<QString *, QString> columns[] = {
        {&m_job, QStringLiteral("job")}, {&m_device, QStringLiteral("device")}, {&m_uid, QStringLiteral("uid")}};
    for (const auto &column : columns) {
        if (!m_open)
            break;
        QSqlQuery q(db);
        q.prepare(QStringLiteral("SELECT COUNT(*) FROM pragma_table_info('firings') WHERE name = ?"));
        q.addBindValue(column.second);
        if (q.exec() && q.next() && q.value(0).toInt() > 0)
            *column.first = QStringLiteral("f.") + column.second;
    }
}

FiringHistory::~FiringHistory()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

QList<FiringSummary> FiringHistory::List(int limit) const
{
    QList<FiringSummary> out;
    if (!m_open)
        return out;
    QSqlQuery q(QSqlDatabase::database(m_connection, false));
    q.prepare(QStringLiteral("SELECT %1 FROM firings f ORDER BY f.id DESC LIMIT ?").arg(summaryColumns(m_job)));
    q.addBindValue(limit);
    if (!q.exec())
        qDebug() << "firing history:" << q.lastError().text();
    while (q.next())
        out << ReadSummary(q);
    return out;
}

bool FiringHistory::Load(qint64 id, FiringRecord *record) const
{
    if (!m_open)
        return false;
    const QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    QSqlQuery q(db);
    q.prepare(QStringLiteral("SELECT %1, f.heatfile, f.material, f.predry, f.delayed, %2, %3 FROM firings f"
                             " WHERE f.id = ?")
                  .arg(summaryColumns(m_job), m_device, m_uid));
    q.addBindValue(id);
    if (!q.exec() || !q.next())
        return false;
    FiringRecord r;
    r.summary = ReadSummary(q);
    r.heatfileText = q.value(9).toString();
    r.material = q.value(10).toString();
    r.preDryMinutes = q.value(11).toInt();
    r.delayedStart = q.value(12).toString();
    r.device = q.value(13).toString();
    r.uid = q.value(14).toString();

    QSqlQuery samples(db);
    samples.setForwardOnly(true);
    samples.prepare(QStringLiteral("SELECT seconds, celsius FROM samples WHERE firing = ? ORDER BY n"));
    samples.addBindValue(id);
    samples.exec();
    r.samples.reserve(qBound(0, r.summary.seconds + 1, 100000));
    while (samples.next())
        r.samples.append({samples.value(0).toInt(), samples.value(1).toFloat()});

    QSqlQuery failures(db);
    failures.prepare(QStringLiteral("SELECT time, text FROM failures WHERE firing = ? ORDER BY rowid"));
    failures.addBindValue(id);
    failures.exec();
    while (failures.next())
        r.failures.append({failures.value(0).toString(), failures.value(1).toString()});
    *record = r;
    return true;
}

} // namespace Records
} // namespace ovra
