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
    if (prog != nullptr && !m_retired.contains(prog) && !m_programs.contains(prog))
        m_retired.append(prog);
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
    const int own = m_programs.indexOf(prog);
    if (own >= 0)
        m_programs.at(own)->SetFav(true);
    if (prog == nullptr)
        return;
    const int index = LastIndexOf(m_favorites, prog->GetName());
    if (index < 0)
        m_favorites.append(prog);
    else
        m_favorites[index] = prog;
}

void ProgramHandler::Slot_DeleteProgramFromFavoriteList(Program *prog)
{
    const int index = m_favorites.indexOf(prog);
    if (index < 0)
        return;
    m_favorites.removeAt(index);
    const int own = m_programs.indexOf(prog);
    if (own >= 0)
        m_programs.at(own)->SetFav(false);
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

} // namespace ProgramHandler
} // namespace ovra
