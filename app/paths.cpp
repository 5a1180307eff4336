#include "app/paths.h"

#include <QDir>

namespace ovra {
namespace GlobalElements {

const QString Paths::deviceHome = QStringLiteral("/home/pi");

namespace {
QString &homeOverride()
{
    static QString home = Paths::deviceHome;
    return home;
}
} // namespace

void Paths::SetHome(const QString &dir)
{
    QString clean = QDir::cleanPath(dir);
    homeOverride() = clean.isEmpty() ? deviceHome : clean;
}

QString Paths::Home()
{
    return homeOverride();
}

QString Paths::Resolve(const QString &fixedPath)
{
    if (fixedPath == deviceHome)
        return Home();
    if (fixedPath.startsWith(deviceHome + QLatin1Char('/')))
        return Home() + fixedPath.mid(deviceHome.size());
    return fixedPath;
}

} // namespace GlobalElements
} // namespace ovra
