#include "app/scriptupkeep.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace ovra {
namespace GlobalElements {

namespace {
const QFileDevice::Permissions runnable = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                                          QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                          QFileDevice::ExeOther;

QByteArray Md5(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}
} // namespace

ScriptUpkeep::ScriptUpkeep(const Paths &paths, const QString &referenceFolder)
    : m_paths(paths), m_referenceFolder(referenceFolder)
{
}

QStringList ScriptUpkeep::Run(const QStringList &fixedPaths) const
{
    QStringList written;
    for (const QString &fixedPath : fixedPaths) {
        QFile reference(m_referenceFolder + QLatin1Char('/') + QFileInfo(fixedPath).fileName());
        if (!reference.open(QIODevice::ReadOnly))
            continue;
        const QString path = m_paths.Resolve(fixedPath);
        bool rewritten = false;
        if (!Keep(path, reference.readAll(), &rewritten))
            qDebug() << "script could not be rewritten:" << path;
        else if (rewritten)
            written << path;
    }
    return written;
}

bool ScriptUpkeep::Keep(const QString &path, const QByteArray &wanted, bool *written) const
{
    QFile current(path);
    const bool equal = current.open(QIODevice::ReadOnly) && Md5(current.readAll()) == Md5(wanted);
    current.close();
    if (!equal) {
        if (!QDir().mkpath(QFileInfo(path).absolutePath()))
            return false;
        // Written beside and renamed: power lost half-way leaves the old script, not half of one.
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(wanted) != wanted.size() || !file.commit())
            return false;
        *written = true;
        qDebug() << "script rewritten:" << path;
    }
    if ((QFile::permissions(path) & runnable) != runnable && !QFile::setPermissions(path, runnable))
        return false;
    return true;
}

} // namespace GlobalElements
} // namespace ovra
