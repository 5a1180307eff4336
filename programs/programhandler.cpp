#include "programs/programhandler.h"

#include "communication/requests.h"
#include "programs/heatfiletext.h"

#include <algorithm>

namespace ovra {
namespace ProgramHandler {

const QString ProgramHandler::userManufacturer = QStringLiteral("user");

bool ProgramHandler::NeedsResend(int reportedCount, int heldCount, int resendsSoFar)
{
    return reportedCount > heldCount && resendsSoFar < 10;
}

bool ProgramHandler::IsUserProgram(const GlobalElements::Program *program)
{
    return program != nullptr && program->GetManufacturer() == userManufacturer;
}
const QString ProgramHandler::serviceManufacturer = QStringLiteral("service");

ProgramHandler::ProgramHandler(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<Program *>("ovra::GlobalElements::Program*");
}

ProgramHandler::~ProgramHandler()
{
    qDeleteAll(m_programs);
    ReleaseRetired();
}

QList<GlobalElements::Program *> *ProgramHandler::GetProgramList()
{
    return &m_programs;
}

int ProgramHandler::LastIndexOf(const QList<Program *> &list, const QString &name) const
{
    for (int i = list.size() - 1; i >= 0; --i) {
        if (list.at(i)->GetName() == name)
            return i;
    }
    return -1;
}

GlobalElements::Program *ProgramHandler::GetProgramByName(const QString &name) const
{
    const int index = LastIndexOf(m_programs, name);
    return index < 0 ? nullptr : m_programs.at(index);
}

QList<GlobalElements::Program *> *ProgramHandler::Filtered(bool (*keep)(const Program *, const QString &),
                                                           const QString &value) const
{
    auto *list = new QList<Program *>();
    for (Program *p : m_programs) {
        if (keep(p, value))
            list->append(p);
    }
    return list;
}

QList<GlobalElements::Program *> *ProgramHandler::GetFavoriteProgramList() const
{
    // The flags decide, not the favourites list.
    return Filtered([](const Program *p, const QString &) { return p->IsFav(); }, QString());
}

QList<GlobalElements::Program *> *ProgramHandler::GetFixProgramList() const
{
    return Filtered(
        [](const Program *p, const QString &) {
            return p->GetManufacturer() != userManufacturer && p->GetManufacturer() != serviceManufacturer;
        },
        QString());
}

QList<GlobalElements::Program *> *ProgramHandler::GetProgramListSortedByManufacturer(const QString &manufacturer) const
{
    return Filtered([](const Program *p, const QString &m) { return p->GetManufacturer() == m; }, manufacturer);
}

QList<GlobalElements::Program *> *ProgramHandler::GetProgramListSortedByMaterial(const QString &material) const
{
    return Filtered([](const Program *p, const QString &m) { return p->GetMaterial() == m; }, material);
}

void ProgramHandler::SetChangeActive()
{
    m_changeActive = true;
}

void ProgramHandler::SetChangeInProcess()
{
    m_changeInProcess = true;
}

void ProgramHandler::ParseProgToString(Program *prog)
{
    // The change flag is used up by exactly one heatfile.
    const QString text = GlobalElements::HeatfileText::Write(*prog);
    const bool change = m_changeInProcess;
    m_changeInProcess = false;
    emit SignalSendProgToHX3(change ? Communication::Requests::ChangeProgram(text)
                                    : Communication::Requests::NewProgram(text));
}

void ProgramHandler::Retire(Program *prog)
{
    if (prog == nullptr || m_programs.contains(prog))
        return;
    // Whatever still refers to a retired record may read it until ReleaseRetired(); the
    // favourites list outlives that, so it lets go at once.
    m_favorites.removeAll(prog);
    if (!m_retired.contains(prog))
        m_retired.append(prog);
}

GlobalElements::Program *ProgramHandler::Live(Program *prog) const
{
    if (prog == nullptr || m_programs.contains(prog))
        return prog;
    // A list row may still show a record replaced since; the controller hears of the favourite
    // by name, so it is meant for the record of that name now stored. A record the store does
    // not hold at all is never read.
    return m_retired.contains(prog) ? GetProgramByName(prog->GetName()) : nullptr;
}

void ProgramHandler::ReleaseRetired()
{
    qDeleteAll(m_retired);
    m_retired.clear();
}

bool ProgramHandler::Holds(const Program *prog) const
{
    return std::any_of(m_programs.cbegin(), m_programs.cend(), [prog](const Program *p) { return p == prog; }) ||
           std::any_of(m_retired.cbegin(), m_retired.cend(), [prog](const Program *p) { return p == prog; });
}

void ProgramHandler::Replace(int index, Program *fresh)
{
    Program *old = m_programs.at(index);
    if (old == fresh)
        return;
    m_programs[index] = fresh;
    // The favourites list would otherwise keep pointing at the replaced record.
    const int fav = m_favorites.indexOf(old);
    if (fav >= 0)
        m_favorites[fav] = fresh;
    Retire(old);
}

void ProgramHandler::Slot_AddProgramToList(Program *prog)
{
    if (prog == nullptr)
        return;
    const int index = LastIndexOf(m_programs, prog->GetName());
    if (index < 0) {
        m_programs.append(prog);
        ParseProgToString(prog);
        emit SignalShowProg(prog);
        return;
    }
    if (!m_changeActive) {
        // A taken name without the overwrite question: the store stays as it is.
        Retire(prog);
        return;
    }
    prog->SetFav(m_programs.at(index)->IsFav());
    Replace(index, prog);
    ParseProgToString(prog);
    emit SignalShowProg(prog);
    m_changeActive = false;
}

void ProgramHandler::Slot_AddReceivedProgram(Program *prog)
{
    if (prog == nullptr)
        return;
    const int index = LastIndexOf(m_programs, prog->GetName());
    if (index < 0)
        m_programs.append(prog);
    else
        Replace(index, prog);
}

void ProgramHandler::Slot_SetProgramToFav(Program *prog)
{
    Program *live = Live(prog);
    if (live == nullptr)
        return;
    live->SetFav(true);
    const int index = LastIndexOf(m_favorites, live->GetName());
    if (index < 0)
        m_favorites.append(live);
    else
        m_favorites[index] = live;
}

void ProgramHandler::Slot_DeleteProgramFromFavoriteList(Program *prog)
{
    Program *live = Live(prog);
    const int index = live == nullptr ? -1 : m_favorites.indexOf(live);
    if (index < 0)
        return;
    m_favorites.removeAt(index);
    live->SetFav(false);
}

void ProgramHandler::Slot_DeleteProgramFromList(const QString &name)
{
    // The index advances after a removal, so of two adjacent programs of the same name the
    // second stays; the controller relies on one "hpdelete==" per removed record.
    for (int i = 0; i < m_programs.size(); ++i) {
        Program *p = m_programs.at(i);
        if (p->GetName() != name)
            continue;
        if (m_favorites.contains(p))
            Slot_DeleteProgramFromFavoriteList(p);
        m_programs.removeAt(i);
        Retire(p);
        emit SignalAddToRequest(Communication::Requests::DeleteProgram(name));
    }
}

void ProgramHandler::DeleteUserPrograms()
{
    QStringList names;
    for (const Program *program : qAsConst(m_programs)) {
        if (IsUserProgram(program))
            names << program->GetName();
    }
    for (const QString &name : qAsConst(names))
        Slot_DeleteProgramFromList(name);
}

} // namespace ProgramHandler
} // namespace ovra
