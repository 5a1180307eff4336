#include "records/firingstore.h"

#include <QAtomicInt>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

namespace ovra {
namespace Records {

QString ResultWord(Result result)
{
    switch (result) {
    case Result::Success: return QStringLiteral("success");
    case Result::Failed: return QStringLiteral("failed");
    case Result::Stopped: return QStringLiteral("stopped");
    case Result::Interrupted: break;
    }
    return QStringLiteral("interrupted");
}

QString FiringStore::FileIn(const QString &home)
{
    return home + QStringLiteral("/records/firings.sqlite");
}

FiringStore::FiringStore(const QString &file, int keepFirings) : m_file(file), m_keep(keepFirings)
{
    static QAtomicInt serial;
    m_connection = QStringLiteral("ovra-records-%1").arg(serial.fetchAndAddRelaxed(1));
    QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection).setDatabaseName(file);
    // A panel that never fired leaves no file behind.
    if (QFile::exists(file))
        Open();
}

void FiringStore::Open()
{
    m_triedOpen = true;
    QDir().mkpath(QFileInfo(m_file).absolutePath());
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    if (!db.open()) {
        qDebug() << "firing records: cannot open" << m_file << db.lastError().text();
        return;
    }
    m_open = Exec(QStringLiteral("PRAGMA journal_mode=WAL")) && Exec(QStringLiteral("PRAGMA synchronous=NORMAL")) &&
             Exec(QStringLiteral("PRAGMA foreign_keys=ON")) &&
             Exec(QStringLiteral("CREATE TABLE IF NOT EXISTS firings(id INTEGER PRIMARY KEY, program TEXT,"
                                 " heatfile TEXT, material TEXT, predry INTEGER, delayed TEXT, start_date TEXT,"
                                 " start_time TEXT, end_date TEXT, end_time TEXT, result TEXT)")) &&
             Exec(QStringLiteral("CREATE TABLE IF NOT EXISTS samples(firing INTEGER REFERENCES firings(id)"
                                 " ON DELETE CASCADE, n INTEGER, seconds INTEGER, celsius REAL,"
                                 " PRIMARY KEY(firing, n)) WITHOUT ROWID")) &&
             Exec(QStringLiteral("CREATE TABLE IF NOT EXISTS failures(firing INTEGER REFERENCES firings(id)"
                                 " ON DELETE CASCADE, time TEXT, text TEXT)")) &&
             Exec(QStringLiteral("CREATE INDEX IF NOT EXISTS failures_firing ON failures(firing)"));
    if (!m_open)
        return;
    // Files from before the furnace data, or the job code, was kept with each firing gain the
    // column; their firings read it as empty.
    for (const QString &column : {QStringLiteral("device"), QStringLiteral("job"), QStringLiteral("uid")}) {
        QSqlQuery columns(db);
        columns.prepare(QStringLiteral("SELECT COUNT(*) FROM pragma_table_info('firings') WHERE name = ?"));
        columns.addBindValue(column);
        if (m_open && columns.exec() && columns.next() && columns.value(0).toInt() == 0)
            m_open = Exec(QStringLiteral("ALTER TABLE firings ADD COLUMN %1 TEXT").arg(column));
    }
    if (!m_open)
        return;
    // Every firing has an id of its own that a receiver of its record can rely on; older
    // firings gain a random (version 4) one once, kept from then on.
    m_open = Exec(
        QStringLiteral("UPDATE firings SET uid = lower(hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' ||"
                       " substr(hex(randomblob(2)), 2) || '-' || substr('89ab', 1 + abs(random()) % 4, 1) ||"
                       " substr(hex(randomblob(2)), 2) || '-' || hex(randomblob(6))) WHERE uid IS NULL OR uid = ''"));
    if (!m_open)
        return;
    // Whatever was open when the panel last went away was cut off.
    CloseOpen(Result::Interrupted, QString(), QString());
    m_insertSample = std::make_unique<QSqlQuery>(db);
    m_insertSample->prepare(QStringLiteral("INSERT INTO samples(firing, n, seconds, celsius) VALUES(?, ?, ?, ?)"));
}

FiringStore::~FiringStore()
{
    if (m_open)
        CommitIfDue(true);
    m_insertSample.reset();
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

bool FiringStore::Exec(const QString &sql)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (query.exec(sql))
        return true;
    qDebug() << "firing records:" << sql.left(40) << query.lastError().text();
    return false;
}

void FiringStore::CloseOpen(Result result, const QString &date, const QString &time)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.prepare(QStringLiteral("UPDATE firings SET result = ?, end_date = ?, end_time = ? WHERE result IS NULL"));
    query.addBindValue(ResultWord(result));
    query.addBindValue(date);
    query.addBindValue(time);
    if (!query.exec())
        qDebug() << "firing records: cannot close open firings" << query.lastError().text();
}

