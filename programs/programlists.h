#pragma once

#include "programs/program.h"

#include <QList>
#include <QObject>

class QVBoxLayout;

namespace ovra {
namespace ProgramHandler {
class ProgramHandler;
}
namespace GlobalElements {

class Button;
class ProgramButton;

// The rows of the program list pages and the buttons of the filter pages. A row points at a
// program of the store; the store frees what it has retired only when the rows are rebuilt, so
// no row ever outlives the program it shows.
class ProgramLists : public QObject
{
    Q_OBJECT

public:
    explicit ProgramLists(ProgramHandler::ProgramHandler *store, QObject *parent = nullptr);

    // Replaces the rows of the last filling by one per program, in list order; takes the list.
    void Fill(QVBoxLayout *layout, QList<Program *> *programs);
    // Drops the rows of a deleted program, built or still to come.
    void Remove(const QString &name);
    const QList<ProgramButton *> &Buttons() const { return m_buttons; }

    // A filter page gets a button for every manufacturer or material that has none yet.
    void AddFilterButtons(QVBoxLayout *layout, bool byManufacturer);
    // Narrows the user's list to what the checked filter buttons let through.
    void CheckForFilterOption(QList<Program *> &programs) const;

signals:
    void SignalProgramChosen(ovra::GlobalElements::Program *program);
    void SignalSetProgToFav(bool on, ovra::GlobalElements::Program *program);

private:
    void AddRows(int count);

    ProgramHandler::ProgramHandler *m_store;
    QList<ProgramButton *> m_buttons;
    // The rows not built yet, and the list they go to.
    QList<Program *> m_pending;
    QVBoxLayout *m_pendingLayout = nullptr;
    QList<Button *> m_manufacturerButtons;
    QList<Button *> m_materialButtons;
};

} // namespace GlobalElements
} // namespace ovra
