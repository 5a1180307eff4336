#include "settings/usbfiles.h"

#include "programs/heatfiletext.h"
#include "programs/program.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QStorageInfo>

namespace ovra {
namespace Settings {

using GlobalElements::Program;

const QString UsbFiles::folderName = QStringLiteral("ovra");
const QString UsbFiles::programsFileName = QStringLiteral("myprograms.txt");

namespace {
bool Fail(QString *error, const QString &reason)
{
    *error = reason;
    return false;
}
} // namespace

UsbFiles::UsbFiles(const QString &stickRoot) : m_root(stickRoot) {}

QString UsbFiles::ProgramsFile() const
{
    return m_root + QLatin1Char('/') + folderName + QLatin1Char('/') + programsFileName;
}

QString UsbFiles::Describe(const Program &program)
{
    QStringList segments;
    for (const QList<unsigned int> &row : *program.GetMatrix()) {
        segments
            << QStringLiteral("%1 °C/min to %2 °C, hold %3 min").arg(row.value(0)).arg(row.value(1)).arg(row.value(2));
    }
    return QStringLiteral("# %1 | %2 | %3")
        .arg(program.GetName(), program.GetMaterial(), segments.join(QStringLiteral("; ")));
}

QByteArray UsbFiles::ProgramsText(const QList<const Program *> &programs, const QString &what) const
{
    QString text = QStringLiteral("# %1: %2 heat programs, one heatfile text a line "
                                  "(temp in Kelvin, hold in seconds). Lines with # are notes.\n")
                       .arg(what)
                       .arg(programs.size());
    for (const Program *program : programs)
        text +=
            Describe(*program) + QLatin1Char('\n') + GlobalElements::HeatfileText::Write(*program) + QLatin1Char('\n');
    return text.toUtf8();
}

bool UsbFiles::WriteFile(const QString &path, const QByteArray &bytes, QString *error) const
{
    if (m_root.isEmpty() || !QFileInfo(m_root).isDir())
        return Fail(error, QStringLiteral("no USB stick"));
    const QStorageInfo volume(m_root);
    if (volume.isValid() && volume.isReadOnly())
        return Fail(error, QStringLiteral("USB stick is read-only: %1").arg(m_root));
    if (volume.isValid() && volume.bytesAvailable() >= 0 && volume.bytesAvailable() < bytes.size() + 4096)
        return Fail(error, QStringLiteral("USB stick is full: %1").arg(m_root));
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return Fail(error, QStringLiteral("cannot make the folder for %1").arg(path));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Fail(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    if (file.write(bytes) != bytes.size() || !file.commit())
        return Fail(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    return true;
}

bool UsbFiles::SavePrograms(const QList<const Program *> &programs, QString *error) const
{
    return WriteFile(ProgramsFile(), ProgramsText(programs, QStringLiteral("My programs")), error);
}

bool UsbFiles::LoadPrograms(const QStringList &takenNames, QList<Program *> *programs, QString *error) const
{
    QFile file(ProgramsFile());
    if (m_root.isEmpty() || !file.open(QIODevice::ReadOnly))
        return Fail(error, QStringLiteral("cannot read %1").arg(file.fileName()));
    if (file.size() > maxProgramsFileBytes)
        return Fail(error, QStringLiteral("%1 is too large for a programs file").arg(file.fileName()));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));

    QList<Program *> read;
    QSet<QString> names;
    QString reason;
    for (int i = 0; i < lines.size() && reason.isEmpty(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        auto *program = new Program(QString(), QString(), {}, QString(), false);
        read << program;
        QString problem;
        if (!GlobalElements::HeatfileText::Read(line, program, &problem))
            reason = problem;
        else if (program->GetManufacturer() != QLatin1String("user"))
            reason = QStringLiteral("'%1' is not one of my programs").arg(program->GetName());
        else if (names.contains(program->GetName()) || takenNames.contains(program->GetName()))
            reason = QStringLiteral("the name '%1' is taken").arg(program->GetName());
        names.insert(program->GetName());
        if (!reason.isEmpty())
            reason = QStringLiteral("%1:%2: %3").arg(file.fileName()).arg(i + 1).arg(reason);
    }
    if (reason.isEmpty() && read.isEmpty())
        reason = QStringLiteral("%1 holds no program").arg(file.fileName());
    if (!reason.isEmpty()) {
        qDeleteAll(read);
        return Fail(error, reason);
    }
    *programs = read;
    return true;
}

QString UsbFiles::Backup(const QList<const Program *> &programs, const QString &deviceText, const QString &serialNumber,
                         const QString &logFolder, const QDateTime &now, QString *error) const
{
    QString serial = serialNumber;
    serial.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]")), QStringLiteral("_"));
    const QString folder = QStringLiteral("%1/%2/backup/%3_%4")
                               .arg(m_root, folderName, serial.isEmpty() ? QStringLiteral("furnace") : serial,
                                    now.toString(QStringLiteral("yyyyMMdd_hhmmss")));
    if (!WriteFile(folder + QStringLiteral("/programs.txt"), ProgramsText(programs, QStringLiteral("Backup")), error) ||
        !WriteFile(folder + QStringLiteral("/device.txt"), deviceText.toUtf8() + '\n', error))
        return QString();
    const QFileInfoList logs = QDir(logFolder).entryInfoList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
    for (const QFileInfo &log : logs) {
        QFile source(log.filePath());
        if (!source.open(QIODevice::ReadOnly) ||
            !WriteFile(folder + QStringLiteral("/logs/") + log.fileName(), source.readAll(), error))
            return QString();
    }
    return folder;
}

} // namespace Settings
} // namespace ovra
