#include "updatefiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace UpdateFiles {

QString Python()
{
    // Debian's own first: a python3 earlier on PATH may be a wrapper of its own.
    const QString system = QStandardPaths::findExecutable(QStringLiteral("python3"), {QStringLiteral("/usr/bin")});
    return system.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("python3")) : system;
}

bool Write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray Read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

bool MakeZip(const QString &zipPath, const QList<QPair<QString, QByteArray>> &entries)
{
    QTemporaryDir staging;
    QStringList args = {QStringLiteral("-c"),
                        QStringLiteral("import sys, zipfile\n"
                                       "z = zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED)\n"
                                       "for name, src in zip(sys.argv[2::2], sys.argv[3::2]):\n"
                                       "    z.writestr(name, open(src, 'rb').read())\n"
                                       "z.close()\n"),
                        zipPath};
    for (int i = 0; i < entries.size(); ++i) {
        if (!Write(staging.filePath(QString::number(i)), entries.at(i).second))
            return false;
        args << entries.at(i).first << staging.filePath(QString::number(i));
    }
    return QProcess::execute(Python(), args) == 0;
}

QMap<QString, QByteArray> Snapshot(const QString &root)
{
    QMap<QString, QByteArray> entries;
    QDirIterator it(root, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        entries.insert(QDir(root).relativeFilePath(path), QFileInfo(path).isDir() ? QByteArray("<dir>") : Read(path));
    }
    return entries;
}

bool MakeHome(const QString &home)
{
    const QString downloads = home + QStringLiteral("/Downloads");
    return Write(downloads + QStringLiteral("/build/ovra-panel"), "old program") &&
           Write(downloads + QStringLiteral("/translations/ovra_en.qm"), "old translation") &&
           QFile::copy(QStringLiteral(OVRA_SOURCE_DIR "/resources/scripts/decode_and_unzip_lin.py"),
                       downloads + QStringLiteral("/decode_and_unzip_lin.py"));
}

} // namespace UpdateFiles
