#pragma once

#include <QList>
#include <QSet>
#include <QString>

namespace ovra {
namespace Records {
class FiringStore;
}

namespace LabLink {

// The firings whose records the broker has not yet acknowledged, kept in the records file
// beside the firings themselves, so they outlast a broker that is away for hours and a panel
// switched off. A firing joins when it begins (a record is sent once it has a result, so one cut
// off by a power cut goes out as interrupted after the next start) and leaves on its
// acknowledgement or when the store drops it. Writes go through the store's own connection and
// are committed at once.
class LabOutbox
{
public:
    explicit LabOutbox(Records::FiringStore &store);

    // Takes in every firing begun since the last call (the first call on a file that already
    // held firings takes none of those: the history is sent only when asked for).
    void Collect();
    // Finished firings waiting, oldest first, at most `limit`, none of `excluding`.
    QList<qint64> Next(int limit, const QSet<qint64> &excluding) const;
    void Done(qint64 firing);
    int Waiting() const; // finished firings waiting
    int RequeueAll();    // every stored finished firing once more; how many

private:
    bool Ready() const;
    bool Exec(const QString &sql) const;

    Records::FiringStore &m_store;
    mutable bool m_tables = false;
    qint64 m_initialMark = -1; // -1: the file held firings when the link came, read them as sent
};

} // namespace LabLink
} // namespace ovra
