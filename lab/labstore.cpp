#include "lab/labstore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QVariant>

#include <QDebug>

#include <atomic>
#include <vector>

namespace ovra {
namespace Lab {

namespace {
QString Hash(const QString &token)
{
    return QString::fromLatin1(QCryptographicHash::hash(token.toUtf8(), QCryptographicHash::Sha256).toHex());
}

// Removes a thread's connection when the thread ends (the web server's worker threads).
struct ThreadConnections
{
    std::vector<QString> names;
    ~ThreadConnections()
    {
        for (const QString &name : names)
            QSqlDatabase::removeDatabase(name);
    }
};
thread_local ThreadConnections threadConnections;

std::atomic<int> storeCount{0};
} // namespace

LabStore::LabStore(const QString &dir)
    : m_file(QDir(dir).absoluteFilePath(QStringLiteral("lab.sqlite"))),
      m_prefix(QStringLiteral("ovra-lab-%1-").arg(storeCount++))
{
}

LabStore::~LabStore()
{
    CloseThisThread();
}

QString LabStore::Connection() const
{
    const QString name = m_prefix + QString::number(reinterpret_cast<quintptr>(QThread::currentThreadId()), 16);
    if (!QSqlDatabase::contains(name)) {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(m_file);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        if (db.open())
            QSqlQuery(db).exec(QStringLiteral("PRAGMA foreign_keys=ON"));
        threadConnections.names.push_back(name);
    }
    return name;
}

void LabStore::CloseThisThread() const
{
    const QString name = m_prefix + QString::number(reinterpret_cast<quintptr>(QThread::currentThreadId()), 16);
    if (QSqlDatabase::contains(name))
        QSqlDatabase::removeDatabase(name);
}

bool LabStore::Open(QString *error)
{
    if (!QDir().mkpath(QFileInfo(m_file).absolutePath())) {
        *error = QStringLiteral("cannot create %1").arg(QFileInfo(m_file).absolutePath());
        return false;
    }
    QSqlDatabase db = QSqlDatabase::database(Connection());
    if (!db.isOpen()) {
        *error = QStringLiteral("cannot open %1: %2").arg(m_file, db.lastError().text());
        return false;
    }
    // The folder's group (the panel's user on the board) adds tokens; whoever made the file
    // first, the service and the group can both write it (its WAL files follow its mode).
    QFile::setPermissions(m_file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup);
    QSqlQuery q(db);
    for (const char *sql :
         {"PRAGMA journal_mode=WAL",
          "CREATE TABLE IF NOT EXISTS records (id TEXT PRIMARY KEY, furnace TEXT NOT NULL, program TEXT, job TEXT, "
          "result TEXT, start TEXT, end TEXT, body TEXT NOT NULL, received INTEGER NOT NULL)",
          "CREATE INDEX IF NOT EXISTS records_start ON records (start DESC)",
          "CREATE TABLE IF NOT EXISTS tokens (name TEXT PRIMARY KEY, hash TEXT NOT NULL UNIQUE, created TEXT NOT "
          "NULL)"}) {
        if (!q.exec(QLatin1String(sql))) {
            *error = QStringLiteral("cannot prepare %1: %2").arg(m_file, q.lastError().text());
            return false;
        }
    }
    return true;
}

LabStore::Added LabStore::AddRecord(const QJsonObject &record)
{
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.prepare(QStringLiteral("INSERT OR IGNORE INTO records (id, furnace, program, job, result, start, end, body, "
                             "received) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    for (const char *key : {"id", "furnace", "program", "job", "result", "start", "end"})
        q.addBindValue(record.value(QLatin1String(key)).toString());
    q.addBindValue(QString::fromUtf8(QJsonDocument(record).toJson(QJsonDocument::Compact)));
    q.addBindValue(QDateTime::currentMSecsSinceEpoch());
    if (!q.exec()) {
        qWarning().noquote() << "lab: cannot store a record:" << q.lastError().text();
        return Added::Failed;
    }
    return q.numRowsAffected() == 1 ? Added::Stored : Added::Duplicate;
}

QJsonArray LabStore::Firings(const FiringQuery &query) const
{
    QString sql = QStringLiteral("SELECT id, furnace, program, job, result, start, end FROM records WHERE 1");
    QVariantList values;
    if (!query.furnace.isEmpty()) {
        sql += QStringLiteral(" AND furnace = ?");
        values << query.furnace;
    }
    if (!query.result.isEmpty()) {
        sql += QStringLiteral(" AND result = ?");
        values << query.result;
    }
    if (!query.job.isEmpty()) {
        sql += QStringLiteral(" AND instr(lower(job), lower(?)) > 0");
        values << query.job;
    }
    if (!query.from.isEmpty()) {
        sql += QStringLiteral(" AND substr(start, 1, 10) >= ?");
        values << query.from;
    }
    if (!query.to.isEmpty()) {
        sql += QStringLiteral(" AND substr(start, 1, 10) <= ?");
        values << query.to;
    }
    sql += QStringLiteral(" ORDER BY start DESC, received DESC LIMIT ?");
    values << query.limit;
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.setForwardOnly(true);
    q.prepare(sql);
    for (const QVariant &v : qAsConst(values))
        q.addBindValue(v);
    QJsonArray list;
    if (!q.exec()) {
        qWarning().noquote() << "lab: cannot read the firings:" << q.lastError().text();
        return list;
    }
    while (q.next()) {
        list.append(QJsonObject{{QStringLiteral("id"), q.value(0).toString()},
                                {QStringLiteral("furnace"), q.value(1).toString()},
                                {QStringLiteral("program"), q.value(2).toString()},
                                {QStringLiteral("job"), q.value(3).toString()},
                                {QStringLiteral("result"), q.value(4).toString()},
                                {QStringLiteral("start"), q.value(5).toString()},
                                {QStringLiteral("end"), q.value(6).toString()}});
    }
    return list;
}

QJsonObject LabStore::Record(const QString &id) const
{
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.prepare(QStringLiteral("SELECT body FROM records WHERE id = ?"));
    q.addBindValue(id);
    if (!q.exec() || !q.next())
        return {};
    return QJsonDocument::fromJson(q.value(0).toString().toUtf8()).object();
}

QString LabStore::AddToken(const QString &name, QString *error)
{
    quint32 random[8];
    QRandomGenerator::system()->fillRange(random);
    const QString token =
        QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(random), sizeof random)
                                .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.prepare(QStringLiteral("INSERT INTO tokens (name, hash, created) VALUES (?, ?, ?)"));
    q.addBindValue(name);
    q.addBindValue(Hash(token));
    q.addBindValue(QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    if (!q.exec()) {
        *error = QStringLiteral("cannot add the token %1 (is the name taken?): %2").arg(name, q.lastError().text());
        return {};
    }
    return token;
}

bool LabStore::RevokeToken(const QString &name)
{
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.prepare(QStringLiteral("DELETE FROM tokens WHERE name = ?"));
    q.addBindValue(name);
    return q.exec() && q.numRowsAffected() == 1;
}

QList<TokenInfo> LabStore::Tokens() const
{
    QList<TokenInfo> tokens;
    QSqlQuery q(QSqlDatabase::database(Connection()));
    if (!q.exec(QStringLiteral("SELECT name, created FROM tokens ORDER BY created, name")))
        return tokens;
    while (q.next())
        tokens.append({q.value(0).toString(), q.value(1).toString()});
    return tokens;
}

bool LabStore::TokenValid(const QString &token) const
{
    if (token.isEmpty() || token.size() > 128)
        return false;
    QSqlQuery q(QSqlDatabase::database(Connection()));
    q.prepare(QStringLiteral("SELECT 1 FROM tokens WHERE hash = ?"));
    q.addBindValue(Hash(token));
    return q.exec() && q.next();
}

} // namespace Lab
} // namespace ovra
