#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {
class Program;
}
namespace Settings {

// What the USB stick menu reads and writes, all in the folder "ovra" on the stick:
//   ovra/myprograms.txt                       the user's programs: one heatfile text a line,
//                                             each after a comment line in plain words
//   ovra/backup/<serial>_<yyyyMMdd_hhmmss>/   programs.txt (every program), device.txt
//                                             (device data and failures), logs/ (the log files)
// Files are written beside and renamed, so a stick pulled or full half-way leaves the old
// file or none, never half of one. Every failure comes back false with a reason to log.
class UsbFiles
{
public:
    using Program = GlobalElements::Program;

    static const QString folderName;
    static const QString programsFileName;
    // A programs file larger than this is not one of ours; it is refused unread.
    static constexpr qint64 maxProgramsFileBytes = 1024 * 1024;

    explicit UsbFiles(const QString &stickRoot);

    QString ProgramsFile() const;

    bool SavePrograms(const QList<const Program *> &programs, QString *error) const;

    // All or nothing: every line must be one of the user's programs ("user"), no name twice
    // and none of takenNames (the furnace's fixed and service programs). On success the new
    // records are the caller's; on failure *programs is left empty.
    bool LoadPrograms(const QStringList &takenNames, QList<Program *> *programs, QString *error) const;

    // Returns the backup folder written, or an empty text with *error set.
    QString Backup(const QList<const Program *> &programs, const QString &deviceText, const QString &serialNumber,
                   const QString &logFolder, const QDateTime &now, QString *error) const;

    // "# Name | Zirkon | 10 °C/min to 900 °C, hold 30 min; ..." for a person reading the file.
    static QString Describe(const Program &program);

private:
    bool WriteFile(const QString &path, const QByteArray &bytes, QString *error) const;
    QByteArray ProgramsText(const QList<const Program *> &programs, const QString &what) const;

    QString m_root;
};

} // namespace Settings
} // namespace ovra
