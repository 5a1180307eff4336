#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>

class QSqlQuery;

namespace ovra {
namespace Records {

enum class Result { Success, Failed, Stopped, Interrupted };
QString ResultWord(Result result); // "success", "failed", "stopped", "interrupted"

// What is known when a firing begins. Date and time are the controller's, as the panel shows
// them: the board itself has no clock.
struct FiringStart
{
    QString program;
    QString heatfileText; // the program as fired, not as it may be edited later
    QString material;
    int preDryMinutes = 0;
    QString delayedStart; // the requested "YYYYMMDD,HHMM" of a delayed start, else empty
    QString date;
    QString time;
    QString device; // the furnace as the controller last described it: FiringReport::DeviceLines()
    QString job;    // the job code the operator gave the start (Process::JobCode), else empty
};

// One SQLite file of firings with their samples and failures. Samples go into an open
// transaction that is committed every few seconds or every so many samples, so a report costs
// one prepared insert; a hard kill loses at most that last batch, never the file (WAL).
// A firing still open when the store is opened was cut off and is closed as interrupted.
class FiringStore
{
public:
    static constexpr int defaultKeep = 2000;
    static constexpr int batchSamples = 60;
    static constexpr int batchMs = 5000;

    explicit FiringStore(const QString &file, int keepFirings = defaultKeep);
    ~FiringStore();
    FiringStore(const FiringStore &) = delete;
    FiringStore &operator=(const FiringStore &) = delete;

    static QString FileIn(const QString &home); // "<home>/records/firings.sqlite"

    bool IsOpen() const { return m_open; } // opened at once if the file exists, else at the first firing
    // The store's own connection (QSqlDatabase name): tables kept beside the firings are
    // written through it, so they never wait for the store's open batch of samples.
    QString Connection() const { return m_connection; }
    QString File() const { return m_file; }
    bool IsRecording() const { return m_current > 0; }
    qint64 Current() const { return m_current; }

    // Closes an unfinished one as interrupted first; drops the oldest beyond the bound.
    qint64 Begin(const FiringStart &start);
    void AddSample(int elapsedSeconds, double celsius);
    void AddFailure(const QString &time, const QString &text);
    void End(Result result, const QString &date, const QString &time);
    void Flush();

private:
    void Open();
    bool Exec(const QString &sql);
    void CommitIfDue(bool force);
    void CloseOpen(Result result, const QString &date, const QString &time);

    QString m_file;
    QString m_connection;
    bool m_open = false;
    bool m_triedOpen = false;
    int m_keep;
    qint64 m_current = 0;
    int m_sampleIndex = 0;
    int m_pending = 0;
    bool m_inTransaction = false;
    QElapsedTimer m_sinceCommit;
    std::unique_ptr<QSqlQuery> m_insertSample;
};

} // namespace Records
} // namespace ovra