qint64 FiringStore::Begin(const FiringStart &start)
{
    if (!m_open && !m_triedOpen)
        Open();
    if (!m_open)
        return 0;
    CommitIfDue(true);
    CloseOpen(Result::Interrupted, start.date, start.time);
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    db.transaction();
    QSqlQuery query(db);
    query.prepare(QStringLiteral("INSERT INTO firings(program, heatfile, material, predry, delayed, start_date,"
                                 " start_time, device, job, uid) VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    for (const QVariant &v :
         {QVariant(start.program), QVariant(start.heatfileText), QVariant(start.material),
          QVariant(start.preDryMinutes), QVariant(start.delayedStart), QVariant(start.date), QVariant(start.time),
          QVariant(start.device), QVariant(start.job), QVariant(QUuid::createUuid().toString(QUuid::WithoutBraces))})
        query.addBindValue(v);
    if (!query.exec()) {
        qDebug() << "firing records: cannot begin" << query.lastError().text();
        db.rollback();
        return 0;
    }
    m_current = query.lastInsertId().toLongLong();
    QSqlQuery prune(db);
    prune.prepare(QStringLiteral("DELETE FROM firings WHERE id <= ?"));
    prune.addBindValue(m_current - m_keep);
    prune.exec();
    db.commit();
    m_sampleIndex = 0;
    return m_current;
}

void FiringStore::AddSample(int elapsedSeconds, double celsius)
{
    if (!m_open || m_current <= 0)
        return;
    if (!m_inTransaction) {
        m_inTransaction = QSqlDatabase::database(m_connection, false).transaction();
        m_sinceCommit.start();
    }
    m_insertSample->bindValue(0, m_current);
    m_insertSample->bindValue(1, m_sampleIndex++);
    m_insertSample->bindValue(2, elapsedSeconds);
    m_insertSample->bindValue(3, celsius);
    if (!m_insertSample->exec())
        qDebug() << "firing records: sample lost" << m_insertSample->lastError().text();
    ++m_pending;
    CommitIfDue(false);
}

void FiringStore::AddFailure(const QString &time, const QString &text)
{
    if (!m_open || m_current <= 0)
        return;
    CommitIfDue(true);
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.prepare(QStringLiteral("INSERT INTO failures(firing, time, text) VALUES(?, ?, ?)"));
    query.addBindValue(m_current);
    query.addBindValue(time);
    query.addBindValue(text);
    if (!query.exec())
        qDebug() << "firing records: failure lost" << query.lastError().text();
}

void FiringStore::End(Result result, const QString &date, const QString &time)
{
    if (!m_open || m_current <= 0)
        return;
    CommitIfDue(true);
    CloseOpen(result, date, time);
    m_current = 0;
}

void FiringStore::Flush()
{
    if (m_open)
        CommitIfDue(true);
}

void FiringStore::CommitIfDue(bool force)
{
    if (!m_inTransaction)
        return;
    if (!force && m_pending < batchSamples && m_sinceCommit.elapsed() < batchMs)
        return;
    if (!QSqlDatabase::database(m_connection, false).commit())
        qDebug() << "firing records: commit failed";
    m_inTransaction = false;
    m_pending = 0;
}

} // namespace Records
} // namespace ovra
