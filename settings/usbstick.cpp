#include "settings/usbstick.h"

#include <QRegularExpression>
#include <QStorageInfo>

namespace ovra {
namespace Settings {
namespace UsbStick {

bool IsStickVolume(const QString &device, const QString &rootPath)
{
    static const QRegularExpression usbDisk(QStringLiteral("^/dev/sd[a-z]+[0-9]*$"));
    static const QRegularExpression mountPlace(QStringLiteral("^/(media|run/media|mnt)/[^/]"));
    return usbDisk.match(device).hasMatch() && mountPlace.match(rootPath).hasMatch();
}

QString Find(const QString &givenFolder)
{
    if (!givenFolder.isEmpty())
        return givenFolder;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady() &&
            IsStickVolume(QString::fromLocal8Bit(volume.device()), volume.rootPath()))
            return volume.rootPath();
    }
    return QString();
}

} // namespace UsbStick
} // namespace Settings
} // namespace ovra
