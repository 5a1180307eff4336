#pragma once

#include <QObject>
#include <QString>

namespace ovra {
namespace GlobalElements {

// A newly installed build is started at most twice by the start-up script before it falls
// back to the previous build, unless the build has proved itself: its window is up with the
// first page shown and its event loop runs. The proof is the file "proven" in the
// build's own folder; it moves with the folder when the update script renames it.
class BuildProof : public QObject
{
    Q_OBJECT

public:
    // An empty folder: nothing is ever written.
    explicit BuildProof(const QString &folder, QObject *parent = nullptr);

    // The program's folder when the update script manages it, i.e. it lies directly in
    // <home>/Downloads; empty anywhere else (a development build, a test).
    static QString ManagedFolder(const QString &applicationDir, const QString &home);
    // <folder>/proven written and synced to the card (the folder too); false, with a log line,
    // when it cannot be. An existing marker is left as it is.
    static bool Mark(const QString &folder);

public slots:
    // The window up: the first call marks the build, later ones do nothing.
    void OnPageShown();

private:
    QString m_folder;
    bool m_marked = false;
};

} // namespace GlobalElements
} // namespace ovra
