#pragma once

#include "app/logutils.h"
#include "records/firingexport.h"

#include <QDateTime>
#include <QString>

#include <functional>

namespace ovra {
namespace ProgramHandler {
class ProgramHandler;
}
namespace Records {
class FiringStore;
}
namespace Settings {

// The stick menu's work that the panel does itself, between the program store and the files
// on the stick (UsbFiles). stick is the root of the mounted stick; each returns false with a
// reason to log.
namespace UsbFileAction {

// What a backup takes from the running panel besides the store's programs.
struct BackupSources
{
    QString deviceText;                    // device data and failures, as in the QR code
    QString serialNumber;                  // names the backup folder
    QString home;                          // where the firing records are kept
    Records::FiringStore *store = nullptr; // the firing under way goes to disk first
    Records::ReportWriter report;          // one printed page per firing
    std::function<void(int done, int total)> progress;
    QString logFolder = GlobalElements::logFolderName;
    QDateTime now = QDateTime::currentDateTime();
};

// The user's programs (manufacturer "user").
bool SavePrograms(ProgramHandler::ProgramHandler &programs, const QString &stick, QString *error);

// All or nothing; no name of the maker's or service programs. Like programs from the
// controller: one of the same name is replaced, in the store and, through request
// ("heatfile=="), in the controller's; the favourite mark follows the file.
bool LoadPrograms(ProgramHandler::ProgramHandler &programs, const QString &stick,
                  const std::function<void(const QString &)> &request, QString *error);

// Every program, the device text, the logs and the firing records into a new backup folder.
bool Backup(ProgramHandler::ProgramHandler &programs, const QString &stick, const BackupSources &sources,
            QString *error);

} // namespace UsbFileAction
} // namespace Settings
} // namespace ovra
