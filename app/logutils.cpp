#include "app/logutils.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace ovra {
namespace GlobalElements {

const QString logFolderName = QStringLiteral("../logs");
QString logFileName;

void initLogging()
{
    QDir folder(logFolderName);
    if (!folder.exists())
        QDir().mkdir(logFolderName);

    deleteOldLogs();
    initLogFileName();

    QFile file(logFileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.close();
        qInstallMessageHandler(myMessageHandler);
    }
}

void initLogFileName()
{
    const QDateTime now = QDateTime::currentDateTime();
    logFileName = logFolderName +
                  QStringLiteral("/Log_%1__%2.txt")
                      .arg(now.toString(QStringLiteral("yyyy_MM_dd")), now.toString(QStringLiteral("hh_mm_ss_zzz")));
}

void deleteOldLogs()
{
    // Every regular file counts, logs or not: the folder is the panel's own.
    QDir folder(logFolderName);
    const QFileInfoList files =
        folder.entryInfoList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::Time | QDir::Reversed);
    if (files.size() <= logFilesKept)
        return;
    const int surplus = files.size() - logFilesKept;
    for (int i = 0; i < surplus; ++i)
        QFile::remove(files.at(i).absoluteFilePath());
}

void myMessageHandler(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (QFileInfo(logFileName).size() > logFileMaxBytes) {
        deleteOldLogs();
        initLogFileName();
    }

    // Opened and closed per line so that nothing is lost when the furnace is switched off.
    QFile file(logFileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    QTextStream stream(&file);
    stream << message << Qt::endl;
    file.close();
}

} // namespace GlobalElements
} // namespace ovra
