#include "app/buildproof.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace ovra {
namespace GlobalElements {

namespace {
const QString markerName = QStringLiteral("proven");

bool SyncAndClose(int fd)
{
    const bool synced = ::fsync(fd) == 0;
    return ::close(fd) == 0 && synced;
}
} // namespace

BuildProof::BuildProof(const QString &folder, QObject *parent) : QObject(parent), m_folder(folder) {}

QString BuildProof::ManagedFolder(const QString &applicationDir, const QString &home)
{
    const QString downloads = QDir(home + QStringLiteral("/Downloads")).canonicalPath();
    const QString folder = QDir(applicationDir).canonicalPath();
    if (downloads.isEmpty() || folder.isEmpty() || QFileInfo(folder).absolutePath() != downloads)
        return QString();
    return folder;
}

bool BuildProof::Mark(const QString &folder)
{
    const QString path = QDir(folder).filePath(markerName);
    if (QFileInfo::exists(path))
        return true;
    const QByteArray encoded = QFile::encodeName(path);
    const int fd = ::open(encoded.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    bool written = fd >= 0;
    if (written) {
        static const char text[] = "shown its first page\n";
        written = ::write(fd, text, sizeof text - 1) == ssize_t(sizeof text - 1);
        written = SyncAndClose(fd) && written;
    }
    const int dir = written ? ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC) : -1;
    written = dir >= 0 && SyncAndClose(dir);
    if (!written) {
        qDebug() << "build not marked as proven:" << path << std::strerror(errno);
        return false;
    }
    qDebug() << "build proven:" << folder;
    return true;
}

void BuildProof::OnPageShown()
{
    if (m_marked || m_folder.isEmpty())
        return;
    m_marked = true;
    Mark(m_folder);
}

} // namespace GlobalElements
} // namespace ovra
