#include "app/paths.h"

#include <QDir>

namespace ovra {
namespace GlobalElements {

const QString Paths::deviceHome = QStringLiteral("/home/pi");

Paths::Paths(const QString &home) : m_home(QDir::cleanPath(home))
{
    if (home.isEmpty())
        m_home = deviceHome;
}

QString Paths::Resolve(const QString &fixedPath) const
{
    if (fixedPath == deviceHome)
        return m_home;
    if (fixedPath.startsWith(deviceHome + QLatin1Char('/')))
        return m_home + fixedPath.mid(deviceHome.size());
    return fixedPath;
}

} // namespace GlobalElements
} // namespace ovra
