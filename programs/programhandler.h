#pragma once

#include "programs/program.h"

#include <QList>
#include <QObject>
#include <QString>

namespace ovra {
namespace ProgramHandler {

// The one store of heat programs. It owns every Program in its list. A record that is
// replaced or deleted is retired rather than freed, because a list page may still hold a
// button for it; ReleaseRetired() frees them once the pages have been rebuilt. The favourites
// list holds stored records only. Lists returned by the getters are new objects the caller
// deletes; the programs stay the store's.
class ProgramHandler : public QObject
{
    Q_OBJECT

public:
    using Program = GlobalElements::Program;

    explicit ProgramHandler(QObject *parent = nullptr);
    ~ProgramHandler() override;

    QList<Program *> *GetProgramList();
    // The last program of that name, or nullptr.
    Program *GetProgramByName(const QString &name) const;
    QList<Program *> *GetFavoriteProgramList() const;
    // The favourites list itself, as the panel set it; GetFavoriteProgramList() goes by the flags.
    const QList<Program *> &GetFavoriteEntries() const { return m_favorites; }
    QList<Program *> *GetFixProgramList() const;
    // Despite the names these filter, keeping the store's order.
    QList<Program *> *GetProgramListSortedByManufacturer(const QString &manufacturer) const;
    QList<Program *> *GetProgramListSortedByMaterial(const QString &material) const;

    // The next program from the editor may replace the stored one of the same name.
    void SetChangeActive();
    // The next heatfile goes out as a change of the running program ("hpchange==").
    void SetChangeInProcess();
    bool IsChangeActive() const { return m_changeActive; }
    bool IsChangeInProcess() const { return m_changeInProcess; }

    void ParseProgToString(Program *prog);

    // Frees retired records; call when no page holds a program pointer from before.
    void ReleaseRetired();
    int RetiredCount() const { return m_retired.size(); }
    // True while the record may still be read: stored, or retired and not yet released.
    bool Holds(const Program *prog) const;

    static const QString userManufacturer;
    // The user's own programs are the ones that may be changed, deleted and shown in full.
    static bool IsUserProgram(const GlobalElements::Program *program);
    // The controller counts more programs than it handed over: ask again, ten times a run at
    // most, whatever it keeps reporting.
    static bool NeedsResend(int reportedCount, int heldCount, int resendsSoFar);
    static const QString serviceManufacturer;

signals:
    void SignalSendProgToHX3(const QString &heatfile);
    void SignalAddToRequest(const QString &request);
    void SignalShowProg(ovra::GlobalElements::Program *prog);

public slots:
    void Slot_AddProgramToList(ovra::GlobalElements::Program *prog);
    void Slot_AddReceivedProgram(ovra::GlobalElements::Program *prog);
    // Both act on the stored record: a retired one stands for the record of its name that
    // replaced it; one the store does not hold changes nothing.
    void Slot_SetProgramToFav(ovra::GlobalElements::Program *prog);
    void Slot_DeleteProgramFromFavoriteList(ovra::GlobalElements::Program *prog);
    void Slot_DeleteProgramFromList(const QString &name);
    // Each of the user's own programs, one "hpdelete==" after the other.
    void DeleteUserPrograms();

private:
    int LastIndexOf(const QList<Program *> &list, const QString &name) const;
    // Puts `fresh` where `old` stood in the program and favourites lists; retires `old`.
    void Replace(int index, Program *fresh);
    void Retire(Program *prog);
    // The stored record a favourite change on `prog` is meant for, or nullptr.
    Program *Live(Program *prog) const;
    QList<Program *> *Filtered(bool (*keep)(const Program *, const QString &), const QString &value) const;

    QList<Program *> m_programs;
    QList<Program *> m_favorites;
    QList<Program *> m_retired;
    bool m_changeActive = false;
    bool m_changeInProcess = false;
};

} // namespace ProgramHandler
} // namespace ovra
