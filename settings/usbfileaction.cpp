#include "settings/usbfileaction.h"

#include "communication/requests.h"
#include "programs/heatfiletext.h"
#include "programs/programhandler.h"
#include "records/firingstore.h"
#include "settings/usbfiles.h"

#include <QDebug>

namespace ovra {
namespace Settings {
namespace UsbFileAction {

using GlobalElements::Program;
using ProgramHandler::ProgramHandler;

namespace {
QList<const Program *> Constant(const QList<Program *> &programs)
{
    QList<const Program *> result;
    for (const Program *program : programs)
        result << program;
    return result;
}
} // namespace

bool SavePrograms(ProgramHandler &programs, const QString &stick, QString *error)
{
    // The store's filtered lists are the caller's to delete.
    QList<Program *> *own = programs.GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer);
    const QList<const Program *> list = Constant(*own);
    delete own;
    return UsbFiles(stick).SavePrograms(list, error);
}

bool LoadPrograms(ProgramHandler &programs, const QString &stick, const std::function<void(const QString &)> &request,
                  QString *error)
{
    QStringList taken;
    // The store's own list, not a copy.
    for (const Program *program : qAsConst(*programs.GetProgramList())) {
        if (program->GetManufacturer() != ProgramHandler::userManufacturer)
            taken << program->GetName();
    }
    QList<Program *> loaded;
    if (!UsbFiles(stick).LoadPrograms(taken, &loaded, error))
        return false;
    for (Program *program : qAsConst(loaded)) {
        programs.Slot_AddReceivedProgram(program);
        if (program->IsFav())
            programs.Slot_SetProgramToFav(program);
        else
            programs.Slot_DeleteProgramFromFavoriteList(program);
        request(Communication::Requests::NewProgram(GlobalElements::HeatfileText::Write(*program)));
    }
    qDebug() << "usb:" << loaded.size() << "programs loaded";
    return true;
}

bool Backup(ProgramHandler &programs, const QString &stick, const BackupSources &sources, QString *error)
{
    const QString folder = UsbFiles(stick).Backup(Constant(*programs.GetProgramList()), sources.deviceText,
                                                  sources.serialNumber, sources.logFolder, sources.now, error);
    if (folder.isEmpty())
        return false;
    if (sources.store != nullptr)
        sources.store->Flush();
    const bool success = Records::ExportFirings(sources.home, folder + QStringLiteral("/records"), error, false,
                                                sources.report, sources.progress);
    qDebug() << "usb: backup written to" << folder;
    return success;
}

} // namespace UsbFileAction
} // namespace Settings
} // namespace ovra
