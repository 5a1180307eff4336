#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace ovra {
namespace Lab {

// Which firings the list shows; empty texts do not filter.
struct FiringQuery
{
    QString furnace;
    QString result;
    QString job;  // substring, case-insensitive
    QString from; // "YYYY-MM-DD", on the start, inclusive
    QString to;
    int limit = 200;
};

struct TokenInfo
{
    QString name;
    QString created; // UTC, ISO 8601
};

// The lab view's own SQLite file, DIR/lab.sqlite: the firing records as received and the
// pairing tokens (their SHA-256 hashes only). Usable from any thread: each thread opens its own
// connection on first use, and a token added or revoked by another process is seen at the next
// request (WAL, one writer at a time).
class LabStore
{
public:
    explicit LabStore(const QString &dir);
    ~LabStore();
    LabStore(const LabStore &) = delete;
    LabStore &operator=(const LabStore &) = delete;

    // Creates the folder and the tables; false with a one-line reason.
    bool Open(QString *error);

    enum class Added { Stored, Duplicate, Failed };
    // A cleaned record (Payloads::Record); the first of an id wins.
    Added AddRecord(const QJsonObject &record);
    // Newest first, as list items.
    QJsonArray Firings(const FiringQuery &query) const;
    // The record as stored; an empty object for an unknown id.
    QJsonObject Record(const QString &id) const;

    // The new token, or an empty text when the name is taken or cannot be stored.
    QString AddToken(const QString &name, QString *error);
    bool RevokeToken(const QString &name);
    QList<TokenInfo> Tokens() const;
    bool TokenValid(const QString &token) const;

    // Closes this thread's connection (the main thread before the application ends).
    void CloseThisThread() const;

private:
    QString Connection() const;

    QString m_file;
    QString m_prefix;
};

} // namespace Lab
} // namespace ovra
