#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVector>

namespace ovra {
namespace Records {

// One line of the firing history, as the list shows it.
struct FiringSummary
{
    qint64 id = 0;
    QString program;
    QString startDate; // the controller's date and time, as the panel showed them
    QString startTime;
    QString endDate;
    QString endTime;
    QString result;  // ResultWord(); empty while the firing is still being recorded
    QString job;     // the job code; empty when none was given or the file is older than it
    int seconds = 0; // elapsed time of the last sample: how long the firing really ran
};

struct Sample
{
    int seconds;
    float celsius;
};

// A whole firing: what the detail view and the report draw.
struct FiringRecord
{
    FiringSummary summary;
    QString heatfileText;
    QString material;
    int preDryMinutes = 0;
    QString delayedStart;
    QString uid;    // lower-case UUID made when the firing began; the same on every reading
    QString device; // FiringReport::DeviceLines(); empty for firings recorded before it was kept
    QVector<Sample> samples;
    QList<QPair<QString, QString>> failures; // time, code; in the order they came
};

// Reads the records file through a connection of its own, read-only, so it can be used beside
// the panel's recording store (WAL: it sees what was last committed). A missing or unreadable
// file reads as no firings.
class FiringHistory
{
public:
    explicit FiringHistory(const QString &file);
    ~FiringHistory();
    FiringHistory(const FiringHistory &) = delete;
    FiringHistory &operator=(const FiringHistory &) = delete;

    // Newest first; at most `limit` firings.
    QList<FiringSummary> List(int limit = 2000) const;
    // False when there is no such firing.
    bool Load(qint64 id, FiringRecord *record) const;

private:
    QString m_connection;
    bool m_open = false;
    QString m_job = QStringLiteral("''"); // the columns to read, or an empty text in their place
    QString m_device = QStringLiteral("''");
    QString m_uid = QStringLiteral("''");
};

} // namespace Records
} // namespace ovra
